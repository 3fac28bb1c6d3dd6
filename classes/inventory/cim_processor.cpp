#include <string>
#include <utility>

#include "classes/device_names.h"
#include "classes/inventory/handlers.h"
#include "core/instance.h"
#include "core/path_keys.h"
#include "core/property_names.h"
#include "core/store_access.h"
#include "core/text.h"
#include "platform/layouts/processors_memory.h"

namespace tqcim {
namespace {

namespace device = layout::processor_device;
namespace processor = layout::processor;

/// CIM's `CPUStatus` of the store's code: other (1) is 7, every other code is one of CIM's, 2
/// higher.
uint32_t CpuStatusOf(uint32_t code) {
  switch (code) {
    case 0:
      return 0;
    case 1:
      return 7;
    default:
      return code - 2;
  }
}

/// Writes the translated `CPUStatus` back into the object, as every reader of it sees it then.
void PutProcessorProperties(Instance& instance, DataObject object) {
  instance.Put(OLESTR("CurrentClockSpeed"), Variant::Int32(object[processor::kCurrentSpeed]));
  instance.Put(OLESTR("MaxClockSpeed"), Variant::Int32(object[processor::kMaxSpeed]));
  object.Write(processor::kCpuStatus, CpuStatusOf(object[processor::kCpuStatus]));
  instance.Put(OLESTR("CPUStatus"), Variant::Int32(object[processor::kCpuStatus]));
  instance.Put(OLESTR("Family"), Variant::Int32(object[processor::kFamily]));
  instance.Put(OLESTR("UpgradeMethod"), Variant::Int32(object[processor::kUpgradeMethod]));
  instance.Put(property::kStatus, Variant::Text(StatusToText(object.Status())));
  instance.Put(OLESTR("CoreCount"), Variant::Int32(object[processor::kCoreCount]));
  instance.Put(OLESTR("CoreEnabledCount"), Variant::Int32(object[processor::kEnabledCoreCount]));
  if (object.TextOffset(processor::kBrand) != 0) {
    instance.Put(OLESTR("Brand"), Variant::Text(object[processor::kBrand]));
  }
  instance.Put(OLESTR("Model"), Variant::Text(object[processor::kModel]));
  if (object.TextOffset(processor::kStepping) != 0) {
    instance.Put(OLESTR("Stepping"), Variant::Text(object[processor::kStepping]));
  }
  instance.Put(OLESTR("ExtendedCharacteristics"),
               Variant::Int32(object[processor::kExtendedCharacteristics]));
  instance.Put(OLESTR("ExtendedStates"), Variant::Int32(object[processor::kExtendedStates]));
}

void PutDeviceProperties(Instance& instance, const DataObject& socket, Variant deviceId) {
  PutDeviceNames(instance, OLESTR("CIM_Processor"));
  instance.Put(property::kDeviceId, std::move(deviceId));
  instance.Put(property::kName, Variant::Text(socket[device::kName]));
}

}  // namespace

HRESULT CIM_Processor::EnumerateInstances(IWbemClassObject* classDefinition,
                                          IWbemObjectSink* sink) {
  const OidList sockets = ListChildren(layout::system::kMainChassisOid, device::kType);
  HRESULT status = S_OK;
  for (uint32_t i = 0; i < sockets.size() && i < kPositionLimit; ++i) {
    const DataObject socket = ReadObject(sockets[i]);
    if (!socket) break;
    Instance instance(classDefinition);
    status = instance.SpawnStatus();
    if (!instance) break;
    if (DataObject object = GetChildObject(sockets[i], processor::kType, 0)) {
      PutProcessorProperties(instance, std::move(object));
    }
    PutDeviceProperties(instance, socket, Variant::Text(std::to_string(i).c_str()));
    status = instance.Indicate(sink);
  }
  return status;
}

HRESULT CIM_Processor::GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                                   IWbemObjectSink* sink) {
  const PathKey key =
      FindTextKey(keys, property::kDeviceId, TextKey::kByVariant, UnreadableKey::kEndsTheSearch);
  if (!key.value.text()) return key.status;
  const auto i = static_cast<uint32_t>(ScanAsNarrow(key.value.text()));
  const OidList sockets = ListChildren(layout::system::kMainChassisOid, device::kType);
  if (i >= sockets.size()) return S_OK;
  const DataObject socket = ReadObject(sockets[i]);
  if (!socket) return S_OK;
  // An empty socket is enumerated but not found by its key.
  DataObject object = GetChildObject(sockets[i], processor::kType, 0);
  if (!object) return S_OK;
  Instance instance(classDefinition);
  if (!instance) return instance.SpawnStatus();
  PutProcessorProperties(instance, std::move(object));
  // The key goes back as the client wrote it: "01" stays "01".
  PutDeviceProperties(instance, socket, Variant::Text(key.value.text()));
  return instance.Indicate(sink);
}

}  // namespace tqcim
