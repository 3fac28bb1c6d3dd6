#include "core/cim_datetime.h"

#include <clocale>
#include <string>

#include "tests/support/handler_test.h"
#include "tests/support/time_zone.h"

namespace tqcim::testing {
namespace {

class LocaleOfTheHostTest : public BalancedTest {
 protected:
  ~LocaleOfTheHostTest() override { std::setlocale(LC_ALL, before_.c_str()); }

  FakeStore store;

 private:
  const std::string before_ = std::setlocale(LC_ALL, nullptr);
};

TEST_F(LocaleOfTheHostTest, ItsDecimalPointIsNotThatOfTheOffset) {
  ASSERT_NE(nullptr, std::setlocale(LC_ALL, "German_Germany.1252"));
  ASSERT_STREQ(",", std::localeconv()->decimal_point);
  std::tm time{};
  time.tm_mday = 1;
  const TimeZone zone("AAA-1");
  EXPECT_STREQ("19000101000000.000000+60.", FormatCimDateTime(&time).get());
}

}  // namespace
}  // namespace tqcim::testing
