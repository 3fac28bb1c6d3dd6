#include "classes/chassis_sensors/handlers.h"
#include "classes/chassis_sensors/log_records.h"
#include "core/path_keys.h"
#include "core/results.h"
#include "platform/layouts/event_log.h"

namespace tqcim {

/// Reads until there is no further record: this log has no count to ask for.
HRESULT VORN_PostLog::EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) {
  const DataObject log = FindLog(layout::event_log::kPostKind);
  HRESULT lastIndicate = S_OK;
  for (uint32_t i = 0; log && i < kPositionLimit && SUCCEEDED(lastIndicate); ++i) {
    const EventRecord record = ReadEventRecord(log, i);
    if (!record) break;
    Instance instance(classDefinition);
    if (!instance) break;
    PutRecordProperties(instance, record, i);
    lastIndicate = instance.Indicate(sink);
  }
  return lastIndicate;
}

HRESULT VORN_PostLog::GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                                  IWbemObjectSink* sink) {
  const PathKey key = FindKey(keys, OLESTR("RecordNumber"));
  if (!key.found) return key.status;
  const DataObject log = FindLog(layout::event_log::kPostKind);
  if (!log) return kNotFound;
  return DeliverRecord(log, static_cast<uint16_t>(NumberOf(key.value)), key.status, classDefinition,
                       sink);
}

}  // namespace tqcim
