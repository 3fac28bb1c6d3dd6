#include "classes/inventory/handlers.h"
#include "core/computer_name.h"
#include "core/instance.h"
#include "core/property_names.h"
#include "core/store_access.h"
#include "platform/layouts/management_devices.h"

namespace tqcim {
namespace {

namespace port = layout::remote_access_port;
namespace address = layout::remote_access_address;

/// CIM's `InfoFormat`: the access information is an address of the kind coded 3.
constexpr int32_t kInfoFormat = 3;

void PutPortProperties(Instance& instance, const DataObject& object) {
  instance.Put(OLESTR("VersionString"), Variant::Text(object[port::kFirmwareVersion]));
  instance.Put(OLESTR("PortName"), Variant::Text(object[port::kName]));
  instance.Put(OLESTR("InfoFormat"), Variant::Int32(kInfoFormat));
  if (const DataObject access = GetChildObjectOfOid2(0, address::kType)) {
    instance.Put(OLESTR("AccessInfo"), Variant::Text(access[address::kAccessInfo]));
  }
  instance.Put(property::kCreationClassName, Variant::Text(OLESTR("Vorn_RemoteAccessServicePort")));
  instance.Put(property::kSystemCreationClassName, Variant::Text(property::kComputerSystem));
  // The short form, as in `Name` of VORN_System: that of other devices is converted.
  instance.Put(property::kSystemName, Variant::Text(ShortWideName(ComputerName())));
  instance.Put(property::kName, Variant::Text(object[port::kName]));
  instance.Put(OLESTR("AccessInfoIPv4"), Variant::Text(object[port::kIpv4Address]));
  instance.Put(OLESTR("AccessInfoIPv6"), Variant::Text(object[port::kIpv6Address]));
  instance.Put(OLESTR("RemoteAccessType"), Variant::Int32(object[port::kAccessType]));
  instance.Put(OLESTR("BladeFormFactor"), Variant::Int32(object[port::kBladeFormFactor]));
}

}  // namespace

/// A success in every case, whatever the delivery came to.
HRESULT Vorn_RemoteAccessServicePort::EnumerateInstances(IWbemClassObject* classDefinition,
                                                         IWbemObjectSink* sink) {
  GetInstance(classDefinition, nullptr, sink);
  return S_OK;
}

/// Whatever the keys say: there is one port.
HRESULT Vorn_RemoteAccessServicePort::GetInstance(IWbemClassObject* classDefinition,
                                                  IWbemPathKeyList*, IWbemObjectSink* sink) {
  const DataObject object = GetChildObjectOfOid2(0, port::kType);
  if (!object) return S_OK;
  Instance instance(classDefinition);
  if (!instance) return instance.SpawnStatus();
  PutPortProperties(instance, object);
  return instance.Indicate(sink);
}

}  // namespace tqcim
