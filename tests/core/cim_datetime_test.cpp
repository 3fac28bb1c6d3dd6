#include "core/cim_datetime.h"

#include "tests/support/environment.h"
#include "tests/support/handler_test.h"
#include "tests/support/time_zone.h"

namespace tqcim::testing {
namespace {

/// 14 March 2015, 09:26:53.
std::tm Moment() {
  std::tm time{};
  time.tm_year = 115;
  time.tm_mon = 2;
  time.tm_mday = 14;
  time.tm_hour = 9;
  time.tm_min = 26;
  time.tm_sec = 53;
  return time;
}

class CimDateTimeTest : public BalancedTest {
 protected:
  static std::string TextOf(const std::tm& time) {
    const SupportText text = FormatCimDateTime(&time);
    return text ? text.get() : "<null>";
  }

  static std::string TextIn(const char* zone) {
    const TimeZone timeZone(zone);
    return TextOf(Moment());
  }

  /// Expects no text for a moment with one field changed.
  void ExpectNoDate(int std::tm::*field, int value) {
    std::tm time = Moment();
    time.*field = value;
    EXPECT_EQ("<null>", TextOf(time)) << value;
  }

  FakeStore store;
};

TEST_F(CimDateTimeTest, EndsInTheOffsetInMinutesCutToFourCharacters) {
  EXPECT_EQ("20150314092653.000000+0.0", TextIn("UTC0"));
  EXPECT_EQ("20150314092653.000000+60.", TextIn("AAA-1"));
  EXPECT_EQ("20150314092653.000000+120", TextIn("BBB-2"));
  EXPECT_EQ("20150314092653.000000+330", TextIn("CCC-5:30"));
  EXPECT_EQ("20150314092653.000000-60.", TextIn("DDD1"));
  EXPECT_EQ("20150314092653.000000-300", TextIn("EEE5"));
}

TEST_F(CimDateTimeTest, TheZoneOfTheEnvironmentIsReadEveryTime) {
  const TimeZone zone("FFF-12");
  EXPECT_EQ("20150314092653.000000+720", TextOf(Moment()));
  SetEnvironment("TZ", "GGG12");
  EXPECT_EQ("20150314092653.000000-720", TextOf(Moment()));
  SetEnvironment("TZ", "HHH3:30");
  EXPECT_EQ("20150314092653.000000-210", TextOf(Moment()));
}

TEST_F(CimDateTimeTest, WritesEveryFieldAtItsFullWidth) {
  const TimeZone zone("UTC0");
  std::tm time{};
  time.tm_year = -1900;
  time.tm_mday = 1;
  EXPECT_EQ("00000101000000.000000+0.0", TextOf(time));
  time = Moment();
  time.tm_year = 8099;
  time.tm_mon = 11;
  time.tm_mday = 31;
  time.tm_hour = 23;
  time.tm_min = 59;
  time.tm_sec = 60;
  EXPECT_EQ("99991231235960.000000+0.0", TextOf(time));
}

TEST_F(CimDateTimeTest, TheTextIsSupportMemoryOf26Bytes) {
  store.RecordCalls();
  TextIn("UTC0");
  EXPECT_EQ((std::vector<std::string>{"allocate 26", "free support"}), store.Calls());
}

TEST_F(CimDateTimeTest, IsNullWithoutMemory) {
  store.FailAllocations();
  EXPECT_EQ("<null>", TextIn("UTC0"));
}

TEST_F(CimDateTimeTest, IsNullForWhatIsNoDate) {
  ExpectNoDate(&std::tm::tm_year, -1901);
  ExpectNoDate(&std::tm::tm_year, 8100);
  ExpectNoDate(&std::tm::tm_mon, -1);
  ExpectNoDate(&std::tm::tm_mon, 12);
  ExpectNoDate(&std::tm::tm_mday, 0);
  ExpectNoDate(&std::tm::tm_mday, 32);
  ExpectNoDate(&std::tm::tm_hour, -1);
  ExpectNoDate(&std::tm::tm_hour, 24);
  ExpectNoDate(&std::tm::tm_min, -1);
  ExpectNoDate(&std::tm::tm_min, 60);
  ExpectNoDate(&std::tm::tm_sec, -1);
  ExpectNoDate(&std::tm::tm_sec, 61);
}

}  // namespace
}  // namespace tqcim::testing
