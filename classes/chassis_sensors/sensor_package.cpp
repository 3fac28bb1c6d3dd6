#include "classes/chassis_sensors/sensor_package.h"

#include "classes/associations.h"
#include "core/store_access.h"
#include "platform/layouts/chassis.h"

namespace tqcim {

HRESULT EnumerateSensorPackage(const SensorPackageClass& packageClass,
                               IWbemClassObject* classDefinition, IWbemObjectSink* sink) {
  const PathComputerName computerName;
  const OidList chassis = ListChildren(layout::system::kRootOid, layout::chassis::kType);
  HRESULT lastRelease = S_OK;
  uint32_t i = 0;
  for (uint32_t k = 0; k < chassis.size(); ++k) {
    const auto chassisPath = ChassisPath(chassis[k]);
    if (!chassisPath) continue;
    const OidList sensors = ListChildren(chassis[k], packageClass.objectType);
    for (; i < sensors.size() && i < kPositionLimit; ++i) {
      Instance instance(classDefinition);
      if (!instance) return lastRelease;
      const ObjectPath sensor = FormatObjectPath(
          packageClass.sensorPathFormat, {computerName.text(), static_cast<int32_t>(k * 100 + i)});
      PutEnds(instance, chassisPath->View(), sensor.View());
      instance.Indicate(sink);
      lastRelease = instance.Release();
    }
  }
  return lastRelease;
}

}  // namespace tqcim
