#include "tests/classes/power/power_test.h"

namespace tqcim::testing {
namespace {

class VornPowerConsumptionWattsSensorTest : public PowerTest {
 protected:
  VornPowerConsumptionWattsSensorTest() {
    AddProbe(300, 24, u"System Level")
        .I32(20, 220)
        .I32(24, 600)
        .I32(28, 550)
        .I32(32, 500)
        .I32(36, -100)
        .I32(40, 20)
        .I32(44, 10)
        .U16(70, 3);
    SetChassis({100});
    store.List(100, 25, {300});
  }
};

const Puts kWattsSensor = {{"SettableThresholds", VT_ARRAY | VT_I2, 0, "{1,0}"},
                           {"LowerThresholdCritical", VT_I4, 0, "20"},
                           {"LowerThresholdFatal", VT_I4, 0, "10"},
                           {"LowerThresholdNonCritical", VT_I4, 0, "-100"},
                           {"CurrentReading", VT_I4, 0, "220"},
                           {"Name", VT_BSTR, 0, "System Level"},
                           {"Status", VT_BSTR, 0, "OK"},
                           {"UpperThresholdCritical", VT_I4, 0, "550"},
                           {"UpperThresholdFatal", VT_I4, 0, "600"},
                           {"UpperThresholdNonCritical", VT_I4, 0, "500"},
                           {"CreationClassName", VT_BSTR, 0, "VORN_PowerConsumptionWattsSensor"},
                           {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
                           {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
                           {"DeviceID", VT_BSTR, 0, "0"}};

TEST_F(VornPowerConsumptionWattsSensorTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, Enumerate("VORN_PowerConsumptionWattsSensor"));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kWattsSensor, Delivered(0));
}

TEST_F(VornPowerConsumptionWattsSensorTest, IsGotWithTheSameProperties) {
  EXPECT_EQ(0, Get("VORN_PowerConsumptionWattsSensor", StringKey(OLESTR("DeviceID"), OLESTR("0"))));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kWattsSensor, Delivered(0));
}

TEST_F(VornPowerConsumptionWattsSensorTest, TakesSubtypes24And26Only) {
  for (const uint32_t subtype :
       {0u, 1u, 22u, 23u, 25u, 27u, 0x0118u, 0x00010018u, 0x0001001Au, 0xFFFFFFFFu}) {
    store.Object(300).U32(16, subtype);
    Enumerate("VORN_PowerConsumptionWattsSensor");
    EXPECT_EQ(0u, DeliveredCount()) << subtype;
  }
  store.Object(300).U32(16, 26);
  Enumerate("VORN_PowerConsumptionWattsSensor");
  EXPECT_EQ(1u, DeliveredCount());
}

}  // namespace
}  // namespace tqcim::testing
