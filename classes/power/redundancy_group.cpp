#include "classes/power/redundancy_group.h"

#include "core/instance.h"
#include "core/path_keys.h"
#include "core/property_names.h"
#include "core/text.h"
#include "platform/layouts/chassis.h"
#include "platform/layouts/power.h"

namespace tqcim {
namespace {

namespace group = layout::redundancy_group;

/// CIM's `RedundancyStatus` of the store's state.
int32_t RedundancyStatusOf(uint8_t state) {
  switch (state) {
    case 1:
      return 0;
    case 4:
      return 2;
    case 5:
      return 3;
    case 6:
      return 4;
    default:
      return 1;
  }
}

HRESULT DeliverGroup(const RedundancyGroupClass& groupClass, const DataObject& object,
                     Instance& instance, IWbemObjectSink* sink) {
  instance.Put(OLESTR("MinNumberNeeded"), Variant::Int32(object[group::kMinNumberNeeded]));
  instance.Put(OLESTR("RedundancyStatus"),
               Variant::Int32(RedundancyStatusOf(object[group::kState])));
  instance.Put(property::kName, Variant::Text(object[group::kName]));
  instance.Put(property::kCreationClassName, Variant::Text(groupClass.className));
  return instance.Indicate(sink);
}

}  // namespace

ObjectPath RedundancyGroupPath(const DataObject& object, uint32_t chassisPosition) {
  return FormatObjectPath(OLESTR("\\\\.\\root\\cimv2\\vorn:VORN_PSRedundancyGroup."
                                 "CreationClassName=\"VORN_PSRedundancyGroup\",Name=\"%s%d\""),
                          {object[group::kName], static_cast<int32_t>(chassisPosition)});
}

HRESULT EnumerateRedundancyGroups(const RedundancyGroupClass& groupClass,
                                  IWbemClassObject* classDefinition, IWbemObjectSink* sink) {
  const OidList chassis = ListChildren(layout::system::kRootOid, layout::chassis::kType);
  HRESULT lastIndicate = S_OK;
  for (uint32_t c = 0; c < chassis.size(); ++c) {
    for (uint32_t position = 0; position < kPositionLimit; ++position) {
      const DataObject object = GetChildObjectOfOid2(static_cast<uint16_t>(position), group::kType);
      if (!object) break;
      const OidList members = ListChildren(object.Oid(), groupClass.memberType);
      if (members.empty()) continue;
      Instance instance(classDefinition);
      if (!instance) return lastIndicate;
      lastIndicate = DeliverGroup(groupClass, object, instance, sink);
    }
  }
  return lastIndicate;
}

HRESULT GetRedundancyGroup(const RedundancyGroupClass& groupClass,
                           IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                           IWbemObjectSink* sink) {
  const PathKey key = FindTextKey(keys, property::kName, TextKey::kByVariant);
  if (!key.found) return key.status;
  // The library has always been asked for the name, which no property of a group needs.
  [[maybe_unused]] const PathComputerName computerName;
  const OidList chassis = ListChildren(layout::system::kRootOid, layout::chassis::kType);
  for (uint32_t c = 0; c < chassis.size(); ++c) {
    for (uint32_t position = 0; position < kPositionLimit; ++position) {
      const DataObject object = GetChildObjectOfOid2(static_cast<uint16_t>(position), group::kType);
      if (!object) break;
      if (!EqualIgnoringCase(object[group::kName], key.value.text())) continue;
      Instance instance(classDefinition);
      if (!instance) return instance.SpawnStatus();
      return DeliverGroup(groupClass, object, instance, sink);
    }
  }
  return key.status;
}

}  // namespace tqcim
