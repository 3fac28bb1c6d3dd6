#include <optional>
#include <string>
#include <utility>

#include "classes/inventory/handlers.h"
#include "core/instance.h"
#include "core/path_keys.h"
#include "core/property_names.h"
#include "core/store_access.h"
#include "core/text.h"
#include "platform/layouts/management_devices.h"

namespace tqcim {
namespace {

namespace card = layout::sd_card;

/// `sdCertified` of the store's code; the other codes say nothing.
std::optional<uint8_t> CertifiedOf(uint8_t code) {
  switch (code) {
    case 0:
      return 1;
    case 1:
      return 2;
    case 254:
      return 0;
    default:
      return std::nullopt;
  }
}

bool IsKnownSize(uint32_t freeSizeMb) {
  return freeSizeMb < card::kFreeSizeNone - 1;
}

/// The card goes back to the library before the instance is delivered.
void PutCardProperties(Instance& instance, DataObject object, uint32_t index) {
  instance.Put(OLESTR("sdType"), Variant::Uint8(object[card::kCardType]));
  if (const auto certified = CertifiedOf(object[card::kCertified])) {
    instance.Put(OLESTR("sdCertified"), Variant::Uint8(*certified));
  }
  instance.Put(OLESTR("isSDCardPresent"),
               Variant::Bool(static_cast<VARIANT_BOOL>(object[card::kPresent])));
  instance.Put(OLESTR("sdCardSizeMB"), Variant::Int32(object[card::kSizeMb]));
  if (IsKnownSize(object[card::kFreeSizeMb])) {
    instance.Put(OLESTR("sdCardFreeSizeMB"), Variant::Int32(object[card::kFreeSizeMb]));
  }
  instance.Put(OLESTR("sdCardState"), Variant::Int32(object[card::kState]));
  instance.Put(property::kName, Variant::Text(object[card::kName]));
  instance.Put(property::kDeviceId,
               Variant::Text(std::to_string(static_cast<int32_t>(index)).c_str()));
}

}  // namespace

HRESULT Vorn_SDCardDevice::EnumerateInstances(IWbemClassObject* classDefinition,
                                              IWbemObjectSink* sink) {
  const OidList cards = ListChildren(layout::system::kMainChassisOid, card::kType);
  HRESULT status = S_OK;
  for (uint32_t i = 0; i < cards.size(); ++i) {
    DataObject object = ReadObject(cards[i]);
    if (!object) break;
    Instance instance(classDefinition);
    if (!instance) return instance.SpawnStatus();
    PutCardProperties(instance, std::move(object), i);
    status = instance.Indicate(sink);
  }
  return status;
}

/// The first key counts, whatever its name, and is compared as text: "01" is no card.
HRESULT Vorn_SDCardDevice::GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                                       IWbemObjectSink* sink) {
  const PathKey key = FirstKey(keys);
  if (!key.found) return key.status;
  const auto wanted = BstrToNarrow(key.value.text());
  const OidList cards = ListChildren(layout::system::kMainChassisOid, card::kType);
  HRESULT status = S_OK;
  for (uint32_t i = 0; wanted && i < cards.size(); ++i) {
    if (std::to_string(i) != wanted.get()) continue;
    DataObject object = ReadObject(cards[i]);
    Instance instance(classDefinition);
    if (!instance) return instance.SpawnStatus();
    if (!object) continue;
    PutCardProperties(instance, std::move(object), i);
    status = instance.Indicate(sink);
  }
  return status;
}

}  // namespace tqcim
