#include "classes/inventory/firmware_states.h"
#include "classes/inventory/handlers.h"
#include "classes/walks.h"
#include "core/results.h"
#include "platform/layouts/firmware.h"

namespace tqcim {
namespace {

namespace firmware = layout::firmware;

void PutFirmwareProperties(Instance& instance, const DataObject& object, uint16_t) {
  instance.Put(OLESTR("Version"), Variant::Text(object[firmware::kVersion]));
  instance.Put(OLESTR("SoftwareElementID"), Variant::Text(object[firmware::kVersion]));
  instance.Put(OLESTR("SoftwareElementState"), Variant::Int32(kSoftwareElementState));
  instance.Put(property::kName, Variant::Text(object[firmware::kName]));
  instance.Put(OLESTR("TargetOperatingSystem"), Variant::Int32(kOtherOperatingSystem));
  instance.Put(OLESTR("SoftwareElementType"), Variant::Int32(object[firmware::kFirmwareType]));
}

}  // namespace

HRESULT CIM_SoftwareElement::EnumerateInstances(IWbemClassObject* classDefinition,
                                                IWbemObjectSink* sink) {
  return EnumerateListed(firmware::kType, classDefinition, sink, PutFirmwareProperties);
}

/// Firmware is only enumerated.
HRESULT CIM_SoftwareElement::GetInstance(IWbemClassObject*, IWbemPathKeyList*, IWbemObjectSink*) {
  return kNotFound;
}

}  // namespace tqcim
