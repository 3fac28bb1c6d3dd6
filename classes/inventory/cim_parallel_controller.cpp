#include "classes/device_names.h"
#include "classes/inventory/handlers.h"
#include "classes/walks.h"
#include "core/results.h"
#include "platform/layouts/ports.h"

namespace tqcim {
namespace {

namespace port = layout::parallel_port;

/// A parallel port has no `DeviceID`.
void PutPortProperties(Instance& instance, const DataObject& object, uint16_t) {
  instance.Put(property::kCaption, Variant::Text(object[port::kName]));
  instance.Put(OLESTR("Security"), Variant::Int32(object[port::kSecurity]));
  PutDeviceNames(instance, OLESTR("CIM_ParallelController"));
}

}  // namespace

HRESULT CIM_ParallelController::EnumerateInstances(IWbemClassObject* classDefinition,
                                                   IWbemObjectSink* sink) {
  return EnumerateListed(port::kType, classDefinition, sink, PutPortProperties);
}

HRESULT CIM_ParallelController::GetInstance(IWbemClassObject*, IWbemPathKeyList*,
                                            IWbemObjectSink*) {
  return kNotFound;
}

}  // namespace tqcim
