#include "core/cim_datetime.h"

#include "tests/support/handler_test.h"
#include "tests/support/time_zone.h"

namespace tqcim::testing {
namespace {

class DaylightSavingTest : public BalancedTest {
 protected:
  FakeStore store;
};

TEST_F(DaylightSavingTest, TheDaylightSavingHourIsNoPartOfTheOffset) {
  // UTC+1 in winter and UTC+2 in summer, and summer all year.
  const TimeZone zone("AAA-1BBB-2,0/0,J365/25");
  std::tm time{};
  time.tm_mday = 1;
  EXPECT_STREQ("19000101000000.000000+60.", FormatCimDateTime(&time).get());
}

}  // namespace
}  // namespace tqcim::testing
