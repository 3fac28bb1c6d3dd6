#include "classes/inventory/handlers.h"
#include "core/instance.h"
#include "core/results.h"
#include "core/store_access.h"
#include "platform/layouts/firmware.h"

namespace tqcim {
namespace {

namespace bios = layout::bios;

/// Returns the release of the instance, and 0 for a spawn that failed: neither the delivery's nor
/// the spawn's own result is reported for this class.
HRESULT DeliverExtensions(const DataObject& object, IWbemClassObject* classDefinition,
                          IWbemObjectSink* sink) {
  Instance instance(classDefinition);
  if (!instance) return S_OK;
  instance.PutUint64(OLESTR("systemBIOSCharacteristics"), object[bios::kCharacteristics]);
  instance.Put(OLESTR("systemBIOSCharacteristicsExt1"), Variant::Uint8(object[bios::kExtension1]));
  instance.Put(OLESTR("systemBIOSCharacteristicsExt2"), Variant::Uint8(object[bios::kExtension2]));
  instance.Indicate(sink);
  return instance.Release();
}

}  // namespace

HRESULT Vorn_BIOSExtensions::EnumerateInstances(IWbemClassObject* classDefinition,
                                                IWbemObjectSink* sink) {
  const DataObject object = GetChildObjectOfOid2(0, bios::kType);
  return object ? DeliverExtensions(object, classDefinition, sink) : S_OK;
}

HRESULT Vorn_BIOSExtensions::GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList*,
                                         IWbemObjectSink* sink) {
  const DataObject object = GetChildObjectOfOid2(0, bios::kType);
  return object ? DeliverExtensions(object, classDefinition, sink) : kNotFound;
}

}  // namespace tqcim
