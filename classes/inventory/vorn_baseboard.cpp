#include <string>

#include "classes/inventory/handlers.h"
#include "classes/walks.h"
#include "core/results.h"
#include "platform/layouts/boards.h"

namespace tqcim {
namespace {

namespace board = layout::baseboard;

constexpr const OLECHAR* kTag = OLESTR("Tag");

/// Puts the text unless it is absent; tells whether it is there.
bool PutPresent(Instance& instance, const OLECHAR* name, const DataObject& object,
                const layout::Ucs2Field& field) {
  if (object.TextOffset(field) == 0) return false;
  instance.Put(name, Variant::Text(object[field]));
  return true;
}

void PutFlag(Instance& instance, const OLECHAR* name, uint8_t flags, int bit) {
  instance.Put(name, Variant::Bool(static_cast<VARIANT_BOOL>(flags >> bit & 1)));
}

void PutBoardProperties(Instance& instance, const DataObject& object, uint16_t index) {
  const uint8_t flags = object[board::kFlags];
  // The class's name in another case: clients match on this text.
  instance.Put(property::kCreationClassName, Variant::Text(OLESTR("Vorn_Baseboard")));
  instance.Put(kTag, Variant::Text(std::to_string(index).c_str()));
  PutFlag(instance, OLESTR("HostingBoard"), flags, 0);
  PutFlag(instance, OLESTR("RequiresDaughterBoard"), flags, 1);
  PutFlag(instance, OLESTR("Removable"), flags, 2);
  PutFlag(instance, OLESTR("Replaceable"), flags, 3);
  PutFlag(instance, OLESTR("HotSwappable"), flags, 4);
  instance.Put(OLESTR("BaseboardType"), Variant::Int32(object[board::kBoardType]));
  PutPresent(instance, OLESTR("Version"), object, board::kVersion);
  PutPresent(instance, OLESTR("ProductName"), object, board::kProductName);
  if (!PutPresent(instance, property::kName, object, board::kProductName)) {
    PutPresent(instance, property::kName, object, board::kVersion);
  }
  PutPresent(instance, OLESTR("Manufacturer"), object, board::kManufacturer);
  PutPresent(instance, OLESTR("PartNumber"), object, board::kPartNumber);
  PutPresent(instance, OLESTR("SerialNumber"), object, board::kSerialNumber);
  PutPresent(instance, OLESTR("BoardExpressServiceCode"), object, board::kExpressServiceCode);
  PutPresent(instance, OLESTR("AssetTag"), object, board::kAssetTag);
  PutPresent(instance, OLESTR("BaseboardTypeDescString"), object, board::kBoardTypeText);
  PutPresent(instance, OLESTR("BoardLocationName"), object, board::kLocation);
}

}  // namespace

HRESULT VORN_Baseboard::EnumerateInstances(IWbemClassObject* classDefinition,
                                           IWbemObjectSink* sink) {
  return EnumerateListed(board::kType, classDefinition, sink, PutBoardProperties);
}

HRESULT VORN_Baseboard::GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                                    IWbemObjectSink* sink) {
  const PathKey key = FindTextKey(keys, kTag, TextKey::kByVariant);
  if (FAILED(key.status)) return key.status;
  if (!key.value.text()) return kNotFound;
  const auto index = static_cast<uint16_t>(ScanDecimal(key.value.text()));
  const DataObject object = GetChildObjectOfOid2(index, board::kType);
  if (!object) return kNotFound;
  Instance instance(classDefinition);
  if (!instance) return instance.SpawnStatus();
  PutBoardProperties(instance, object, index);
  return instance.Indicate(sink);
}

}  // namespace tqcim
