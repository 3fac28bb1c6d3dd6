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

/// The custom profiles below a profile, in the order in which they are read.
struct CustomProfiles {
  const DataObject& memory;
  const DataObject& fans;
  const DataObject& processor;
};

void PutProfileProperties(Instance& instance, const DataObject& object,
                          const CustomProfiles& profiles) {
  instance.Put(OLESTR("chassisIndex"), Variant::Uint8(0));
  instance.Put(OLESTR("supportedProfile"), Variant::Int32(object[profile::kSupportedProfiles]));
  instance.Put(OLESTR("profileSetting"), Variant::Int32(object[profile::kSetting]));
  PutCustomProfile(instance, profiles.processor, OLESTR("customCPUCaps"),
                   OLESTR("customCPUSettings"));
  PutCustomProfile(instance, profiles.memory, OLESTR("customMemCaps"), OLESTR("customMemSettings"));
  PutCustomProfile(instance, profiles.fans, OLESTR("customFanCaps"), OLESTR("customFanSettings"));
}

}  // namespace

/// A success in every case. Nothing goes back to the library before the instance is delivered.
HRESULT Vorn_PowerProfileData::EnumerateInstances(IWbemClassObject* classDefinition,
                                                  IWbemObjectSink* sink) {
  const FirstChild first(layout::system::kMainChassisOid, profile::kType);
  const DataObject& object = first.object;
  if (!object) return S_OK;
  Instance instance(classDefinition);
  if (!instance) return S_OK;
  const FirstChild memory(object.Oid(), custom::kMemoryType);
  const FirstChild fans(object.Oid(), custom::kFanType);
  const FirstChild processor(object.Oid(), custom::kProcessorType);
  PutProfileProperties(instance, object, {memory.object, fans.object, processor.object});
  instance.Indicate(sink);
  instance.Release();
  return S_OK;
}

/// Whatever the keys say: there is one profile. Unlike the enumeration it reads all of it first.
HRESULT Vorn_PowerProfileData::GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList*,
                                           IWbemObjectSink* sink) {
  const DataObject object = GetChildObjectOfOid2(0, profile::kType);
  if (!object) return kNotFound;
  const uint32_t oid = object.Oid();
  const DataObject memory = GetChildObject(oid, custom::kMemoryType, 0);
  const DataObject fans = GetChildObject(oid, custom::kFanType, 0);
  const DataObject processor = GetChildObject(oid, custom::kProcessorType, 0);
  Instance instance(classDefinition);
  if (!instance) return instance.SpawnStatus();
  PutProfileProperties(instance, object, {memory, fans, processor});
  instance.Indicate(sink);
  return S_OK;
}

}  // namespace tqcim
