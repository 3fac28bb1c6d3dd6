#include "store/smbios_source.h"

#include <algorithm>
#include <array>
#include <vector>

#include "store/smbios_objects.h"

namespace tqcim::store::smbios {
namespace {

/// The structures of which the first alone counts.
constexpr uint8_t kBiosInformation = 0;
constexpr uint8_t kSystemInformation = 1;
constexpr uint8_t kSystemEnclosure = 3;

/// The structures each of which tells of something of its own.
constexpr struct {
  uint8_t type;
  void (*add)(const Structure& structure, uint32_t position, SnapshotBuilder& builder);
} kReaders[] = {
    {2, AddBaseboard},        // Baseboard Information
    {4, AddProcessor},        // Processor Information
    {8, AddPort},             // Port Connector Information
    {9, AddSlot},             // System Slots
    {17, AddMemoryDevice},    // Memory Device
    {21, AddPointingDevice},  // Built-in Pointing Device
    {39, AddPowerSupply},     // System Power Supply
};

const Structure* FirstOf(const std::vector<Structure>& structures, uint8_t type) {
  const auto found = std::find_if(structures.begin(), structures.end(),
                                  [&](const Structure& s) { return s.Type() == type; });
  return found == structures.end() ? nullptr : &*found;
}

}  // namespace

std::unique_ptr<Snapshot> SnapshotOf(Bytes table, const EntryPoint& entryPoint,
                                     const std::string& file, size_t tableOffset,
                                     SnapshotBuilder builder) {
  const std::vector<Structure> structures = ReadStructures(table, entryPoint, file, tableOffset);
  AddChassis(FirstOf(structures, kSystemEnclosure), FirstOf(structures, kSystemInformation),
             builder, file);
  if (const Structure* information = FirstOf(structures, kBiosInformation)) {
    AddBios(*information, builder);
  }
  std::array<uint32_t, 256> positions{};
  for (const Structure& structure : structures) {
    const uint32_t position = ++positions[structure.Type()];
    for (const auto& [type, add] : kReaders) {
      if (type == structure.Type()) add(structure, position, builder);
    }
  }
  return builder.Build();
}

}  // namespace tqcim::store::smbios
