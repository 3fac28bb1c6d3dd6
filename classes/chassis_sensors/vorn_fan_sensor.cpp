#include "classes/associations.h"
#include "classes/chassis_sensors/handlers.h"
#include "core/store_access.h"
#include "platform/layouts/chassis.h"
#include "platform/layouts/probes.h"

namespace tqcim {
namespace {

constexpr PathFormat kTachometerPath = OLESTR(
    "\\\\.\\root\\cimv2\\vorn:CIM_Tachometer.CreationClassName=\"CIM_Tachometer\","
    "SystemName=\"%s\",DeviceID=\"%d\",SystemCreationClassName=\"CIM_ComputerSystem\"");
constexpr PathFormat kFanPath = OLESTR(
    "\\\\.\\root\\cimv2\\vorn:CIM_Fan.CreationClassName=\"CIM_Fan\","
    "SystemName=\"%s\",DeviceID=\"%d\",SystemCreationClassName=\"CIM_ComputerSystem\"");

}  // namespace

/// Pairs fans and tachometers by number, from the counts alone. The number carries over from one
/// chassis to the next, so a later chassis adds only what it has beyond all before it.
HRESULT VORN_FanSensor::EnumerateInstances(IWbemClassObject* classDefinition,
                                           IWbemObjectSink* sink) {
  const PathComputerName computerName;
  const OidList chassis = ListChildren(layout::system::kRootOid, layout::chassis::kType);
  HRESULT lastIndicate = S_OK;
  uint32_t i = 0;
  for (uint32_t k = 0; k < chassis.size(); ++k) {
    const OidList fans = ListChildren(chassis[k], layout::probe::kFanType);
    for (; i < fans.size() && i < kPositionLimit; ++i) {
      Instance instance(classDefinition);
      if (!instance) return lastIndicate;
      const auto number = static_cast<int32_t>(i);
      const ObjectPath tachometer =
          FormatObjectPath(kTachometerPath, {computerName.text(), number});
      const ObjectPath fan = FormatObjectPath(kFanPath, {computerName.text(), number});
      PutEnds(instance, fan.View(), tachometer.View());
      lastIndicate = instance.Indicate(sink);
    }
  }
  return lastIndicate;
}

/// Finds nothing, and calls that a success.
HRESULT VORN_FanSensor::GetInstance(IWbemClassObject*, IWbemPathKeyList*, IWbemObjectSink*) {
  return S_OK;
}

}  // namespace tqcim
