/// CIM datetime text.
#pragma once

#include <ctime>

#include "core/store_access.h"

namespace tqcim {

/// The text of a broken-down time: "yyyymmddhhmmss.000000" and the offset of the present local time
/// from UTC in minutes, cut to four characters. Existing consumers parse these very offsets:
/// "+0.0" at UTC, "+60.", "+120", "+330", "-60.", "-300", not CIM's three digits.
/// Null when the support library has no memory or `time` is no date of the years 0 to 9999.
SupportText FormatCimDateTime(const std::tm* time);

/// The same text for a moment, in local time. Null where the platform has no local time for it.
SupportText FormatLocalDateTime(int64_t secondsSince1970);

}  // namespace tqcim
