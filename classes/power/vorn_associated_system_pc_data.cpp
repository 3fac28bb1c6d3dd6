#include "classes/associations.h"
#include "classes/power/handlers.h"
#include "classes/power/power_consumption_sensor.h"
#include "core/results.h"
#include "platform/layouts/power_consumption.h"

namespace tqcim {

/// `Antecedent` is the record's bare name, not a reference: clients look records up by it.
HRESULT VORN_AssociatedSystemPCData::EnumerateInstances(IWbemClassObject* classDefinition,
                                                        IWbemObjectSink* sink) {
  namespace record = layout::power_consumption;
  const PathComputerName computerName;
  HRESULT lastRelease = S_OK;
  for (uint32_t position = 0; position < kPositionLimit; ++position) {
    const DataObject object = GetChildObjectOfOid2(static_cast<uint16_t>(position), record::kType);
    if (!object) break;
    Instance instance(classDefinition);
    if (!instance) break;
    PutEnds(instance, SystemPath(computerName).View(), object[record::kName]);
    instance.Indicate(sink);
    lastRelease = instance.Release();
  }
  return lastRelease;
}

HRESULT VORN_AssociatedSystemPCData::GetInstance(IWbemClassObject*, IWbemPathKeyList*,
                                                 IWbemObjectSink*) {
  return kNotFound;
}

}  // namespace tqcim
