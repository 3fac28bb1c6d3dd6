#include "classes/chassis_sensors/handlers.h"
#include "classes/chassis_sensors/sensor_package.h"
#include "core/results.h"
#include "platform/layouts/probes.h"

namespace tqcim {
namespace {

/// The doubled C of the key's value is what clients of this reference know.
constexpr SensorPackageClass kClass{
    layout::probe::kCurrentType,
    OLESTR("\\\\.\\root\\cimv2\\vorn:CIM_CurrentSensor.CreationClassName=\"CCIM_CurrentSensor\","
           "SystemName=\"%s\",DeviceID=\"%d\",SystemCreationClassName=\"CIM_ComputerSystem\"")};

}  // namespace

HRESULT CIM_PackageCurrentSensor::EnumerateInstances(IWbemClassObject* classDefinition,
                                                     IWbemObjectSink* sink) {
  return EnumerateSensorPackage(kClass, classDefinition, sink);
}

HRESULT CIM_PackageCurrentSensor::GetInstance(IWbemClassObject*, IWbemPathKeyList*,
                                              IWbemObjectSink*) {
  return kNotFound;
}

}  // namespace tqcim
