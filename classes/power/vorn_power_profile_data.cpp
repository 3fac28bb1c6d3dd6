#include "classes/power/handlers.h"
#include "core/instance.h"
#include "core/results.h"
#include "core/store_access.h"
#include "platform/layouts/power_profile.h"

namespace tqcim {
namespace {

namespace profile = layout::power_profile;
namespace custom = layout::custom_profile;

/// A part of the machine without a custom profile leaves both properties unset.
void PutCustomProfile(Instance& instance, const DataObject& object, const OLECHAR* capabilities,
                      const OLECHAR* setting) {
  if (!object) return;
  instance.Put(capabilities, Variant::Int32(object[custom::kCapabilities]));
  instance.Put(setting, Variant::Int32(object[custom::kSetting]));
}

void PutProfileProperties(Instance& instance, const DataObject& object) {
  const DataObject memory = GetChildObject(object.Oid(), custom::kMemoryType, 0);
  const DataObject fans = GetChildObject(object.Oid(), custom::kFanType, 0);
  const DataObject processor = GetChildObject(object.Oid(), custom::kProcessorType, 0);
  instance.Put(OLESTR("chassisIndex"), Variant::Uint8(0));
  instance.Put(OLESTR("supportedProfile"), Variant::Int32(object[profile::kSupportedProfiles]));
  instance.Put(OLESTR("profileSetting"), Variant::Int32(object[profile::kSetting]));
  PutCustomProfile(instance, processor, OLESTR("customCPUCaps"), OLESTR("customCPUSettings"));
  PutCustomProfile(instance, memory, OLESTR("customMemCaps"), OLESTR("customMemSettings"));
  PutCustomProfile(instance, fans, OLESTR("customFanCaps"), OLESTR("customFanSettings"));
}

}  // namespace

/// A success in every case.
HRESULT Vorn_PowerProfileData::EnumerateInstances(IWbemClassObject* classDefinition,
                                                  IWbemObjectSink* sink) {
  const DataObject object = GetChildObjectOfOid2(0, profile::kType);
  if (!object) return S_OK;
  Instance instance(classDefinition);
  if (!instance) return S_OK;
  PutProfileProperties(instance, object);
  instance.Indicate(sink);
  return S_OK;
}

/// Whatever the keys say: there is one profile.
HRESULT Vorn_PowerProfileData::GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList*,
                                           IWbemObjectSink* sink) {
  const DataObject object = GetChildObjectOfOid2(0, profile::kType);
  if (!object) return kNotFound;
  Instance instance(classDefinition);
  if (!instance) return instance.SpawnStatus();
  PutProfileProperties(instance, object);
  instance.Indicate(sink);
  return S_OK;
}

}  // namespace tqcim
