#include "core/cim_datetime.h"

#include <string>

#include "tests/support/handler_test.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/time_zone.h"

namespace tqcim::testing {
namespace {

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

/// A zone file (RFC 8536, version 1) of a place that went from UTC+1 to UTC+2 at the beginning of
/// 2016.
std::string MovedZone() {
  using namespace std::string_literals;
  return "TZif\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"s  // version and reserved bytes
         "\0\0\0\0\0\0\0\0\0\0\0\0"s              // no UT and standard marks, no leap seconds
         "\0\0\0\1\0\0\0\2\0\0\0\x8"s             // a transition, two types, eight characters
         "\x56\x85\xC1\x80\1"s                    // 2016-01-01 00:00:00 UTC, to the second
         "\0\0\x0E\x10\0\0\0\0\x1C\x20\0\4"s      // 3600 s and 7200 s
         "AAA\0BBB\0"s;
}

TEST_F(PresentOffsetTest, TheOffsetIsThatOfThePresentMomentAndNotOfTheTimeBeforeIt) {
  const TemporaryFolder folder;
  const TimeZone zone((":" + folder.Write("moved", MovedZone()).string()).c_str());
  // 2015-01-01 00:00:00 UTC, at 01:00 there.
  EXPECT_STREQ("20150101010000.000000+120", FormatLocalDateTime(1420070400).get());
}

}  // namespace
}  // namespace tqcim::testing
