#include "platform/local_time.h"

#include <gtest/gtest.h>

namespace {

TEST(LocalTime, FailsBefore1970) {
  std::tm time = {};
  EXPECT_FALSE(tqcim::LocalTime(-86400, time));
  EXPECT_FALSE(tqcim::UtcTime(-86400, time));
}

}  // namespace
