#include "classes/chassis_sensors/handlers.h"
#include "classes/chassis_sensors/sensor_package.h"
#include "core/results.h"
#include "platform/layouts/probes.h"

namespace tqcim {
namespace {

constexpr SensorPackageClass kClass{
    layout::probe::kTemperatureType,
    OLESTR("\\\\.\\root\\cimv2\\vorn:CIM_TemperatureSensor.CreationClassName=\"CIM_"
           "TemperatureSensor\","
           "SystemName=\"%s\",DeviceID=\"%d\",SystemCreationClassName=\"CIM_ComputerSystem\"")};

}  // namespace

HRESULT CIM_PackageTempSensor::EnumerateInstances(IWbemClassObject* classDefinition,
                                                  IWbemObjectSink* sink) {
  return EnumerateSensorPackage(kClass, classDefinition, sink);
}

HRESULT CIM_PackageTempSensor::GetInstance(IWbemClassObject*, IWbemPathKeyList*, IWbemObjectSink*) {
  return kNotFound;
}

}  // namespace tqcim
