#include "classes/chassis_sensors/handlers.h"
#include "classes/chassis_sensors/threshold_sensor.h"
#include "platform/layouts/probes.h"

namespace tqcim {
namespace {

// Alone among the sensors it reads its key without converting it: existing consumers see the same
// objects by the same keys.
constexpr ThresholdSensorClass kClass{layout::probe::kCurrentType, OLESTR("CIM_CurrentSensor"),
                                      ScanDecimal};

}  // namespace

HRESULT CIM_CurrentSensor::EnumerateInstances(IWbemClassObject* classDefinition,
                                              IWbemObjectSink* sink) {
  return EnumerateThresholdSensors(kClass, classDefinition, sink);
}

HRESULT CIM_CurrentSensor::GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                                       IWbemObjectSink* sink) {
  return GetThresholdSensor(kClass, classDefinition, keys, sink);
}

}  // namespace tqcim
