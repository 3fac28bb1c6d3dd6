/// The walks that several classes share, word for word. A class whose walk differs in anything
/// (what stops it, what it returns) writes its own.
#pragma once

#include "core/instance.h"
#include "core/path_keys.h"
#include "core/property_names.h"
#include "core/store_access.h"
#include "core/text.h"

namespace tqcim {

/// Delivers an instance for each object of a type below OID 2, filled by
/// `put(instance, object, position)`. The result is that of the last delivery, or of a spawn that
/// failed.
template <typename PutProperties>
HRESULT EnumerateListed(uint16_t objectType, IWbemClassObject* classDefinition,
                        IWbemObjectSink* sink, PutProperties put) {
  HRESULT lastIndicate = S_OK;
  for (uint32_t position = 0; position < kPositionLimit; ++position) {
    const auto index = static_cast<uint16_t>(position);
    const DataObject object = GetChildObjectOfOid2(index, objectType);
    if (!object) break;
    Instance instance(classDefinition);
    if (!instance) return instance.SpawnStatus();
    put(instance, object, index);
    lastIndicate = instance.Indicate(sink);
  }
  return lastIndicate;
}

/// Delivers an instance for each object of a type below any chassis, filled by
/// `put(instance, object, inner, outer)`. The result is that of the last delivery, or of a spawn
/// that failed.
template <typename PutProperties>
HRESULT EnumerateByCursor(uint16_t objectType, IWbemClassObject* classDefinition,
                          IWbemObjectSink* sink, PutProperties put) {
  HRESULT lastIndicate = S_OK;
  uint32_t outer = 0;
  for (uint32_t inner = 0;; ++inner) {
    const DataObject object = GetObjectByCursor(outer, inner, objectType);
    if (!object) return lastIndicate;
    Instance instance(classDefinition);
    if (!instance) return instance.SpawnStatus();
    put(instance, object, inner, outer);
    lastIndicate = instance.Indicate(sink);
  }
}

/// How a class reads its `DeviceID` key.
struct CursorKey {
  TextKey kind;
  int32_t (*scan)(const OLECHAR* text);
};

/// Delivers the object that the `DeviceID` key finds, filled as above. The whole number counts as
/// position in the first chassis: past its end the walk stops at the first object of the next
/// chassis, so that "105" gives object "100". Clients rely on a look-up that does not fail there.
/// Without a key or an object the result is that of the key's reading.
template <typename PutProperties>
HRESULT GetByCursor(uint16_t objectType, const CursorKey& cursorKey,
                    IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                    IWbemObjectSink* sink, PutProperties put) {
  const PathKey key = FindTextKey(keys, property::kDeviceId, cursorKey.kind);
  if (!key.found) return key.status;
  uint32_t outer = 0;
  uint32_t inner = static_cast<uint16_t>(cursorKey.scan(key.value.text()));
  const DataObject object = GetObjectByCursor(outer, inner, objectType);
  if (!object) return key.status;
  Instance instance(classDefinition);
  if (!instance) return instance.SpawnStatus();
  put(instance, object, inner, outer);
  return instance.Indicate(sink);
}

}  // namespace tqcim
