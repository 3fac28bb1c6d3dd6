#include "tests/support/time_zone.h"

#include <cstdlib>

#include "platform/local_time.h"

namespace tqcim::testing {

TimeZone::TimeZone(const char* zone) {
  if (const char* previous = std::getenv("TZ")) previous_ = previous;
  setenv("TZ", zone, 1);
  ReadTimeZone();
}

TimeZone::~TimeZone() {
  if (previous_) {
    setenv("TZ", previous_->c_str(), 1);
  } else {
    unsetenv("TZ");
  }
  ReadTimeZone();
}

}  // namespace tqcim::testing
