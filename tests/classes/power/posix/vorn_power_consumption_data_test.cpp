#include "tests/classes/power/power_consumption_record.h"

namespace tqcim::testing {
namespace {

class VornPowerConsumptionDataOnPosixTest : public PowerConsumptionRecordTest {};

TEST_F(VornPowerConsumptionDataOnPosixTest, TimesBefore1970AreTold) {
  EXPECT_EQ("19691231235959.000000+0.0", TimeOf(-1));
  EXPECT_EQ("19011213204551.000000+0.0", TimeOf(-2147483649));
}

TEST_F(VornPowerConsumptionDataOnPosixTest, TimesAreToldUpToTheYear9999) {
  EXPECT_EQ("99991231235959.000000+0.0", TimeOf(253402300799));
}

TEST_F(VornPowerConsumptionDataOnPosixTest, TheLocalTimeDecidesWhichYearIsTheLast) {
  const TimeZone zone("EEE5");
  EXPECT_EQ("99991231235959.000000-300", TimeOf(253402318799));
  EXPECT_EQ("<absent>", TimeOf(253402318800));
}

TEST_F(VornPowerConsumptionDataOnPosixTest, DaylightSavingSouthOfTheEquatorIsNoDifferent) {
  const TimeZone zone("AAA-10BBB,M10.1.0,M4.1.0/3");
  EXPECT_EQ("20150114202653.000000+600", TimeOf(1421227613));
  EXPECT_EQ("20150714192653.000000+600", TimeOf(1436866013));
}

/// The native stand-in for the ANSI code page is UTF-8.
TEST_F(VornPowerConsumptionDataOnPosixTest, TheNameIsDecodedAsUtf8) {
  store.Object(500).Utf8(96,
                         "Gr\xC3\xB6\xC3\x9F"
                         "e");
  Enumerate("VORN_PowerConsumptionData");
  EXPECT_EQ("Gr\\u00F6\\u00DFe", Value(0, "Name"));
}

}  // namespace
}  // namespace tqcim::testing
