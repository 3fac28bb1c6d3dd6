#include "classes/device_names.h"
#include "classes/inventory/handlers.h"
#include "classes/walks.h"
#include "core/results.h"
#include "platform/layouts/ports.h"

namespace tqcim {
namespace {

namespace port = layout::serial_port;

void PutPortProperties(Instance& instance, const DataObject& object, uint16_t) {
  instance.Put(property::kCaption, Variant::Text(object[port::kName]));
  PutDeviceNames(instance, OLESTR("CIM_SerialController"));
  instance.Put(property::kDeviceId, Variant::Text(object[port::kName]));
  instance.Put(OLESTR("MaxBaudRate"), Variant::Int32(object[port::kMaxBaudRate]));
  // The place of the name within the object: the value that clients have always read here.
  instance.Put(OLESTR("Security"), Variant::Int32(object.TextOffset(port::kName)));
}

}  // namespace

HRESULT CIM_SerialController::EnumerateInstances(IWbemClassObject* classDefinition,
                                                 IWbemObjectSink* sink) {
  return EnumerateListed(port::kType, classDefinition, sink, PutPortProperties);
}

HRESULT CIM_SerialController::GetInstance(IWbemClassObject*, IWbemPathKeyList*, IWbemObjectSink*) {
  return kNotFound;
}

}  // namespace tqcim
