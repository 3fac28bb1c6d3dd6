#include <utility>

#include "classes/device_names.h"
#include "classes/inventory/handlers.h"
#include "core/cim_datetime.h"
#include "core/instance.h"
#include "core/property_names.h"
#include "core/results.h"
#include "core/store_access.h"
#include "platform/layouts/boards.h"
#include "platform/local_time.h"

namespace tqcim {
namespace {

namespace fru = layout::fru;
namespace identity = layout::fru_identity;

/// An absent text is put as a null string: clients of this class expect the property.
void PutText(Instance& instance, const OLECHAR* name, const DataObject& object,
             const layout::Utf8Field& field) {
  instance.Put(name, Variant::Text(object[field].get()));
}

void PutManufacturingDate(Instance& instance, uint64_t secondsSince1970) {
  if (secondsSince1970 == 0 || !std::in_range<int64_t>(secondsSince1970)) return;
  if (const SupportText date = FormatLocalDateTime(static_cast<int64_t>(secondsSince1970))) {
    instance.PutDateTime(OLESTR("FRUManufacturingDateName"), date.get());
  }
}

void PutOwnIdentity(Instance& instance, const DataObject& object) {
  PutManufacturingDate(instance, object[fru::kManufacturingDate]);
  PutText(instance, OLESTR("FRUManufacturerName"), object, fru::kManufacturer);
  PutText(instance, OLESTR("FRUSerialNumberName"), object, fru::kSerialNumber);
  PutText(instance, OLESTR("FRUPartNumberName"), object, fru::kPartNumber);
}

void PutIdentityOfChild(Instance& instance, const DataObject& parent) {
  const DataObject object = GetChildObject(parent.Oid(), identity::kType, 0);
  if (!object) return;
  PutManufacturingDate(instance, object[identity::kManufacturingDate]);
  PutText(instance, OLESTR("FRUManufacturerName"), object, identity::kManufacturer);
  PutText(instance, OLESTR("FRUSerialNumberName"), object, identity::kSerialNumber);
  PutText(instance, OLESTR("FRUPartNumberName"), object, identity::kPartNumber);
  PutText(instance, OLESTR("FRURevisionName"), object, identity::kRevision);
}

bool IsFru(uint16_t objectType) {
  return objectType == fru::kParentType || objectType == fru::kOwnType ||
         objectType == fru::kOtherOwnType;
}

void PutFruProperties(Instance& instance, const DataObject& object) {
  PutDeviceNames(instance, OLESTR("CIM_FRU"));
  instance.Put(property::kStatus, Variant::Text(StatusToText(object.Status())));
  if (!IsFru(object.Type())) return;
  // One letter short of the English word: clients ask for it by this name.
  instance.Put(OLESTR("FRUInfomationState"), Variant::Int32(object[fru::kInformationState]));
  PutText(instance, OLESTR("FRUDeviceName"), object, fru::kDeviceName);
  PutText(instance, property::kDeviceId, object, fru::kDeviceName);
  if (object.Type() == fru::kParentType) {
    PutIdentityOfChild(instance, object);
  } else {
    PutOwnIdentity(instance, object);
  }
}

}  // namespace

HRESULT CIM_Fru::EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) {
  ReadTimeZone();
  HRESULT lastIndicate = S_OK;
  for (const uint16_t type : {fru::kParentType, fru::kOwnType, fru::kOtherOwnType}) {
    for (uint32_t position = 0; position < kPositionLimit; ++position) {
      const DataObject object = GetChildObjectOfOid2(static_cast<uint16_t>(position), type);
      if (!object) break;
      Instance instance(classDefinition);
      if (!instance) return instance.SpawnStatus();
      PutFruProperties(instance, object);
      lastIndicate = instance.Indicate(sink);
    }
  }
  return lastIndicate;
}

/// Units are only enumerated.
HRESULT CIM_Fru::GetInstance(IWbemClassObject*, IWbemPathKeyList*, IWbemObjectSink*) {
  return kNotFound;
}

}  // namespace tqcim
