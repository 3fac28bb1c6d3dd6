#include "classes/power/handlers.h"
#include "classes/power/power_consumption_sensor.h"

namespace tqcim {
namespace {

constexpr PowerConsumptionSensorClass kClass{OLESTR("VORN_PowerConsumptionAmpsSensor"),
                                             IsAmpsProbe};

}  // namespace

HRESULT VORN_PowerConsumptionAmpsSensor::EnumerateInstances(IWbemClassObject* classDefinition,
                                                            IWbemObjectSink* sink) {
  return EnumeratePowerConsumptionSensors(kClass, classDefinition, sink);
}

HRESULT VORN_PowerConsumptionAmpsSensor::GetInstance(IWbemClassObject* classDefinition,
                                                     IWbemPathKeyList* keys,
                                                     IWbemObjectSink* sink) {
  return GetPowerConsumptionSensor(kClass, classDefinition, keys, sink);
}

}  // namespace tqcim
