#include "platform/local_time.h"

namespace tqcim {

bool LocalTime(int64_t secondsSince1970, std::tm& time) {
  const time_t seconds = secondsSince1970;
  return localtime_r(&seconds, &time) != nullptr;
}

bool UtcTime(int64_t secondsSince1970, std::tm& time) {
  const time_t seconds = secondsSince1970;
  return gmtime_r(&seconds, &time) != nullptr;
}

int64_t PassingSeconds() {
  return time(nullptr);
}

void ReadTimeZone() {
  tzset();
}

}  // namespace tqcim
