/// The records of the event logs, as both log classes publish them.
#pragma once

#include "core/event_record.h"
#include "core/instance.h"

namespace tqcim {

/// The first log of a kind below OID 2, or nothing.
DataObject FindLog(uint32_t kind);

/// Puts time, number, text and status of a record. A record without a time that the platform can
/// tell gets no time.
void PutRecordProperties(Instance& instance, const EventRecord& record, uint32_t number);

/// Delivers one record of a log; `status` where there is no such record.
HRESULT DeliverRecord(const DataObject& log, uint32_t number, HRESULT status,
                      IWbemClassObject* classDefinition, IWbemObjectSink* sink);

}  // namespace tqcim
