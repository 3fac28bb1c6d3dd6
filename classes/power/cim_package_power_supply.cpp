#include "classes/associations.h"
#include "classes/power/handlers.h"
#include "core/results.h"
#include "core/store_access.h"
#include "platform/layouts/chassis.h"
#include "platform/layouts/power.h"

namespace tqcim {
namespace {

/// Supplies are referred to by number here, while their own instances go by name: clients know
/// both.
constexpr PathFormat kSupplyPath = OLESTR(
    "\\\\.\\root\\cimv2\\vorn:CIM_PowerSupply.CreationClassName=\"CIM_PowerSupply\","
    "SystemName=\"%s\",DeviceID=\"%d\",SystemCreationClassName=\"CIM_ComputerSystem\"");

}  // namespace

/// The counter carries over from one chassis to the next, so a later chassis adds only what it has
/// beyond all before it. The result is that of the last release.
HRESULT CIM_PackagePowerSupply::EnumerateInstances(IWbemClassObject* classDefinition,
                                                   IWbemObjectSink* sink) {
  const PathComputerName computerName;
  const OidList chassis = ListChildren(layout::system::kRootOid, layout::chassis::kType);
  HRESULT lastRelease = S_OK;
  uint32_t counter = 0;
  for (uint32_t c = 0; c < chassis.size(); ++c) {
    const auto chassisPath = ChassisPath(chassis[c]);
    if (!chassisPath) continue;
    const OidList supplies = ListChildren(chassis[c], layout::power_supply::kType);
    for (; counter < supplies.size() && counter < kPositionLimit; ++counter) {
      Instance instance(classDefinition);
      const ObjectPath supplyPath = FormatObjectPath(
          kSupplyPath, {computerName.text(), static_cast<int32_t>(c * 100 + counter)});
      if (!instance) return lastRelease;
      PutEnds(instance, supplyPath.View(), chassisPath->View());
      instance.Indicate(sink);
      lastRelease = instance.Release();
    }
  }
  return lastRelease;
}

HRESULT CIM_PackagePowerSupply::GetInstance(IWbemClassObject*, IWbemPathKeyList*,
                                            IWbemObjectSink*) {
  return kNotFound;
}

}  // namespace tqcim
