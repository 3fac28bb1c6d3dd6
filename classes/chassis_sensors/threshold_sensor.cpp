#include "classes/chassis_sensors/threshold_sensor.h"
#include "classes/device_names.h"

#include <string>
#include <vector>

#include "classes/walks.h"
#include "platform/layouts/probes.h"

namespace tqcim {
namespace {

namespace probe = layout::probe;

/// CIM's codes of the thresholds that can be set, as CIM_NumericSensor.SettableThresholds counts
/// them. The lower bit stands for the upper threshold.
Variant SettableThresholds(uint16_t flags) {
  constexpr int16_t kUpperNonCritical = 1;
  constexpr int16_t kLowerNonCritical = 0;
  std::vector<int16_t> settable;
  if (flags & 1) settable.push_back(kUpperNonCritical);
  if (flags & 2) settable.push_back(kLowerNonCritical);
  return Variant::Int16Array(settable);
}

/// The fill routine for the sensors of a class.
auto PutPropertiesOf(const OLECHAR* className) {
  return [className](Instance& instance, const DataObject& object, uint32_t inner, uint32_t outer) {
    PutThresholdSensorProperties(instance, object, className, inner, outer);
  };
}

}  // namespace

void PutThresholdSensorProperties(Instance& instance, const DataObject& object,
                                  const OLECHAR* className, uint32_t inner, uint32_t outer) {
  const std::string deviceId = std::to_string(static_cast<int32_t>(outer * 100 + inner));
  instance.Put(OLESTR("SettableThresholds"),
               SettableThresholds(object[probe::kSettableThresholds]));
  instance.Put(property::kLowerThresholdCritical, Variant::Int32(object[probe::kLowerCritical]));
  instance.Put(property::kLowerThresholdFatal, Variant::Int32(object[probe::kLowerFatal]));
  instance.Put(property::kLowerThresholdNonCritical,
               Variant::Int32(object[probe::kLowerNonCritical]));
  instance.Put(property::kCurrentReading, Variant::Int32(object[probe::kCurrentReading]));
  instance.Put(property::kName, Variant::Text(object[probe::kName]));
  instance.Put(property::kStatus, Variant::Text(StatusToText(object.Status())));
  instance.Put(property::kUpperThresholdCritical, Variant::Int32(object[probe::kUpperCritical]));
  instance.Put(property::kUpperThresholdFatal, Variant::Int32(object[probe::kUpperFatal]));
  instance.Put(property::kUpperThresholdNonCritical,
               Variant::Int32(object[probe::kUpperNonCritical]));
  PutDeviceNames(instance, className);
  instance.Put(property::kDeviceId, Variant::Text(deviceId.c_str()));
}

HRESULT EnumerateThresholdSensors(const ThresholdSensorClass& sensorClass,
                                  IWbemClassObject* classDefinition, IWbemObjectSink* sink) {
  return EnumerateByCursor(sensorClass.objectType, classDefinition, sink,
                           PutPropertiesOf(sensorClass.className));
}

HRESULT GetThresholdSensor(const ThresholdSensorClass& sensorClass,
                           IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                           IWbemObjectSink* sink) {
  return GetByCursor(sensorClass.objectType, {TextKey::kByApparentType, sensorClass.scanKey},
                     classDefinition, keys, sink, PutPropertiesOf(sensorClass.className));
}

}  // namespace tqcim
