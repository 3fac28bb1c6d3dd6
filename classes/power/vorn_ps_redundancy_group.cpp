#include "classes/power/handlers.h"
#include "classes/power/redundancy_group.h"
#include "platform/layouts/power.h"

namespace tqcim {
namespace {

constexpr RedundancyGroupClass kClass{layout::power_supply::kType,
                                      OLESTR("VORN_PSRedundancyGroup")};

}  // namespace

HRESULT VORN_PSRedundancyGroup::EnumerateInstances(IWbemClassObject* classDefinition,
                                                   IWbemObjectSink* sink) {
  return EnumerateRedundancyGroups(kClass, classDefinition, sink);
}

HRESULT VORN_PSRedundancyGroup::GetInstance(IWbemClassObject* classDefinition,
                                            IWbemPathKeyList* keys, IWbemObjectSink* sink) {
  return GetRedundancyGroup(kClass, classDefinition, keys, sink);
}

}  // namespace tqcim
