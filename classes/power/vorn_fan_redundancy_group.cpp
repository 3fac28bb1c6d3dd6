#include "classes/power/handlers.h"
#include "classes/power/redundancy_group.h"
#include "platform/layouts/probes.h"

namespace tqcim {
namespace {

constexpr RedundancyGroupClass kClass{layout::probe::kFanType, OLESTR("VORN_FanRedundancyGroup")};

}  // namespace

HRESULT VORN_FanRedundancyGroup::EnumerateInstances(IWbemClassObject* classDefinition,
                                                    IWbemObjectSink* sink) {
  return EnumerateRedundancyGroups(kClass, classDefinition, sink);
}

HRESULT VORN_FanRedundancyGroup::GetInstance(IWbemClassObject* classDefinition,
                                             IWbemPathKeyList* keys, IWbemObjectSink* sink) {
  return GetRedundancyGroup(kClass, classDefinition, keys, sink);
}

}  // namespace tqcim
