#include <string>

#include "classes/inventory/handlers.h"
#include "core/instance.h"
#include "core/property_names.h"
#include "core/results.h"
#include "core/store_access.h"
#include "platform/layouts/firmware.h"

namespace tqcim {
namespace {

namespace agent = layout::management_agent;

HRESULT DeliverAgent(const DataObject& object, IWbemClassObject* classDefinition,
                     IWbemObjectSink* sink) {
  Instance instance(classDefinition);
  if (!instance) return instance.SpawnStatus();
  const std::string identifyingNumber = std::to_string(object[agent::kIdentifyingNumber]);
  instance.Put(OLESTR("Version"), Variant::Text(object[agent::kVersion]));
  instance.Put(OLESTR("AgentVersion"), Variant::Text(object[agent::kAgentVersion]));
  instance.Put(OLESTR("ProductName"), Variant::Text(object[agent::kProductName]));
  instance.Put(property::kName, Variant::Text(object[agent::kProductName]));
  instance.Put(OLESTR("Vendor"), Variant::Text(object[agent::kVendor]));
  instance.Put(OLESTR("IdentifyingNumber"), Variant::Text(identifyingNumber.c_str()));
  instance.Put(OLESTR("SkmaURL"), Variant::Text(object[agent::kUrl]));
  instance.Put(OLESTR("Language"), Variant::Text(object[agent::kLanguage]));
  instance.Put(OLESTR("Description"), Variant::Text(object[agent::kDescription]));
  return instance.Indicate(sink);
}

}  // namespace

HRESULT CIM_SoftwareFeature::EnumerateInstances(IWbemClassObject* classDefinition,
                                                IWbemObjectSink* sink) {
  const DataObject object = GetChildObjectOfOid2(0, agent::kType);
  return object ? DeliverAgent(object, classDefinition, sink) : S_OK;
}

HRESULT CIM_SoftwareFeature::GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList*,
                                         IWbemObjectSink* sink) {
  const DataObject object = GetChildObjectOfOid2(0, agent::kType);
  return object ? DeliverAgent(object, classDefinition, sink) : kNotFound;
}

}  // namespace tqcim
