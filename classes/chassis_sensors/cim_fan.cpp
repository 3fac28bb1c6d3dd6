#include <string>

#include "classes/chassis_sensors/handlers.h"
#include "classes/device_names.h"
#include "classes/walks.h"
#include "platform/layouts/probes.h"

namespace tqcim {
namespace {

namespace probe = layout::probe;

bool IsVariableSpeed(uint32_t subtype) {
  return subtype == 1 || subtype == 3;
}

/// The `DeviceID` is the position within the fan's own chassis: the fans of a second chassis repeat
/// those of the first.
void PutFanProperties(Instance& instance, const DataObject& object, uint32_t inner, uint32_t) {
  PutDeviceNames(instance, OLESTR("CIM_Fan"));
  instance.Put(property::kName, Variant::Text(object[probe::kName]));
  instance.Put(property::kDeviceId, Variant::Text(std::to_string(inner).c_str()));
  instance.Put(OLESTR("VariableSpeed"), Variant::Bool(IsVariableSpeed(object[probe::kSubtype])));
  instance.Put(property::kStatus, Variant::Text(StatusToText(object.Status())));
}

}  // namespace

HRESULT CIM_Fan::EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) {
  return EnumerateByCursor(probe::kFanType, classDefinition, sink, PutFanProperties);
}

HRESULT CIM_Fan::GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                             IWbemObjectSink* sink) {
  return GetByCursor(probe::kFanType, {TextKey::kByApparentType, ScanAsNarrow}, classDefinition,
                     keys, sink, PutFanProperties);
}

}  // namespace tqcim
