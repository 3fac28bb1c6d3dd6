#include "classes/chassis_sensors/handlers.h"
#include "classes/chassis_sensors/sensor_package.h"
#include "core/results.h"
#include "platform/layouts/probes.h"

namespace tqcim {
namespace {

constexpr SensorPackageClass kClass{
    layout::probe::kVoltageType,
    OLESTR("\\\\.\\root\\cimv2\\vorn:CIM_VoltageSensor.CreationClassName=\"CIM_VoltageSensor\","
           "SystemName=\"%s\",DeviceID=\"%d\",SystemCreationClassName=\"CIM_ComputerSystem\"")};

}  // namespace

HRESULT CIM_PackageVoltSensor::EnumerateInstances(IWbemClassObject* classDefinition,
                                                  IWbemObjectSink* sink) {
  return EnumerateSensorPackage(kClass, classDefinition, sink);
}

HRESULT CIM_PackageVoltSensor::GetInstance(IWbemClassObject*, IWbemPathKeyList*, IWbemObjectSink*) {
  return kNotFound;
}

}  // namespace tqcim
