#include "core/cim_datetime.h"

#include <cstdio>
#include <cstring>

#include "platform/local_time.h"

namespace tqcim {
namespace {

bool Between(int low, int value, int high) {
  return low <= value && value <= high;
}

/// Whether the time has a text of the full width.
bool IsCalendarTime(const std::tm& time) {
  return Between(-1900, time.tm_year, 8099) && Between(0, time.tm_mon, 11) &&
         Between(1, time.tm_mday, 31) && Between(0, time.tm_hour, 23) &&
         Between(0, time.tm_min, 59) && Between(0, time.tm_sec, 60);
}

/// The offset of local time from UTC in minutes, at the present moment. The daylight-saving hour is
/// no part of it: both times are turned back as standard time where the platform does so.
double UtcOffsetMinutes() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  std::tm utc{};
  if (!LocalTime(now, local) || !UtcTime(now, utc)) return 0.0;
  return std::difftime(std::mktime(&local), std::mktime(&utc)) / 60.0;
}

}  // namespace

SupportText FormatCimDateTime(const std::tm* time) {
  constexpr size_t kTextSize = 26;
  if (!IsCalendarTime(*time)) return {};
  SupportText text(static_cast<char*>(SMAllocMem(kTextSize)));
  if (!text) return {};
  ReadTimeZone();
  char date[80];
  std::snprintf(date, sizeof date, "%04d%02d%02d%02d%02d%02d.000000", time->tm_year + 1900,
                time->tm_mon + 1, time->tm_mday, time->tm_hour, time->tm_min, time->tm_sec);
  const double minutes = UtcOffsetMinutes();
  char offset[5] = {};
  std::snprintf(offset, sizeof offset, minutes < 0 ? "%04f" : "+%03f", minutes);
  std::strcpy(text.get(), date);
  std::strcat(text.get(), offset);
  return text;
}

SupportText FormatLocalDateTime(int64_t secondsSince1970) {
  std::tm time{};
  return LocalTime(secondsSince1970, time) ? FormatCimDateTime(&time) : SupportText();
}

}  // namespace tqcim
