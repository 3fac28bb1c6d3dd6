#include "platform/local_time.h"

#include <gtest/gtest.h>

namespace {

TEST(LocalTime, ReachesBefore1970) {
  std::tm time = {};
  ASSERT_TRUE(tqcim::UtcTime(-86400, time));
  EXPECT_EQ(69, time.tm_year);
  EXPECT_EQ(11, time.tm_mon);
  EXPECT_EQ(31, time.tm_mday);
}

}  // namespace
