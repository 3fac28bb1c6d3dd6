#include "classes/chassis_sensors/handlers.h"
#include "classes/chassis_sensors/sensor_package.h"
#include "core/results.h"
#include "platform/layouts/probes.h"

namespace tqcim {
namespace {

/// Fans are numbered here as probes are, which is CIM_Fan's own numbering on the first chassis
/// only.
constexpr SensorPackageClass kClass{
    layout::probe::kFanType,
    OLESTR("\\\\.\\root\\cimv2\\vorn:CIM_Fan.CreationClassName=\"CIM_Fan\","
           "SystemName=\"%s\",DeviceID=\"%d\",SystemCreationClassName=\"CIM_ComputerSystem\"")};

}  // namespace

HRESULT CIM_PackageFanSensor::EnumerateInstances(IWbemClassObject* classDefinition,
                                                 IWbemObjectSink* sink) {
  return EnumerateSensorPackage(kClass, classDefinition, sink);
}

HRESULT CIM_PackageFanSensor::GetInstance(IWbemClassObject*, IWbemPathKeyList*, IWbemObjectSink*) {
  return kNotFound;
}

}  // namespace tqcim
