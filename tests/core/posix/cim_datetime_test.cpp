#include "core/cim_datetime.h"

#include <chrono>
#include <string>
#include <thread>

#include "platform/local_time.h"
#include "tests/support/handler_test.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/time_zone.h"

namespace tqcim::testing {
namespace {

using namespace std::string_literals;

class PresentOffsetTest : public BalancedTest {
 protected:
  FakeStore store;
};

TEST_F(PresentOffsetTest, TheDaylightSavingHourIsNoPartOfTheOffset) {
  // UTC+1 in winter and UTC+2 in summer, and summer all year.
  const TimeZone zone("AAA-1BBB-2,0/0,J365/25");
  std::tm time{};
  time.tm_mday = 1;
  EXPECT_STREQ("19000101000000.000000+60.", FormatCimDateTime(&time).get());
}

TEST_F(PresentOffsetTest, LessThanAMinuteHasItsSign) {
  const TimeZone zone("AAA0:00:30");
  std::tm time{};
  time.tm_mday = 1;
  EXPECT_STREQ("19000101000000.000000-0.5", FormatCimDateTime(&time).get());
}

/// A zone file (RFC 8536, version 1) of a place that went from UTC+1 to another offset, told in
/// seconds, at the beginning of 2016.
std::string MovedZone(const std::string& offset) {
  return "TZif\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"s  // version and reserved bytes
         "\0\0\0\0\0\0\0\0\0\0\0\0"s              // no UT and standard marks, no leap seconds
         "\0\0\0\1\0\0\0\2\0\0\0\x8"s             // a transition, two types, eight characters
         "\x56\x85\xC1\x80\1"s                    // 2016-01-01 00:00:00 UTC, to the second
         "\0\0\x0E\x10\0\0"s +                    // 3600 s
         offset +
         "\0\4AAA\0BBB\0"s;
}
const std::string kTwoHours = "\0\0\x1C\x20"s;
const std::string kThreeHours = "\0\0\x2A\x30"s;

TEST_F(PresentOffsetTest, TheOffsetIsThatOfThePresentMomentAndNotOfTheTimeBeforeIt) {
  const TemporaryFolder folder;
  const TimeZone zone((":" + folder.Write("moved", MovedZone(kTwoHours)).string()).c_str());
  // 2015-01-01 00:00:00 UTC, at 01:00 there.
  EXPECT_STREQ("20150101010000.000000+120", FormatLocalDateTime(1420070400).get());
}

/// Returns in the next second.
void AwaitNextSecond() {
  using namespace std::chrono_literals;
  const int64_t second = PassingSeconds();
  while (PassingSeconds() == second) std::this_thread::sleep_for(5ms);
}

TEST_F(PresentOffsetTest, AZoneThatChangesUnderItsNameCountsFromTheNextSecondOn) {
  const TemporaryFolder folder;
  const std::string name = ":" + folder.Write("zone", MovedZone(kTwoHours)).string();
  std::tm time{};
  time.tm_mday = 1;
  {
    const TimeZone zone(name.c_str());
    EXPECT_STREQ("19000101000000.000000+120", FormatCimDateTime(&time).get());
  }
  folder.Write("zone", MovedZone(kThreeHours));
  // The C library reads the file anew, because another zone stood in between.
  const TimeZone zone(name.c_str());
  AwaitNextSecond();
  EXPECT_STREQ("19000101000000.000000+180", FormatCimDateTime(&time).get());
}

}  // namespace
}  // namespace tqcim::testing
