/// Records of the event library.
#pragma once

#include "core/store_access.h"

namespace tqcim {

struct EventRecordDeleter {
  void operator()(void* record) const { XEPFreeGeneric(record); }
};

/// A record of a log, or nothing.
using EventRecord = Block<EventRecordDeleter>;

/// Record `index` (from 0) of a log; nothing past its end.
inline EventRecord ReadEventRecord(const DataObject& log, uint32_t index) {
  return EventRecord(XEPGetEELR(log.OidInPlace(), index));
}

/// The number of records of a log: the library's low 16 bits.
inline uint16_t CountEventRecords(const DataObject& log) {
  return static_cast<uint16_t>(XEPGetEELRNum(log.OidInPlace()));
}

}  // namespace tqcim
