#include "classes/inventory/handlers.h"
#include "core/instance.h"
#include "core/results.h"
#include "core/store_access.h"
#include "platform/layouts/management_devices.h"

namespace tqcim {
namespace {

namespace device = layout::services_device;

/// Returns the result of the instance's release, not of its delivery.
HRESULT DeliverDevice(const DataObject& object, Instance& instance, IWbemObjectSink* sink) {
  instance.Put(OLESTR("deviceType"), Variant::Uint8(object[device::kDeviceType]));
  instance.Put(OLESTR("storagePresent"), Variant::Bool(object[device::kStoragePresent]));
  instance.Put(OLESTR("deviceSize"), Variant::Int32(object[device::kDeviceSize]));
  instance.Indicate(sink);
  return instance.Release();
}

}  // namespace

HRESULT Vorn_ManagedSystemServicesDevice::EnumerateInstances(IWbemClassObject* classDefinition,
                                                             IWbemObjectSink* sink) {
  const FirstChild first(layout::system::kMainChassisOid, device::kType);
  if (!first.object) return S_OK;
  Instance instance(classDefinition);
  // Unlike the single request, the enumeration has no word of a failed spawn.
  if (!instance) return S_OK;
  return DeliverDevice(first.object, instance, sink);
}

HRESULT Vorn_ManagedSystemServicesDevice::GetInstance(IWbemClassObject* classDefinition,
                                                      IWbemPathKeyList*, IWbemObjectSink* sink) {
  const DataObject object = GetChildObjectOfOid2(0, device::kType);
  if (!object) return kNotFound;
  Instance instance(classDefinition);
  if (!instance) return instance.SpawnStatus();
  return DeliverDevice(object, instance, sink);
}

}  // namespace tqcim
