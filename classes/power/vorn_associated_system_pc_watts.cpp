#include "classes/associations.h"
#include "classes/power/handlers.h"
#include "classes/power/power_consumption_sensor.h"
#include "core/results.h"
#include "platform/layouts/probes.h"

namespace tqcim {

HRESULT VORN_AssociatedSystemPCWatts::EnumerateInstances(IWbemClassObject* classDefinition,
                                                         IWbemObjectSink* sink) {
  namespace probe = layout::probe;
  const PathComputerName computerName;
  const ObjectPath systemPath = SystemPath(computerName);
  HRESULT lastRelease = S_OK;
  uint32_t outer = 0;
  for (uint32_t inner = 0;; ++inner) {
    const DataObject object = GetObjectByCursor(outer, inner, probe::kCurrentType);
    if (!object) return lastRelease;
    if (!IsWattsProbe(object)) continue;
    Instance instance(classDefinition);
    if (!instance) return lastRelease;
    PutEnds(instance, systemPath.View(),
            WattsSensorPath(computerName, object[probe::kName]).View());
    instance.Indicate(sink);
    lastRelease = instance.Release();
  }
}

HRESULT VORN_AssociatedSystemPCWatts::GetInstance(IWbemClassObject*, IWbemPathKeyList*,
                                                  IWbemObjectSink*) {
  return kNotFound;
}

}  // namespace tqcim
