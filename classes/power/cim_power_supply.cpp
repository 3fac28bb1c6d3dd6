#include <bit>
#include <iterator>
#include <string>

#include "classes/power/handlers.h"
#include "core/computer_name.h"
#include "core/instance.h"
#include "core/path_keys.h"
#include "core/property_names.h"
#include "core/store_access.h"
#include "core/text.h"
#include "platform/layouts/chassis.h"
#include "platform/layouts/power.h"

namespace tqcim {
namespace {

namespace supply = layout::power_supply;

constexpr uint16_t kConfigurationErrorState = 64;

/// The text of a state, which is one bit value from 1 to 64.
const char* StateText(uint16_t state) {
  static constexpr const char* kTexts[] = {
      "Presence detected",       "PS Failure detected",          "Predictive Failure", "PS AC lost",
      "AC lost or out-of-range", "AC out-of-range, but present", "Configuration error"};
  if (state > kConfigurationErrorState || !std::has_single_bit(state)) return "unknown";
  return kTexts[std::countr_zero(state)];
}

const char* ConfigurationErrorText(uint8_t kind) {
  static constexpr const char* kTexts[] = {"Vendor mismatch", "Revision mismatch",
                                           "Processor missing"};
  return kind < std::size(kTexts) ? kTexts[kind] : "unknown";
}

std::string ErrorDescription(const DataObject& object) {
  const uint16_t state = object[supply::kState];
  std::string text = StateText(state);
  if (state == kConfigurationErrorState) {
    text += ':';
    text += ConfigurationErrorText(object[supply::kConfigurationError]);
  }
  return text;
}

void PutPowerSupplyProperties(Instance& instance, const DataObject& object) {
  instance.Put(OLESTR("ActiveInputVoltage"), Variant::Int16(1));
  instance.Put(OLESTR("TotalOutputPower"),
               Variant::Int16(static_cast<int16_t>(object[supply::kTotalOutputPower])));
  instance.Put(property::kCreationClassName, Variant::Text(OLESTR("CIM_PowerSupply")));
  // Not the class name that references carry: clients match on this text.
  instance.Put(property::kSystemCreationClassName, Variant::Text(OLESTR("Local System")));
  instance.Put(property::kSystemName, Variant::Text(ComputerName()));
  instance.Put(property::kName, Variant::Text(object[supply::kName]));
  instance.Put(property::kDeviceId, Variant::Text(object[supply::kName]));
  instance.Put(property::kStatus, Variant::Text(StatusToText(object.Status())));
  instance.Put(OLESTR("LastErrorCode"), Variant::Int32(object[supply::kState]));
  instance.Put(OLESTR("ErrorDescription"), Variant::Text(ErrorDescription(object).c_str()));
  instance.Put(OLESTR("IsSwitchingSupply"),
               Variant::Bool(object[supply::kKind] == supply::kSwitchingKind));
  instance.Put(OLESTR("PMCapable"),
               Variant::Bool(static_cast<VARIANT_BOOL>(object[supply::kPowerManagementCapable])));
  instance.Put(OLESTR("InputRatedPower"), Variant::Int32(object[supply::kInputRatedPower]));
}

/// The supply of that name among the first supplies of a chassis: as many positions are tried as
/// the system has chassis, so that with one chassis only its first supply is found. A read that
/// fails is tried again at its position.
DataObject FindByName(uint32_t chassisOid, uint32_t chassisCount, const OLECHAR* name) {
  const OidList supplies = ListChildren(chassisOid, supply::kType);
  uint32_t tries = 0;
  for (uint32_t position = 0; position < chassisCount && position < supplies.size();) {
    DataObject object = ReadObject(supplies[position]);
    if (!object && ++tries < kReadTries) continue;
    if (object && EqualIgnoringCase(object[supply::kName], name)) return object;
    tries = 0;
    ++position;
  }
  return {};
}

}  // namespace

HRESULT CIM_PowerSupply::EnumerateInstances(IWbemClassObject* classDefinition,
                                            IWbemObjectSink* sink) {
  HRESULT lastIndicate = S_OK;
  uint32_t outer = 0;
  for (uint32_t inner = 0;; ++inner) {
    const DataObject object = GetObjectByCursor(outer, inner, supply::kType);
    if (!object) return lastIndicate;
    Instance instance(classDefinition);
    if (!instance) return lastIndicate;
    PutPowerSupplyProperties(instance, object);
    lastIndicate = instance.Indicate(sink);
  }
}

HRESULT CIM_PowerSupply::GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                                     IWbemObjectSink* sink) {
  // Unlike other classes, this one never answers "not found".
  if (!keys) return S_OK;
  const PathKey key = FindTextKey(keys, property::kDeviceId, TextKey::kByVariant);
  if (!key.found) return key.status;
  const OidList chassis = ListChildren(layout::system::kRootOid, layout::chassis::kType);
  for (uint32_t c = 0; c < chassis.size(); ++c) {
    const DataObject object = FindByName(chassis[c], chassis.size(), key.value.text());
    if (!object) continue;
    Instance instance(classDefinition);
    if (!instance) return instance.SpawnStatus();
    PutPowerSupplyProperties(instance, object);
    return instance.Indicate(sink);
  }
  return key.status;
}

}  // namespace tqcim
