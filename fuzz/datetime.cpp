// Datetime texts: there is one for every date of the calendar and none for anything else, in any
// time zone.
//
// An input is six 32-bit numbers (second, minute, hour, day, month and year as std::tm holds them),
// a 64-bit moment in seconds since 1970, and the time zone as the variable TZ holds it.

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <string>

#include "core/cim_datetime.h"
#include "fuzz/check.h"

using namespace tqcim;

namespace {

bool IsDate(const std::tm& time) {
  return time.tm_year >= -1900 && time.tm_year <= 8099 && time.tm_mon >= 0 && time.tm_mon <= 11 &&
         time.tm_mday >= 1 && time.tm_mday <= 31 && time.tm_hour >= 0 && time.tm_hour <= 23 &&
         time.tm_min >= 0 && time.tm_min <= 59 && time.tm_sec >= 0 && time.tm_sec <= 60;
}

void CheckText(std::string_view text) {
  fuzz::Check(text.size() == 25, "a text has 25 characters");
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  fuzz::Check(std::all_of(text.begin(), text.begin() + 14, isDigit), "a text begins with a date");
  fuzz::Check(text.substr(14, 7) == ".000000", "no text has microseconds");
  fuzz::Check(text[21] == '+' || text[21] == '-', "an offset has a sign");
  fuzz::Check(isDigit(text[22]), "an offset is a number");
}

}  // namespace

// The memory of the support library.
void* SMAllocMem(uint32_t size) {
  return std::malloc(size);
}
void SMFreeMem(void* block) {
  std::free(block);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::array<int32_t, 6> fields{};
  int64_t moment = 0;
  if (size < sizeof fields + sizeof moment) return 0;
  std::memcpy(fields.data(), data, sizeof fields);
  std::memcpy(&moment, data + sizeof fields, sizeof moment);
  const std::string zone(
      fuzz::TextOf(data + sizeof fields + sizeof moment, size - sizeof fields - sizeof moment));
  // A zone with a slash names a file, and what files hold is the platform's business.
  if (zone.find('/') != std::string::npos) return 0;
  setenv("TZ", zone.c_str(), 1);

  std::tm time{};
  time.tm_sec = fields[0];
  time.tm_min = fields[1];
  time.tm_hour = fields[2];
  time.tm_mday = fields[3];
  time.tm_mon = fields[4];
  time.tm_year = fields[5];
  const SupportText text = FormatCimDateTime(&time);
  fuzz::Check(static_cast<bool>(text) == IsDate(time), "a date has a text, and nothing else has");
  if (text) CheckText(text.get());
  if (const SupportText local = FormatLocalDateTime(moment)) CheckText(local.get());
  return 0;
}
