#include <limits>

#include "core/cim_datetime.h"
#include "tests/support/handler_test.h"
#include "tests/support/time_zone.h"

namespace tqcim::testing {
namespace {

/// 14 March 2015, 09:26:53 UTC.
constexpr int64_t kMoment = 1426325213;

class LocalDateTimeTest : public BalancedTest {
 protected:
  static std::string TextOf(int64_t moment) {
    const SupportText text = FormatLocalDateTime(moment);
    return text ? text.get() : "<null>";
  }

  static std::string TextIn(const char* zone) {
    const TimeZone timeZone(zone);
    return TextOf(kMoment);
  }

  FakeStore store;
};

TEST_F(LocalDateTimeTest, IsTheLocalTimeOfTheMoment) {
  EXPECT_EQ("20150314092653.000000+0.0", TextIn("UTC0"));
  EXPECT_EQ("20150314102653.000000+60.", TextIn("AAA-1"));
  EXPECT_EQ("20150314145653.000000+330", TextIn("CCC-5:30"));
  EXPECT_EQ("20150314042653.000000-300", TextIn("EEE5"));
  EXPECT_EQ("20150313212653.000000-720", TextIn("FFF12"));
}

TEST_F(LocalDateTimeTest, BeginsWithTheYear1970) {
  const TimeZone zone("UTC0");
  EXPECT_EQ("19700101000000.000000+0.0", TextOf(0));
  EXPECT_EQ("20380119031408.000000+0.0", TextOf(2147483648));
}

TEST_F(LocalDateTimeTest, IsNullForAMomentThatIsNoDate) {
  constexpr int64_t kYear10000 = 253402300800;
  const TimeZone zone("UTC0");
  EXPECT_EQ("<null>", TextOf(std::numeric_limits<int64_t>::max()));
  EXPECT_EQ("<null>", TextOf(std::numeric_limits<int64_t>::min()));
  EXPECT_EQ("<null>", TextOf(kYear10000));
}

TEST_F(LocalDateTimeTest, IsNullWithoutMemory) {
  store.FailAllocations();
  EXPECT_EQ("<null>", TextOf(kMoment));
}

}  // namespace
}  // namespace tqcim::testing
