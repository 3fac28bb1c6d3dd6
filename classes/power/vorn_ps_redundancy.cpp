#include "classes/associations.h"
#include "classes/power/handlers.h"
#include "classes/power/power_consumption_sensor.h"
#include "classes/power/redundancy_group.h"
#include "core/results.h"
#include "platform/layouts/chassis.h"
#include "platform/layouts/power.h"

namespace tqcim {

/// Neither position is set back: every supply is paired with the first group on the first chassis,
/// and later groups and chassis yield nothing. Clients read one membership per supply from it.
HRESULT Vorn_PSRedundancy::EnumerateInstances(IWbemClassObject* classDefinition,
                                              IWbemObjectSink* sink) {
  namespace supply = layout::power_supply;
  const PathComputerName computerName;
  const OidList chassis = ListChildren(layout::system::kRootOid, layout::chassis::kType);
  HRESULT lastRelease = S_OK;
  uint32_t groupPosition = 0;
  uint32_t supplyPosition = 0;
  for (uint32_t c = 0; c < chassis.size(); ++c) {
    for (; groupPosition < kPositionLimit; ++groupPosition) {
      const DataObject group = GetChildObjectOfOid2(static_cast<uint16_t>(groupPosition),
                                                    layout::redundancy_group::kType);
      if (!group) break;
      for (; supplyPosition < kPositionLimit; ++supplyPosition) {
        const DataObject object =
            GetChildObjectOfOid2(static_cast<uint16_t>(supplyPosition), supply::kType);
        if (!object) break;
        if (object[supply::kKind] == supply::kRegulatorKind) continue;
        const ObjectPath groupPath = RedundancyGroupPath(group, c);
        const ObjectPath supplyPath = AssociatedSupplyPath(computerName, object[supply::kName]);
        Instance instance(classDefinition);
        if (!instance) return lastRelease;
        PutEnds(instance, supplyPath.View(), groupPath.View());
        instance.Indicate(sink);
        lastRelease = instance.Release();
      }
    }
  }
  return lastRelease;
}

HRESULT Vorn_PSRedundancy::GetInstance(IWbemClassObject*, IWbemPathKeyList*, IWbemObjectSink*) {
  return kNotFound;
}

}  // namespace tqcim
