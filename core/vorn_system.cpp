#include "core/vorn_system.h"

#include "core/computer_name.h"
#include "core/instance.h"
#include "core/property_names.h"
#include "core/results.h"
#include "core/store_access.h"

namespace tqcim {

HRESULT Vorn_System::EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) {
  const DataObject system = ReadObject(layout::system::kRootOid);
  if (!system) return kNotFound;
  Instance instance(classDefinition);
  if (!instance) return instance.SpawnStatus();
  instance.Put(property::kStatus, Variant::Text(StatusToText(system.Status())));
  // The short form, as clients know the system; `SystemName` of its devices is converted.
  instance.Put(property::kName, Variant::Text(ShortWideName(ComputerName())));
  instance.Put(property::kCreationClassName, Variant::Text(OLESTR("VORN_System")));
  return instance.Indicate(sink);
}

/// Whatever the keys say: there is one system.
HRESULT Vorn_System::GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList*,
                                 IWbemObjectSink* sink) {
  return EnumerateInstances(classDefinition, sink);
}

}  // namespace tqcim
