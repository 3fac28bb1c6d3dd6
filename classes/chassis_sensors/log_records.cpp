#include "classes/chassis_sensors/log_records.h"

#include "core/cim_datetime.h"
#include "core/property_names.h"
#include "platform/layouts/event_log.h"

namespace tqcim {
namespace {

namespace record_layout = layout::event_record;

SupportText EventTime(int64_t secondsSince1970) {
  constexpr int64_t kNone = 0;
  return secondsSince1970 == kNone ? SupportText() : FormatLocalDateTime(secondsSince1970);
}

}  // namespace

DataObject FindLog(uint32_t kind) {
  for (uint32_t position = 0; position < kPositionLimit; ++position) {
    DataObject log =
        GetChildObjectOfOid2(static_cast<uint16_t>(position), layout::event_log::kType);
    if (!log || log[layout::event_log::kKind] == kind) return log;
  }
  return {};
}

void PutRecordProperties(Instance& instance, const EventRecord& record, uint32_t number) {
  if (const SupportText time = EventTime(record[record_layout::kTime])) {
    instance.PutDateTime(OLESTR("EventTime"), time.get());
  }
  instance.Put(OLESTR("RecordNumber"), Variant::Int32(number));
  instance.Put(OLESTR("LogRecord"), Variant::Text(record[record_layout::kText]));
  instance.Put(property::kStatus, Variant::Text(StatusToText(record[record_layout::kSeverity])));
}

HRESULT DeliverRecord(const DataObject& log, uint32_t number, HRESULT status,
                      IWbemClassObject* classDefinition, IWbemObjectSink* sink) {
  const EventRecord record = ReadEventRecord(log, number);
  if (!record) return status;
  Instance instance(classDefinition);
  if (!instance) return instance.SpawnStatus();
  PutRecordProperties(instance, record, number);
  return instance.Indicate(sink);
}

}  // namespace tqcim
