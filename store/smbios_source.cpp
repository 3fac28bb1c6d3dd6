#include "store/smbios_source.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <vector>

#include "platform/layouts/catalogue.h"
#include "store/snapshot_builder.h"

namespace tqcim::store::smbios {
namespace {

namespace bios = layout::bios;
namespace chassis_description = layout::chassis_description;
namespace chassis_identity = layout::chassis_identity;
namespace memory_device = layout::memory_device;
namespace processor = layout::processor;
namespace processor_device = layout::processor_device;

constexpr uint32_t kRootOid = layout::system::kRootOid;
constexpr uint32_t kMainChassisOid = layout::system::kMainChassisOid;

/// The types of the structures that are read.
constexpr uint8_t kBiosInformation = 0;
constexpr uint8_t kSystemInformation = 1;
constexpr uint8_t kSystemEnclosure = 3;
constexpr uint8_t kProcessorInformation = 4;
constexpr uint8_t kMemoryDevice = 17;

uint32_t OidOf(uint16_t type, uint32_t position) {
  return uint32_t{type} << 16 | position;
}

/// Sets a field to what a structure tells, if it tells.
template <typename Field, typename Value>
void SetKnown(ObjectDraft& draft, const Field& field, const std::optional<Value>& value) {
  if (value) draft.Set(field, *value);
}

template <typename T>
std::optional<T> Unless(std::optional<T> value, T unknown) {
  return value == unknown ? std::nullopt : value;
}

const Structure* FirstOf(const std::vector<Structure>& structures, uint8_t type) {
  const auto found = std::find_if(structures.begin(), structures.end(),
                                  [&](const Structure& s) { return s.Type() == type; });
  return found == structures.end() ? nullptr : &*found;
}

/// DSP0134 7.4.2: 3 safe, 4 warning, 5 critical, 6 non-recoverable. The others (other, unknown)
/// tell nothing.
std::optional<Status> StatusOfState(std::optional<uint8_t> state) {
  switch (state.value_or(0)) {
    case 3:
      return Status::kOk;
    case 4:
      return Status::kNonCritical;
    case 5:
      return Status::kCritical;
    case 6:
      return Status::kNonRecoverable;
    default:
      return std::nullopt;
  }
}

/// The worst of the states of the last boot, the power supplies and the temperature that an
/// enclosure tells; unknown where it tells none.
Status EnclosureStatus(const Structure* enclosure) {
  std::optional<Status> worst;
  for (const uint8_t offset : std::initializer_list<uint8_t>{0x09, 0x0A, 0x0B}) {
    if (enclosure != nullptr) worst = std::max(worst, StatusOfState(enclosure->Byte(offset)));
  }
  return worst.value_or(Status::kUnknown);
}

/// Maker and product, as far as the table names them.
std::optional<std::string> SystemName(const Structure& system) {
  const std::optional<std::string> maker = system.String(0x04);
  const std::optional<std::string> product = system.String(0x05);
  if (!maker || !product) return product ? product : maker;
  return *maker + " " + *product;
}

void AddChassis(const Structure* enclosure, const Structure* system, SnapshotBuilder& builder,
                const std::string& place) {
  const Status status = EnclosureStatus(enclosure);
  builder.Add(kRootOid, layout::system::kLayout, status, {}, place);
  builder.Add(kMainChassisOid, layout::chassis::kLayout, status, {kRootOid}, place);
  ObjectDraft& description =
      builder.Add(OidOf(chassis_description::kType, 1), chassis_description::kLayout, status,
                  {kMainChassisOid}, place);
  ObjectDraft& identity = builder.Add(OidOf(chassis_identity::kType, 1), chassis_identity::kLayout,
                                      status, {kMainChassisOid}, place);
  if (system != nullptr) {
    SetKnown(description, chassis_description::kName, SystemName(*system));
    SetKnown(description, chassis_description::kModel, system->String(0x05));
  }
  if (enclosure == nullptr) return;
  if (const auto type = enclosure->Byte(0x05)) {
    // DSP0134 7.4, offset 05h: bit 7 says that a lock is present, the others are the type (7.4.1).
    description.Set(chassis_description::kChassisType, *type & 0x7F);
    description.Set(chassis_description::kLockPresent, *type >> 7);
  }
  SetKnown(description, chassis_description::kRevisionName, enclosure->String(0x06));
  SetKnown(identity, chassis_identity::kSerialNumber, enclosure->String(0x07));
  SetKnown(identity, chassis_identity::kAssetTag, enclosure->String(0x08));
}

/// DSP0134 7.1, BIOS Information (type 0).
void AddBios(const Structure& structure, SnapshotBuilder& builder) {
  ObjectDraft& draft = builder.Add(OidOf(bios::kType, 1), bios::kLayout, Status::kOk,
                                   {kMainChassisOid}, structure.Place());
  SetKnown(draft, bios::kManufacturer, structure.String(0x04));
  SetKnown(draft, bios::kVersion, structure.String(0x05));
  SetKnown(draft, bios::kReleaseDate, structure.String(0x08));
  SetKnown(draft, bios::kCharacteristics, structure.Qword(0x0A));
  SetKnown(draft, bios::kExtension1, structure.Byte(0x12));
  SetKnown(draft, bios::kExtension2, structure.Byte(0x13));
}

/// The status byte of a processor (DSP0134 7.5, offset 18h), bits 2:0, in the store's
/// coding and as an object status. A processor that the setup switched off, or whose state the
/// firmware doesn't know, is no fault.
struct ProcessorState {
  uint32_t cpuStatus;
  Status status;
};
constexpr ProcessorState kProcessorStates[8] = {
    {2, Status::kUnknown},   // unknown
    {3, Status::kOk},        // enabled
    {4, Status::kOther},     // disabled by the user through the setup
    {5, Status::kCritical},  // disabled by the firmware: it failed its self-test
    {6, Status::kOk},        // idle, waiting to be enabled
    {2, Status::kUnknown},   // reserved
    {2, Status::kUnknown},   // reserved
    {1, Status::kOther},     // other
};

/// The byte at `offset`, or the word at `wideOffset` where the byte sends there.
std::optional<uint16_t> ByteOrWord(const Structure& structure, uint8_t offset, uint8_t sendsThere,
                                   uint8_t wideOffset) {
  const std::optional<uint8_t> byte = structure.Byte(offset);
  return byte == sendsThere ? structure.Word(wideOffset) : std::optional<uint16_t>(byte);
}

/// Whether a family's processor ID begins with what CPUID function 1 returns in EAX (DSP0134 7.5.2
/// and 7.5.3: the x86 families from the Pentium on).
bool HasX86Signature(uint16_t family) {
  constexpr struct {
    uint16_t first;
    uint16_t last;
  } kFamilies[] = {{0x0B, 0x15}, {0x18, 0x1D}, {0x1F, 0x1F}, {0x28, 0x2F},
                   {0x38, 0x3F}, {0x46, 0x4F}, {0x66, 0x68}, {0x6A, 0x6B},
                   {0x83, 0x8F}, {0xA1, 0xB3}, {0xB5, 0xB7}, {0xB9, 0xC7},
                   {0xCD, 0xCF}, {0xD2, 0xDB}, {0xDD, 0xE0}, {0xE4, 0xEF}};
  return std::any_of(std::begin(kFamilies), std::end(kFamilies), [&](const auto& range) {
    return family >= range.first && family <= range.last;
  });
}

/// Family, model and stepping of a CPUID signature: the extended family counts for family 15, the
/// extended model for families 6 and 15.
void SetSignature(ObjectDraft& draft, uint32_t signature) {
  const uint32_t baseFamily = signature >> 8 & 0xF;
  const uint32_t family = baseFamily + (baseFamily == 15 ? signature >> 20 & 0xFF : 0);
  const bool extended = baseFamily == 6 || baseFamily == 15;
  const uint32_t model = (signature >> 4 & 0xF) + (extended ? signature >> 12 & 0xF0 : 0);
  draft.Set(processor::kModel,
            "Family " + std::to_string(family) + " Model " + std::to_string(model));
  draft.Set(processor::kStepping, std::to_string(signature & 0xF));
}

/// DSP0134 7.5, Processor Information (type 4).
void AddProcessor(const Structure& structure, uint32_t position, SnapshotBuilder& builder) {
  const uint32_t socketOid = OidOf(processor_device::kType, position);
  const uint8_t statusByte = structure.Byte(0x18).value_or(0);
  const bool populated = (statusByte & 0x40) != 0;
  const ProcessorState& state = kProcessorStates[statusByte & 0x07];
  ObjectDraft& socket =
      builder.Add(socketOid, processor_device::kLayout, populated ? state.status : Status::kUnknown,
                  {kMainChassisOid}, structure.Place());
  SetKnown(socket, processor_device::kName, structure.String(0x04));
  if (!populated) return;

  ObjectDraft& draft = builder.Add(OidOf(processor::kType, position), processor::kLayout,
                                   state.status, {socketOid, kMainChassisOid}, structure.Place());
  draft.Set(processor::kCpuStatus, state.cpuStatus);
  const std::optional<uint16_t> family = ByteOrWord(structure, 0x06, 0xFE, 0x28);
  SetKnown(draft, processor::kFamily, family);
  const std::optional<uint32_t> signature = Unless(structure.Dword(0x08), 0U);
  if (signature && HasX86Signature(family.value_or(0))) SetSignature(draft, *signature);
  SetKnown(draft, processor::kBrand, structure.String(0x10));
  SetKnown(draft, processor::kMaxSpeed, structure.Word(0x14));
  SetKnown(draft, processor::kCurrentSpeed, structure.Word(0x16));
  SetKnown(draft, processor::kUpgradeMethod, structure.Byte(0x19));
  SetKnown(draft, processor::kCoreCount, ByteOrWord(structure, 0x23, 0xFF, 0x2A));
  SetKnown(draft, processor::kEnabledCoreCount, ByteOrWord(structure, 0x24, 0xFF, 0x2C));
  SetKnown(draft, processor::kExtendedCharacteristics, structure.Word(0x26));
}

/// DSP0134 7.18, offsets 0Ch and 1Ch: megabytes, kilobytes with bit 15 set, FFFFh for unknown,
/// and 7FFFh for a size that only the extended field (megabytes, bit 31 reserved) can tell.
void SetSize(ObjectDraft& draft, const Structure& structure) {
  const uint16_t size = structure.Word(0x0C).value_or(0xFFFF);
  if (size == 0xFFFF) return;
  if (size == 0x7FFF) {
    if (const auto extended = structure.Dword(0x1C)) {
      draft.Set(memory_device::kExtendedSizeMb, *extended & 0x7FFFFFFF);
    }
  } else {
    draft.Set(memory_device::kSizeKb, (size & 0x8000) != 0 ? size & 0x7FFFU : size * 1024U);
  }
}

/// DSP0134 7.18, offsets 15h and 54h: MT/s, 0 for unknown, FFFFh for a speed that only the extended
/// field tells.
void SetSpeed(ObjectDraft& draft, const Structure& structure) {
  uint32_t speed = structure.Word(0x15).value_or(0);
  if (speed == 0xFFFF) speed = structure.Dword(0x54).value_or(0) & 0x7FFFFFFF;
  if (speed == 0) return;
  draft.Set(memory_device::kSpeed, speed);
  draft.Set(memory_device::kSpeedText, std::to_string(speed) + " MT/s");
}

/// DSP0134 7.18, Memory Device (type 17). A size of 0 is an empty socket.
void AddMemoryDevice(const Structure& structure, uint32_t position, SnapshotBuilder& builder) {
  if (structure.Word(0x0C).value_or(0) == 0) return;
  ObjectDraft& draft = builder.Add(OidOf(memory_device::kType, position), memory_device::kLayout,
                                   Status::kOk, {kMainChassisOid}, structure.Place());
  const uint16_t unknownWidth = 0xFFFF;
  SetKnown(draft, memory_device::kTotalWidth, Unless(structure.Word(0x08), unknownWidth));
  SetKnown(draft, memory_device::kDataWidth, Unless(structure.Word(0x0A), unknownWidth));
  SetSize(draft, structure);
  SetKnown(draft, memory_device::kFormFactor, structure.Byte(0x0E));
  SetKnown(draft, memory_device::kName, structure.String(0x10));
  SetKnown(draft, memory_device::kBankLabel, structure.String(0x11));
  SetKnown(draft, memory_device::kMemoryType, structure.Byte(0x12));
  SetSpeed(draft, structure);
  SetKnown(draft, memory_device::kManufacturer, structure.String(0x17));
  SetKnown(draft, memory_device::kSerialNumber, structure.String(0x18));
  if (const auto attributes = structure.Byte(0x1B)) {
    draft.Set(memory_device::kRank, *attributes & 0x0F);
  }
}

}  // namespace

std::unique_ptr<Snapshot> SnapshotOf(Bytes table, const EntryPoint& entryPoint,
                                     const std::string& file, size_t tableOffset) {
  const std::vector<Structure> structures = ReadStructures(table, entryPoint, file, tableOffset);
  SnapshotBuilder builder;
  AddChassis(FirstOf(structures, kSystemEnclosure), FirstOf(structures, kSystemInformation),
             builder, file);
  if (const Structure* information = FirstOf(structures, kBiosInformation)) {
    AddBios(*information, builder);
  }
  uint32_t processors = 0;
  uint32_t memoryDevices = 0;
  for (const Structure& structure : structures) {
    if (structure.Type() == kProcessorInformation) AddProcessor(structure, ++processors, builder);
    if (structure.Type() == kMemoryDevice) AddMemoryDevice(structure, ++memoryDevices, builder);
  }
  return builder.Build();
}

}  // namespace tqcim::store::smbios
