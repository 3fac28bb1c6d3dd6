/// The records of the event logs, as the object library, which has the store, hands them to the
/// event library. Exports of tqsgen64 beside the object interface.
#pragma once

#include <cstdint>

extern "C" {

/// The number of records of an event log; 0 for any other OID.
uint32_t TQStoreCountLogRecords(uint32_t logOid);

/// Record `index` (from 0) of an event log, freed with SMILFreeGeneric; null past the end.
void* TQStoreCopyLogRecord(uint32_t logOid, uint32_t index);

}  // extern "C"
