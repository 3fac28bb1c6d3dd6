#include "classes/associations.h"
#include "classes/power/handlers.h"
#include "classes/power/redundancy_group.h"
#include "core/results.h"
#include "platform/layouts/chassis.h"
#include "platform/layouts/power.h"

namespace tqcim {

HRESULT VORN_PackagePSRedundancy::EnumerateInstances(IWbemClassObject* classDefinition,
                                                     IWbemObjectSink* sink) {
  const OidList chassis = ListChildren(layout::system::kRootOid, layout::chassis::kType);
  HRESULT lastRelease = S_OK;
  for (uint32_t c = 0; c < chassis.size(); ++c) {
    const auto chassisPath = ChassisPath(chassis[c]);
    if (!chassisPath) continue;
    for (uint32_t position = 0; position < kPositionLimit; ++position) {
      const DataObject group =
          GetChildObjectOfOid2(static_cast<uint16_t>(position), layout::redundancy_group::kType);
      if (!group) break;
      if (ListChildren(group.Oid(), layout::power_supply::kType).empty()) continue;
      const ObjectPath groupPath = RedundancyGroupPath(group, c);
      Instance instance(classDefinition);
      if (!instance) return lastRelease;
      PutEnds(instance, chassisPath->View(), groupPath.View());
      instance.Indicate(sink);
      lastRelease = instance.Release();
    }
  }
  return lastRelease;
}

HRESULT VORN_PackagePSRedundancy::GetInstance(IWbemClassObject*, IWbemPathKeyList*,
                                              IWbemObjectSink*) {
  return kNotFound;
}

}  // namespace tqcim
