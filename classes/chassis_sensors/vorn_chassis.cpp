#include <utility>

#include "classes/chassis_sensors/chassis_rollups.h"
#include "classes/chassis_sensors/handlers.h"
#include "core/instance.h"
#include "core/path_keys.h"
#include "core/property_names.h"
#include "core/store_access.h"
#include "core/text.h"
#include "platform/layouts/chassis.h"
#include "platform/layouts/event_log.h"
#include "platform/layouts/power.h"
#include "platform/layouts/probes.h"
#include "platform/layouts/processors_memory.h"

namespace tqcim {
namespace {

namespace chassis = layout::chassis;
namespace description = layout::chassis_description;
namespace identity = layout::chassis_identity;
namespace probe = layout::probe;

constexpr const OLECHAR* kTag = OLESTR("Tag");

void PutStatus(Instance& instance, const OLECHAR* name, uint8_t status) {
  instance.Put(name, Variant::Text(StatusToText(status)));
}

void PutRollUps(Instance& instance, uint32_t oid) {
  PutStatus(instance, OLESTR("TempStatus"), WorstStatus(oid, probe::kTemperatureType));
  PutStatus(instance, OLESTR("FanStatus"), WorstStatus(oid, probe::kFanType));
  PutStatus(instance, OLESTR("VoltStatus"), WorstStatus(oid, probe::kVoltageType));
  PutStatus(instance, OLESTR("AmpStatus"), WorstStatus(oid, probe::kCurrentType));
  PutStatus(instance, OLESTR("MemStatus"), WorstStatus(oid, layout::memory_device::kType));
  PutStatus(instance, OLESTR("ProcStatus"), WorstStatus(oid, layout::processor::kType));
  PutStatus(instance, OLESTR("PsStatus"), PowerSupplyStatus(oid));
  PutStatus(instance, OLESTR("VrmStatus"), RegulatorStatus(oid));
  PutStatus(instance, OLESTR("EsmLogStatus"), WorstStatus(oid, layout::event_log::kType));
  instance.Put(OLESTR("MemoryRedStatus"), Variant::Text(MemoryRedundancyText(oid)));
  if (const auto status = RedundancyStatus(oid, layout::power_supply::kType)) {
    PutStatus(instance, OLESTR("PsRedStatus"), *status);
  }
  if (const auto status = RedundancyStatus(oid, probe::kFanType)) {
    PutStatus(instance, OLESTR("FanRedStatus"), *status);
  }
  instance.Put(OLESTR("IsDefThrSupported"), Variant::Bool(1));
  instance.Put(OLESTR("SecurityBreach"), Variant::Int32(SecurityBreach(oid)));
  instance.Put(OLESTR("LogFormat"), Variant::Int32(LogFormat(oid)));
}

void PutDescription(Instance& instance, const DataObject& chassisObject, const DataObject& object) {
  const auto chassisType = static_cast<int32_t>(object[description::kChassisType]);
  instance.Put(OLESTR("ChassisTypes"), Variant::Int32Array({&chassisType, 1}));
  instance.Put(property::kName, Variant::Text(object[description::kName]));
  instance.Put(kTag, Variant::Text(object[description::kName]));
  instance.Put(OLESTR("Model"), Variant::Text(object[description::kModel]));
  PutStatus(instance, property::kStatus, chassisObject.Status());
  if (object[description::kLockPresent] != 0) {
    instance.Put(OLESTR("LockPresent"), Variant::Bool(1));
  }
  instance.Put(OLESTR("SystemClass"), Variant::Int32(object[description::kSystemClass]));
  const uint8_t systemId = object[description::kSystemId];
  instance.Put(OLESTR("SystemID"), Variant::Int32(systemId == description::kExtendedSystemIdMarker
                                                      ? object[description::kExtendedSystemId]
                                                      : systemId));
  instance.Put(OLESTR("ChassisSystemProperties"),
               Variant::Int32(object[description::kSystemProperties]));
  instance.Put(OLESTR("ChassisSystemRevision"),
               Variant::Int32(object[description::kSystemRevision]));
  const bool hasRevisionName = object.TextOffset(description::kRevisionName) != 0;
  instance.Put(OLESTR("ChassisSystemRevisionName"),
               Variant::Text(hasRevisionName ? object[description::kRevisionName] : nullptr));
}

void PutIdentity(Instance& instance, const DataObject& object) {
  instance.Put(OLESTR("AssetTag"), Variant::Text(object[identity::kAssetTag]));
  instance.Put(OLESTR("SerialNumber"), Variant::Text(object[identity::kSerialNumber]));
  instance.Put(OLESTR("ChassisExpressServiceCode"),
               Variant::Text(object[identity::kExpressServiceCode]));
  if (object.TextOffset(identity::kNodeId) != 0) {
    instance.Put(OLESTR("ChassisNodeID"), Variant::Text(object[identity::kNodeId]));
  }
  if (object[identity::kVisibleAlarm] != 0) {
    instance.Put(OLESTR("VisibleAlarm"), Variant::Bool(1));
  }
}

/// Without a description the instance has no `Status` either. The object goes back to the library
/// before the instance is delivered.
void PutChassisProperties(Instance& instance, uint32_t oid, DataObject chassisObject) {
  PutRollUps(instance, oid);
  if (const DataObject object = GetChildObject(oid, description::kType, 0)) {
    PutDescription(instance, chassisObject, object);
  }
  if (const DataObject object = GetChildObject(oid, identity::kType, 0)) {
    PutIdentity(instance, object);
  }
  instance.Put(property::kCreationClassName, Variant::Text(OLESTR("VORN_Chassis")));
}

/// A chassis without a description goes by any tag.
bool HasTag(uint32_t oid, const OLECHAR* tag) {
  const DataObject object = GetChildObject(oid, description::kType, 0);
  return !object || Equal(object[description::kName], tag);
}

}  // namespace

HRESULT VORN_Chassis::EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) {
  const OidList list = ListChildren(layout::system::kRootOid, chassis::kType);
  HRESULT status = S_OK;
  for (uint32_t i = 0; i < list.size() && SUCCEEDED(status); ++i) {
    Instance instance(classDefinition);
    status = instance.SpawnStatus();
    if (!instance) break;
    if (DataObject object = ReadObject(list[i])) {
      PutChassisProperties(instance, list[i], std::move(object));
      status = instance.Indicate(sink);
    }
  }
  return status;
}

/// Every chassis with the wanted tag is delivered, not the first alone.
HRESULT VORN_Chassis::GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                                  IWbemObjectSink* sink) {
  const PathKey key = FindTextKey(keys, kTag, TextKey::kByApparentType);
  if (!key.found) return key.status;
  const OidList list = ListChildren(layout::system::kRootOid, chassis::kType);
  HRESULT status = key.status;
  for (uint32_t i = 0; i < list.size(); ++i) {
    Instance instance(classDefinition);
    status = instance.SpawnStatus();
    if (!instance) break;
    DataObject object = ReadObject(list[i]);
    if (object && HasTag(list[i], key.value.text())) {
      PutChassisProperties(instance, list[i], std::move(object));
      status = instance.Indicate(sink);
    }
  }
  return status;
}

}  // namespace tqcim
