/// The process's time zone, for the length of a test.
#pragma once

#include <optional>
#include <string>

namespace tqcim::testing {

/// Sets the environment variable TZ and has it read; puts back what was there before.
class TimeZone {
 public:
  /// `zone` in the short POSIX form with hours west of UTC, such as "AAA-1" for UTC+1.
  explicit TimeZone(const char* zone);
  ~TimeZone();
  TimeZone(const TimeZone&) = delete;
  TimeZone& operator=(const TimeZone&) = delete;

 private:
  std::optional<std::string> previous_;
};

}  // namespace tqcim::testing
