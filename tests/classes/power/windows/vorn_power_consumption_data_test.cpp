#include "tests/classes/power/power_consumption_record.h"

namespace tqcim::testing {
namespace {

class VornPowerConsumptionDataOnWindowsTest : public PowerConsumptionRecordTest {};

TEST_F(VornPowerConsumptionDataOnWindowsTest, TimesBefore1970AreLeftUnset) {
  EXPECT_EQ("<absent>", TimeOf(-1));
  EXPECT_EQ("<absent>", TimeOf(-2147483649));
}

TEST_F(VornPowerConsumptionDataOnWindowsTest, TimesAfterTheYear3000AreLeftUnset) {
  EXPECT_EQ("<absent>", TimeOf(32535302400));
  EXPECT_EQ("<absent>", TimeOf(253402300799));
}

TEST_F(VornPowerConsumptionDataOnWindowsTest, TheNameIsDecodedWithTheAnsiCodePageThoughItIsUtf8) {
  if (GetACP() != 1252) GTEST_SKIP() << "the ANSI code page is not 1252";
  store.Object(500).Utf8(96,
                         "Gr\xC3\xB6\xC3\x9F"
                         "e");
  Enumerate("VORN_PowerConsumptionData");
  EXPECT_EQ("Gr\\u00C3\\u00B6\\u00C3\\u0178e", Value(0, "Name"));
}

}  // namespace
}  // namespace tqcim::testing
