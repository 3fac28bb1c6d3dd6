#include <span>
#include <string>

#include "classes/inventory/handlers.h"
#include "classes/walks.h"
#include "core/results.h"
#include "platform/layouts/processors_memory.h"

namespace tqcim {
namespace {

namespace memory = layout::memory_device;

constexpr const OLECHAR* kTag = OLESTR("Tag");

struct CodeRow {
  uint32_t storeCode;
  int32_t cimCode;
};

constexpr CodeRow kFormFactors[] = {{1, 1},  {2, 0},   {3, 7},   {4, 2},   {5, 1},
                                    {6, 3},  {7, 4},   {8, 6},   {9, 8},   {10, 9},
                                    {11, 1}, {12, 11}, {13, 12}, {14, 13}, {15, 24}};

/// Codes 21, 22 and 23 have no row: clients see those types as unknown.
constexpr CodeRow kMemoryTypes[] = {{1, 1},   {2, 0},   {3, 2},   {4, 6},   {5, 7},   {6, 8},
                                    {7, 9},   {8, 10},  {9, 11},  {10, 12}, {11, 13}, {12, 14},
                                    {13, 15}, {14, 16}, {15, 17}, {16, 18}, {17, 19}, {18, 20},
                                    {19, 21}, {20, 22}, {24, 24}, {25, 25}, {26, 26}};

constexpr CodeRow kRanks[] = {{0, 0}, {1, 1}, {2, 2}, {4, 4}, {8, 8}, {16, 16}};

/// The CIM code of the first row with the store's code; 0 without one.
int32_t CimCodeOf(std::span<const CodeRow> rows, uint32_t storeCode) {
  for (const CodeRow& row : rows) {
    if (row.storeCode == storeCode) return row.cimCode;
  }
  return 0;
}

/// Bytes.
uint64_t CapacityOf(const DataObject& object) {
  const uint64_t extendedMb = object[memory::kExtendedSizeMb];
  const uint64_t kb = object[memory::kSizeKb];
  return extendedMb != 0 ? extendedMb << 20 : kb << 10;
}

void PutMemoryProperties(Instance& instance, const DataObject& object, uint16_t index) {
  instance.Put(OLESTR("Speed"), Variant::Int32(object[memory::kSpeed]));
  instance.Put(OLESTR("MemoryType"),
               Variant::Int32(CimCodeOf(kMemoryTypes, object[memory::kMemoryType])));
  instance.Put(OLESTR("FormFactor"),
               Variant::Int32(CimCodeOf(kFormFactors, object[memory::kFormFactor])));
  instance.Put(OLESTR("Rank"), Variant::Int32(CimCodeOf(kRanks, object[memory::kRank])));
  instance.PutUint64(OLESTR("Capacity"), CapacityOf(object));
  instance.Put(OLESTR("DataWidth"), Variant::Int32(object[memory::kDataWidth]));
  instance.Put(OLESTR("TotalWidth"), Variant::Int32(object[memory::kTotalWidth]));
  instance.Put(OLESTR("BankLabel"), Variant::Text(object[memory::kBankLabel]));
  instance.Put(property::kName, Variant::Text(object[memory::kName]));
  instance.Put(kTag, Variant::Text(std::to_string(index).c_str()));
  instance.Put(property::kStatus, Variant::Text(StatusToText(object.Status())));
  instance.Put(property::kCreationClassName, Variant::Text(OLESTR("CIM_PhysicalMemory")));
  instance.Put(OLESTR("SpeedAsString"), Variant::Text(object[memory::kSpeedText]));
  instance.Put(OLESTR("Manufacturer"), Variant::Text(object[memory::kManufacturer]));
  instance.Put(OLESTR("SerialNumber"), Variant::Text(object[memory::kSerialNumber]));
}

}  // namespace

HRESULT CIM_PhysicalMemory::EnumerateInstances(IWbemClassObject* classDefinition,
                                               IWbemObjectSink* sink) {
  return EnumerateListed(memory::kType, classDefinition, sink, PutMemoryProperties);
}

HRESULT CIM_PhysicalMemory::GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                                        IWbemObjectSink* sink) {
  const PathKey key = FindTextKey(keys, kTag, TextKey::kByVariant, UnreadableKey::kEndsTheSearch);
  if (!key.value.text()) return key.status;
  const auto index = static_cast<uint16_t>(ScanAsNarrow(key.value.text()));
  const DataObject object = GetChildObjectOfOid2(index, memory::kType);
  if (!object) return kNotFound;
  Instance instance(classDefinition);
  if (!instance) return instance.SpawnStatus();
  PutMemoryProperties(instance, object, index);
  return instance.Indicate(sink);
}

}  // namespace tqcim
