#include "tests/classes/power/power_test.h"

namespace tqcim::testing {
namespace {

class VornPowerConsumptionAmpsSensorTest : public PowerTest {
 protected:
  VornPowerConsumptionAmpsSensorTest() {
    AddProbe(300, 23, u"PS1 Current")
        .I32(20, 14)
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

const Puts kAmpsSensor = {{"SettableThresholds", VT_ARRAY | VT_I2, 0, "{1,0}"},
                          {"LowerThresholdCritical", VT_I4, 0, "20"},
                          {"LowerThresholdFatal", VT_I4, 0, "10"},
                          {"LowerThresholdNonCritical", VT_I4, 0, "-100"},
                          {"CurrentReading", VT_I4, 0, "14"},
                          {"Name", VT_BSTR, 0, "PS1 Current"},
                          {"Status", VT_BSTR, 0, "OK"},
                          {"UpperThresholdCritical", VT_I4, 0, "550"},
                          {"UpperThresholdFatal", VT_I4, 0, "600"},
                          {"UpperThresholdNonCritical", VT_I4, 0, "500"},
                          {"CreationClassName", VT_BSTR, 0, "VORN_PowerConsumptionAmpsSensor"},
                          {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
                          {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
                          {"DeviceID", VT_BSTR, 0, "0"}};

TEST_F(VornPowerConsumptionAmpsSensorTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, Enumerate("VORN_PowerConsumptionAmpsSensor"));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kAmpsSensor, Delivered(0));
}

TEST_F(VornPowerConsumptionAmpsSensorTest, IsGotWithTheSameProperties) {
  EXPECT_EQ(0, Get("VORN_PowerConsumptionAmpsSensor", StringKey(OLESTR("DeviceID"), OLESTR("0"))));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kAmpsSensor, Delivered(0));
}

TEST_F(VornPowerConsumptionAmpsSensorTest, TakesSubtypes23And25Only) {
  for (const uint32_t subtype :
       {0u, 1u, 22u, 24u, 26u, 27u, 0x0117u, 0x00010017u, 0x00010019u, 0xFFFFFFFFu}) {
    store.Object(300).U32(16, subtype);
    Enumerate("VORN_PowerConsumptionAmpsSensor");
    EXPECT_EQ(0u, DeliveredCount()) << subtype;
  }
  store.Object(300).U32(16, 25);
  Enumerate("VORN_PowerConsumptionAmpsSensor");
  EXPECT_EQ(1u, DeliveredCount());
}

}  // namespace
}  // namespace tqcim::testing
