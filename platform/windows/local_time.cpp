#include "platform/local_time.h"

#include <windows.h>

#include <ctime>

namespace tqcim {

bool LocalTime(int64_t secondsSince1970, std::tm& time) {
  const __time64_t seconds = secondsSince1970;
  return _localtime64_s(&time, &seconds) == 0;
}

bool UtcTime(int64_t secondsSince1970, std::tm& time) {
  const __time64_t seconds = secondsSince1970;
  return _gmtime64_s(&time, &seconds) == 0;
}

int64_t PassingSeconds() {
  constexpr int64_t kMilliseconds = 1000;
  return static_cast<int64_t>(GetTickCount64()) / kMilliseconds;
}

void ReadTimeZone() {
  _tzset();
}

}  // namespace tqcim
