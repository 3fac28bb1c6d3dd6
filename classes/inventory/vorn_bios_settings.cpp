#include "classes/inventory/handlers.h"
#include "core/instance.h"
#include "core/store_access.h"
#include "platform/layouts/firmware.h"

namespace tqcim {
namespace {

namespace settings = layout::bios_settings;

constexpr int32_t kNoSettings = 1;

/// `TrustedPlatformModule` of a store that has no settings, or of the state that it holds.
int32_t TrustedPlatformModule(const DataObject& object) {
  if (!object) return kNoSettings;
  switch (object[settings::kTpmState]) {
    case 1:
      return 3;
    case 2:
      return 4;
    default:
      return 0;
  }
}

void PutInstanceId(Instance& instance) {
  instance.Put(OLESTR("VornInstanceID"), Variant::Int32(0));
}

void PutSettings(Instance& instance, const DataObject& object) {
  PutInstanceId(instance);
  instance.Put(OLESTR("TrustedPlatformModule"), Variant::Int32(TrustedPlatformModule(object)));
}

}  // namespace

HRESULT Vorn_BIOSSettings::EnumerateInstances(IWbemClassObject* classDefinition,
                                              IWbemObjectSink* sink) {
  DataObject object = GetChildObjectOfOid2(0, settings::kType);
  Instance instance(classDefinition);
  HRESULT status = instance.SpawnStatus();
  if (instance) {
    PutSettings(instance, object);
    status = instance.Indicate(sink);
  }
  // The settings object is not freed: one block for each enumeration, known and kept as it is.
  object.release();
  return status;
}

HRESULT Vorn_BIOSSettings::GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList*,
                                       IWbemObjectSink* sink) {
  const DataObject object = GetChildObjectOfOid2(0, settings::kType);
  if (!object) return S_OK;
  Instance instance(classDefinition);
  if (!instance) return instance.SpawnStatus();
  PutInstanceId(instance);
  PutSettings(instance, object);
  return instance.Indicate(sink);
}

}  // namespace tqcim
