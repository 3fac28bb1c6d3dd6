#include "classes/chassis_sensors/handlers.h"
#include "classes/chassis_sensors/threshold_sensor.h"
#include "platform/layouts/probes.h"

namespace tqcim {
namespace {

constexpr ThresholdSensorClass kClass{layout::probe::kVoltageType, OLESTR("CIM_VoltageSensor")};

}  // namespace

HRESULT CIM_VoltageSensor::EnumerateInstances(IWbemClassObject* classDefinition,
                                              IWbemObjectSink* sink) {
  return EnumerateThresholdSensors(kClass, classDefinition, sink);
}

HRESULT CIM_VoltageSensor::GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                                       IWbemObjectSink* sink) {
  return GetThresholdSensor(kClass, classDefinition, keys, sink);
}

}  // namespace tqcim
