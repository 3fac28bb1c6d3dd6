/// Event logs. Their records come from the event library.
#pragma once

#include "platform/layout.h"

namespace tqcim::layout {

namespace event_log {
inline constexpr uint16_t kType = 31;

/// 1 = log of the embedded systems management (ESM), 2 = power-on self-test (POST) log.
inline constexpr Field<uint32_t> kKind{"kind", 16};
inline constexpr uint32_t kEsmKind = 1;
inline constexpr uint32_t kPostKind = 2;
inline constexpr Field<uint32_t> kFormatRevision{"formatRevision", 20};
inline constexpr Field<uint32_t> kFormat{"format", 24};

inline constexpr FieldInfo kFields[] = {kKind, kFormatRevision, kFormat};
inline constexpr ObjectLayout kLayout{kType, "eventLog", kFields};
}  // namespace event_log

/// A record of a log. It has no data-object header: offsets count from the start of the record.
namespace event_record {
inline constexpr uint32_t kBodySize = 20;

/// Seconds since 1970-01-01 UTC; 0 = none.
inline constexpr Field<int64_t> kTime{"time", 0};
/// In the coding of object statuses.
inline constexpr Field<uint8_t> kSeverity{"severity", 12};
inline constexpr Ucs2Field kText{"text", 16};
}  // namespace event_record

}  // namespace tqcim::layout
