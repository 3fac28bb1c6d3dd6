#include "classes/device_names.h"
#include "classes/inventory/handlers.h"
#include "classes/walks.h"
#include "core/results.h"
#include "platform/layouts/ports.h"

namespace tqcim {
namespace {

/// Nothing is read of the object: several devices differ in nothing.
void PutPointingDeviceProperties(Instance& instance, const DataObject&, uint16_t) {
  PutDeviceNames(instance, OLESTR("CIM_PointingDevice"));
}

}  // namespace

HRESULT CIM_PointingDevice::EnumerateInstances(IWbemClassObject* classDefinition,
                                               IWbemObjectSink* sink) {
  return EnumerateListed(layout::pointing_device::kType, classDefinition, sink,
                         PutPointingDeviceProperties);
}

HRESULT CIM_PointingDevice::GetInstance(IWbemClassObject*, IWbemPathKeyList*, IWbemObjectSink*) {
  return kNotFound;
}

}  // namespace tqcim
