#include "classes/device_names.h"
#include "classes/inventory/handlers.h"
#include "core/instance.h"
#include "core/property_names.h"
#include "core/results.h"
#include "core/store_access.h"
#include "platform/layouts/network_adapter.h"

namespace tqcim {
namespace {

namespace adapter = layout::network_adapter;

/// `NParEPEnable` of an adapter without partition end-point information.
constexpr int32_t kNoPartition = 2;

/// An absent text leaves the property unset.
void PutPresent(Instance& instance, const OLECHAR* name, const DataObject& object,
                const layout::Utf8Field& field) {
  if (const Utf8Text text = object[field]) instance.Put(name, Variant::Text(text.get()));
}

/// The field's own value stands in the boolean.
void PutRawBool(Instance& instance, const OLECHAR* name, uint16_t value) {
  instance.Put(name, Variant::Bool(static_cast<VARIANT_BOOL>(value)));
}

/// Whether the instrumentation's INI files hide the IP configuration. The second file overrides the
/// first, and both are read again for every adapter.
bool IsIpHidden() {
  constexpr uint32_t kNumber16 = 4;
  constexpr uint32_t kFlag = 1;
  uint16_t disabled = 0;
  for (const char* file : {"tqisst64.ini", "tqisdy64.ini"}) {
    uint32_t size = sizeof disabled;
    SMReadINIFileValue("Network Information", "nicipinfo.cimsnmp.disabled", kNumber16, &disabled,
                       &size, &disabled, sizeof disabled, file, kFlag);
  }
  return disabled != 0;
}

void PutOffload(Instance& instance, const DataObject& object) {
  instance.Put(OLESTR("NicCapabilities"), Variant::Int32(object[adapter::kCapabilities]));
  instance.Put(OLESTR("NicTOECapability"), Variant::Int32(object[adapter::kToeCapability]));
  instance.Put(OLESTR("NicRDMACapability"), Variant::Int32(object[adapter::kRdmaCapability]));
  instance.Put(OLESTR("NiciSCSICapability"), Variant::Int32(object[adapter::kIscsiCapability]));
  PutRawBool(instance, OLESTR("IsTOEEnable"), object[adapter::kToeEnabled]);
  PutRawBool(instance, OLESTR("IsRDMAEnable"), object[adapter::kRdmaEnabled]);
  PutRawBool(instance, OLESTR("IsiSCSIEnable"), object[adapter::kIscsiEnabled]);
  const int32_t partition =
      object[adapter::kPartitionPresent] != 0 ? object[adapter::kPartitionEnabled] : kNoPartition;
  instance.Put(OLESTR("NParEPEnable"), Variant::Int32(partition));
}

void PutAdapterProperties(Instance& instance, const DataObject& object) {
  // The class's name in another case: clients match on this text.
  PutDeviceNames(instance, OLESTR("Vorn_NetworkPort"));
  PutPresent(instance, property::kDeviceId, object, adapter::kPermanentMacAddress);
  instance.Put(property::kStatus, Variant::Text(StatusToText(object.Status())));
  PutPresent(instance, OLESTR("CurrentMacAddress"), object, adapter::kCurrentMacAddress);
  PutPresent(instance, OLESTR("PermanentAddress"), object, adapter::kPermanentMacAddress);
  PutOffload(instance, object);
  instance.Put(OLESTR("NicStatus"), Variant::Int32(object[adapter::kAdapterStatus]));
  instance.Put(OLESTR("BusNumber"), Variant::Int32(object[adapter::kPciBus]));
  instance.Put(OLESTR("DeviceNumber"), Variant::Int32(object[adapter::kPciDevice]));
  instance.Put(OLESTR("FunctionNumber"), Variant::Int32(object[adapter::kPciFunction]));
  PutPresent(instance, OLESTR("DriverVersion"), object, adapter::kDriverVersion);
  if (!IsIpHidden()) {
    PutPresent(instance, OLESTR("IPAddress"), object, adapter::kIpAddress);
    PutPresent(instance, OLESTR("SubnetMask"), object, adapter::kSubnetMask);
    PutPresent(instance, OLESTR("DHCPServer"), object, adapter::kDhcpServer);
    PutPresent(instance, OLESTR("DefaultGateway"), object, adapter::kDefaultGateway);
  }
  PutPresent(instance, OLESTR("OSAdapterDescription"), object, adapter::kOsDescription);
  PutPresent(instance, OLESTR("OSAdapterVendor"), object, adapter::kOsVendor);
  PutPresent(instance, OLESTR("OSAdapterProductName"), object, adapter::kOsProductName);
  PutPresent(instance, OLESTR("ServiceName"), object, adapter::kServiceName);
}

}  // namespace

/// Returns the result of the last release, not of the last delivery, and keeps it where a spawn
/// fails.
HRESULT VORN_NetworkPort::EnumerateInstances(IWbemClassObject* classDefinition,
                                             IWbemObjectSink* sink) {
  HRESULT lastRelease = S_OK;
  for (uint32_t position = 0; position < kPositionLimit; ++position) {
    const DataObject object = GetChildObjectOfOid2(static_cast<uint16_t>(position), adapter::kType);
    if (!object) break;
    Instance instance(classDefinition);
    if (!instance) break;
    PutAdapterProperties(instance, object);
    instance.Indicate(sink);
    lastRelease = instance.Release();
  }
  return lastRelease;
}

/// Adapters are only enumerated.
HRESULT VORN_NetworkPort::GetInstance(IWbemClassObject*, IWbemPathKeyList*, IWbemObjectSink*) {
  return kNotFound;
}

}  // namespace tqcim
