#include "tests/support/time_zone.h"

#include <cstdlib>

#include "platform/local_time.h"

namespace tqcim::testing {

TimeZone::TimeZone(const char* zone) {
  if (const char* previous = std::getenv("TZ")) previous_ = previous;
  _putenv_s("TZ", zone);
  ReadTimeZone();
  // The runtime takes the length of daylight saving from the system's zone and keeps it.
  _dstbias = -3600;
}

TimeZone::~TimeZone() {
  // An empty value takes the variable out of the environment.
  _putenv_s("TZ", previous_.value_or("").c_str());
  ReadTimeZone();
}

}  // namespace tqcim::testing
