#include "platform/local_time.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <limits>
#include <string>

#include "tests/support/time_zone.h"

namespace {

using tqcim::LocalTime;
using tqcim::UtcTime;
using tqcim::testing::TimeZone;

std::string Digits(const std::tm& time) {
  char text[32];
  std::snprintf(text, sizeof(text), "%04d%02d%02d%02d%02d%02d", time.tm_year + 1900,
                time.tm_mon + 1, time.tm_mday, time.tm_hour, time.tm_min, time.tm_sec);
  return text;
}

/// 14 March 2015, 09:26:53 UTC.
constexpr int64_t kMoment = 1426325213;

std::string LocalDigits(const char* zone) {
  const TimeZone timeZone(zone);
  std::tm time = {};
  EXPECT_TRUE(LocalTime(kMoment, time));
  return Digits(time);
}

TEST(LocalTime, FollowsTheTimeZone) {
  EXPECT_EQ("20150314092653", LocalDigits("UTC0"));
  EXPECT_EQ("20150314102653", LocalDigits("AAA-1"));
  EXPECT_EQ("20150314112653", LocalDigits("BBB-2"));
  EXPECT_EQ("20150314145653", LocalDigits("CCC-5:30"));
  EXPECT_EQ("20150314082653", LocalDigits("DDD1"));
  EXPECT_EQ("20150314042653", LocalDigits("EEE5"));
}

TEST(LocalTime, UtcDoesNotFollowTheTimeZone) {
  const TimeZone timeZone("EEE5");
  std::tm time = {};
  ASSERT_TRUE(UtcTime(kMoment, time));
  EXPECT_EQ("20150314092653", Digits(time));
  EXPECT_EQ(6, time.tm_wday);
  EXPECT_EQ(72, time.tm_yday);
}

TEST(LocalTime, BeginsIn1970) {
  const TimeZone timeZone("UTC0");
  std::tm time = {};
  ASSERT_TRUE(LocalTime(0, time));
  EXPECT_EQ("19700101000000", Digits(time));
}

TEST(LocalTime, FailsForAMomentThatHasNoDate) {
  std::tm time = {};
  EXPECT_FALSE(LocalTime(std::numeric_limits<int64_t>::max(), time));
  EXPECT_FALSE(UtcTime(std::numeric_limits<int64_t>::max(), time));
  EXPECT_FALSE(LocalTime(std::numeric_limits<int64_t>::min(), time));
  EXPECT_FALSE(UtcTime(std::numeric_limits<int64_t>::min(), time));
}

}  // namespace
