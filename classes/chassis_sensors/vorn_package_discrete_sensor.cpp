#include "classes/associations.h"
#include "classes/chassis_sensors/discrete_sensor.h"
#include "classes/chassis_sensors/handlers.h"
#include "core/results.h"
#include "platform/layouts/chassis.h"
#include "platform/layouts/probes.h"

namespace tqcim {
namespace {

namespace probe = layout::probe;

constexpr PathFormat kSensorPath = OLESTR(
    "\\\\.\\root\\cimv2\\vorn:CIM_DiscreteSensor.CreationClassName=\"CIM_DiscreteSensor\","
    "SystemName=\"%s\",DeviceID=\"%d\",SystemCreationClassName=\"CIM_ComputerSystem\"");

/// Batteries are left out.
constexpr uint16_t kWalkedTypes[] = {probe::kVoltageType, probe::kTemperatureType, probe::kFanType,
                                     probe::kCurrentType, layout::processor_sensor::kType};

/// The walk over the first type runs to the end of the chassis and leaves nothing for the other
/// types: clients see the discrete voltage probes of this chassis and of every later one, each
/// paired with this chassis.
void PairWithChassis(const ObjectPath& chassisPath, uint32_t chassisPosition,
                     const PathComputerName& computerName, IWbemClassObject* classDefinition,
                     IWbemObjectSink* sink) {
  uint32_t outer = chassisPosition;
  for (const uint16_t type : kWalkedTypes) {
    for (uint32_t inner = 0;; ++inner) {
      const DataObject object = GetObjectByCursor(outer, inner, type);
      if (!object) break;
      if (!IsDiscreteSensor(object, type)) continue;
      const ObjectPath sensor =
          FormatObjectPath(kSensorPath, {computerName.text(), static_cast<int32_t>(object.Oid())});
      Instance instance(classDefinition);
      if (!instance) return;
      PutEnds(instance, chassisPath.View(), sensor.View());
      instance.Indicate(sink);
    }
  }
}

}  // namespace

/// A chassis without a list of temperature probes is left out, whatever else it has.
HRESULT VORN_PackageDiscreteSensor::EnumerateInstances(IWbemClassObject* classDefinition,
                                                       IWbemObjectSink* sink) {
  const PathComputerName computerName;
  const OidList chassis = ListChildren(layout::system::kRootOid, layout::chassis::kType);
  for (uint32_t k = 0; k < chassis.size(); ++k) {
    const auto chassisPath = ChassisPath(chassis[k]);
    if (chassisPath && ListChildren(chassis[k], probe::kTemperatureType)) {
      PairWithChassis(*chassisPath, k, computerName, classDefinition, sink);
    }
  }
  return S_OK;
}

HRESULT VORN_PackageDiscreteSensor::GetInstance(IWbemClassObject*, IWbemPathKeyList*,
                                                IWbemObjectSink*) {
  return kNotFound;
}

}  // namespace tqcim
