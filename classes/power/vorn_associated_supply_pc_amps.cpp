#include "classes/associations.h"
#include "classes/power/handlers.h"
#include "classes/power/power_consumption_sensor.h"
#include "core/results.h"
#include "platform/layouts/power.h"
#include "platform/layouts/probes.h"

namespace tqcim {
namespace {

namespace probe = layout::probe;
namespace supply = layout::power_supply;

bool Measures(const DataObject& probeObject, const DataObject& supplyObject) {
  return IsAmpsProbe(probeObject) &&
         SMUCS2Strcmp(probeObject[probe::kName], supplyObject[supply::kName]) == 0;
}

}  // namespace

/// The walks over supplies and probes share their position among the chassis. The probes of the
/// first supply take it to the end, so that this supply alone is ever associated; clients count on
/// no more.
HRESULT Vorn_AssociatedSupplyPCAmps::EnumerateInstances(IWbemClassObject* classDefinition,
                                                        IWbemObjectSink* sink) {
  const PathComputerName computerName;
  HRESULT lastRelease = S_OK;
  uint32_t outer = 0;
  uint32_t probeInner = 0;
  for (uint32_t supplyInner = 0;; ++supplyInner) {
    const DataObject supplyObject = GetObjectByCursor(outer, supplyInner, supply::kType);
    if (!supplyObject) return lastRelease;
    for (;; ++probeInner) {
      const DataObject probeObject = GetObjectByCursor(outer, probeInner, probe::kCurrentType);
      if (!probeObject) break;
      if (!Measures(probeObject, supplyObject)) continue;
      const ObjectPath supplyPath = AssociatedSupplyPath(computerName, supplyObject[supply::kName]);
      const ObjectPath sensorPath = AmpsSensorPath(computerName, probeObject[probe::kName]);
      Instance instance(classDefinition);
      if (!instance) return lastRelease;
      PutEnds(instance, supplyPath.View(), sensorPath.View());
      instance.Indicate(sink);
      lastRelease = instance.Release();
    }
  }
}

HRESULT Vorn_AssociatedSupplyPCAmps::GetInstance(IWbemClassObject*, IWbemPathKeyList*,
                                                 IWbemObjectSink*) {
  return kNotFound;
}

}  // namespace tqcim
