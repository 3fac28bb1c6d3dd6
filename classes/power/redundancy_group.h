/// Redundancy groups: what the group classes and their associations share.
#pragma once

#include "core/base_class.h"
#include "core/object_path.h"
#include "core/store_access.h"

namespace tqcim {

/// One of the two group classes.
struct RedundancyGroupClass {
  uint16_t memberType;
  const OLECHAR* className;
};

/// The reference to a group of power supplies: its name with the chassis's position behind it,
/// which the group's own instance does not carry. Clients know both.
ObjectPath RedundancyGroupPath(const DataObject& object, uint32_t chassisPosition);

/// Delivers the groups with members of the class's type, once for every chassis: groups belong to
/// no chassis of their own. The result is that of the last delivery.
HRESULT EnumerateRedundancyGroups(const RedundancyGroupClass& groupClass,
                                  IWbemClassObject* classDefinition, IWbemObjectSink* sink);

/// Delivers the first group of the name that the `Name` key holds, members or not.
HRESULT GetRedundancyGroup(const RedundancyGroupClass& groupClass,
                           IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                           IWbemObjectSink* sink);

}  // namespace tqcim
