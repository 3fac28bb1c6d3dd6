#include "classes/chassis_sensors/handlers.h"
#include "classes/chassis_sensors/log_records.h"
#include "core/path_keys.h"
#include "core/results.h"
#include "platform/layouts/event_log.h"
#include "platform/local_time.h"

namespace tqcim {

/// Goes on, and reports success, when the sink refuses a record: a reader of the log gets what it
/// takes.
HRESULT Vorn_esmlog::EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) {
  ReadTimeZone();
  const DataObject log = FindLog(layout::event_log::kEsmKind);
  if (!log) return S_OK;
  const uint16_t count = CountEventRecords(log);
  for (uint16_t i = 0; i < count; ++i) {
    const EventRecord record = ReadEventRecord(log, i);
    if (!record) break;
    Instance instance(classDefinition);
    if (!instance) return instance.SpawnStatus();
    PutRecordProperties(instance, record, i);
    instance.Indicate(sink);
  }
  return S_OK;
}

/// The first key counts, whatever its name.
HRESULT Vorn_esmlog::GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                                 IWbemObjectSink* sink) {
  ReadTimeZone();
  const PathKey key = FirstKey(keys);
  if (!key.found) return key.status;
  const DataObject log = FindLog(layout::event_log::kEsmKind);
  if (!log) return kNotFound;
  return DeliverRecord(log, static_cast<uint32_t>(NumberOf(key.value)), key.status, classDefinition,
                       sink);
}

}  // namespace tqcim
