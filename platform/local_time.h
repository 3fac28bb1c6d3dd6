/// Broken-down time, safe to ask for from many threads.
#pragma once

#include <cstdint>
#include <ctime>

namespace tqcim {

/// The moment in the time zone of the process, as ReadTimeZone last found it. False, with `time`
/// unspecified, for a moment that the platform can't convert (on Windows before 1970 and after
/// the year 3000).
bool LocalTime(int64_t secondsSince1970, std::tm& time);

/// The moment in UTC, under the same condition.
bool UtcTime(int64_t secondsSince1970, std::tm& time);

/// Seconds from some moment of the past, off the clock that is cheapest to read: it tells whether a
/// second has gone by, not what time it is.
int64_t PassingSeconds();

/// Takes the time zone from the environment variable TZ, or where it is unset from the system.
void ReadTimeZone();

}  // namespace tqcim
