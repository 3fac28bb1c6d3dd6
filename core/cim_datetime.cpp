#include "core/cim_datetime.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <charconv>
#include <cstdint>
#include <cstdlib>
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

/// The offset of local time from UTC in minutes, at a moment. The daylight-saving hour is no part
/// of it: both times are turned back as standard time where the platform does so.
double UtcOffsetMinutes(std::time_t now) {
  std::tm local{};
  std::tm utc{};
  if (!LocalTime(now, local) || !UtcTime(now, utc)) return 0.0;
  return std::difftime(std::mktime(&local), std::mktime(&utc)) / 60.0;
}

/// The offset as the dates have it: at most four characters, the number cut where they end. The
/// fifth is the terminator.
using OffsetText = std::array<char, 5>;

OffsetText OffsetTextAt(std::time_t now) {
  OffsetText text{};
  const double minutes = UtcOffsetMinutes(now);
  // Whatever the locale of the host has for a decimal point.
  std::array<char, 32> number{};
  char* const begin = number.data() + (minutes < 0 ? 0 : 1);
  number[0] = '+';
  std::to_chars(begin, number.data() + number.size(), minutes, std::chars_format::fixed, 6);
  std::copy_n(number.begin(), text.size() - 1, text.begin());
  return text;
}

/// Tells one second and time zone from another. Never 0.
uint32_t MomentTag(int64_t second) {
  // FNV-1a, with the second in one step.
  uint64_t hash = 0xCBF29CE484222325;
  const auto add = [&](uint64_t value) { hash = (hash ^ value) * 0x100000001B3; };
  add(static_cast<uint64_t>(second));
  if (const char* zone = std::getenv("TZ")) {
    while (*zone) add(static_cast<unsigned char>(*zone++));
  }
  return static_cast<uint32_t>(hash >> 32) | 1;
}

/// The offset of the present moment. To ask the platform costs more than all else of an instance,
/// so that the last answer serves for the rest of its second: a log has thousands of dates.
OffsetText CurrentOffsetText() {
  // The tag above, the four characters below.
  static constinit std::atomic<uint64_t> last{0};
  const uint32_t tag = MomentTag(PassingSeconds());
  OffsetText text{};
  const uint64_t known = last.load(std::memory_order_relaxed);
  if (known >> 32 == tag) {
    std::memcpy(text.data(), &known, 4);
    return text;
  }
  ReadTimeZone();
  text = OffsetTextAt(std::time(nullptr));
  uint64_t answer = 0;
  std::memcpy(&answer, text.data(), 4);
  last.store(uint64_t{tag} << 32 | answer, std::memory_order_relaxed);
  return text;
}

/// Writes a number that is not negative at its full width. The end of what was written.
char* PutDecimal(char* text, int number, int width) {
  for (int i = width - 1; i >= 0; --i, number /= 10) text[i] = static_cast<char>('0' + number % 10);
  return text + width;
}

}  // namespace

SupportText FormatCimDateTime(const std::tm* time) {
  constexpr size_t kTextSize = 26;
  if (!IsCalendarTime(*time)) return {};
  SupportText text(static_cast<char*>(SMAllocMem(kTextSize)));
  if (!text) return {};
  char* end = text.get();
  end = PutDecimal(end, time->tm_year + 1900, 4);
  end = PutDecimal(end, time->tm_mon + 1, 2);
  for (const int part : {time->tm_mday, time->tm_hour, time->tm_min, time->tm_sec}) {
    end = PutDecimal(end, part, 2);
  }
  const OffsetText offset = CurrentOffsetText();
  end = std::copy_n(".000000", 7, end);
  std::copy(offset.begin(), offset.end(), end);
  return text;
}

SupportText FormatLocalDateTime(int64_t secondsSince1970) {
  std::tm time{};
  return LocalTime(secondsSince1970, time) ? FormatCimDateTime(&time) : SupportText();
}

}  // namespace tqcim
