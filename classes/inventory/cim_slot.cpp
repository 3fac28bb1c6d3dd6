#include "classes/inventory/handlers.h"
#include "classes/walks.h"
#include "core/results.h"
#include "platform/layouts/ports.h"

namespace tqcim {
namespace {

namespace slot = layout::slot;

void PutSlotProperties(Instance& instance, const DataObject& object, uint16_t) {
  // Put also where there is no text, as a null string.
  instance.Put(property::kCaption, Variant::Text(object[slot::kName].get()));
  instance.Put(OLESTR("Number"), Variant::Int32(object[slot::kNumber]));
  // A number with its sign, not a truth value: clients see -1 where the store has no answer.
  instance.Put(OLESTR("SupportsHotPlug"), Variant::Int32(object[slot::kHotPlug]));
  instance.Put(property::kCreationClassName, Variant::Text(OLESTR("CIM_Slot")));
  instance.Put(OLESTR("SystemSlotType"), Variant::Int32(object[slot::kSlotType]));
}

}  // namespace

HRESULT CIM_Slot::EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) {
  return EnumerateListed(slot::kType, classDefinition, sink, PutSlotProperties);
}

HRESULT CIM_Slot::GetInstance(IWbemClassObject*, IWbemPathKeyList*, IWbemObjectSink*) {
  return kNotFound;
}

}  // namespace tqcim
