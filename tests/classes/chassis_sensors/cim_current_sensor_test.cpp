#include "tests/classes/chassis_sensors/threshold_sensor_test.h"

namespace tqcim::testing {
namespace {

constexpr ProbeClass kCurrentSensor{"CIM_CurrentSensor", 25};

INSTANTIATE_TEST_SUITE_P(CimCurrentSensor, ProbeClassTest, ::testing::Values(kCurrentSensor));
INSTANTIATE_TEST_SUITE_P(CimCurrentSensor, ThresholdSensorTest, ::testing::Values(kCurrentSensor));

class CimCurrentSensorTest : public HandlerTest {};

TEST_F(CimCurrentSensorTest, PutsItsPropertiesInOrder) {
  store.List(1, 17, {2});
  store.List(2, 25, {250});
  store.Add(250, 25, 4)
      .I32(20, 71)
      .I32(24, 80)
      .I32(28, 70)
      .I32(32, 60)
      .I32(36, 5)
      .I32(40, 3)
      .I32(44, 1)
      .U16(70, 0x0001)
      .Ucs2(72, u"PS1 Current");
  const Puts sensor = {{"SettableThresholds", VT_ARRAY | VT_I2, 0, "{1}"},
                       {"LowerThresholdCritical", VT_I4, 0, "3"},
                       {"LowerThresholdFatal", VT_I4, 0, "1"},
                       {"LowerThresholdNonCritical", VT_I4, 0, "5"},
                       {"CurrentReading", VT_I4, 0, "71"},
                       {"Name", VT_BSTR, 0, "PS1 Current"},
                       {"Status", VT_BSTR, 0, "Error"},
                       {"UpperThresholdCritical", VT_I4, 0, "70"},
                       {"UpperThresholdFatal", VT_I4, 0, "80"},
                       {"UpperThresholdNonCritical", VT_I4, 0, "60"},
                       {"CreationClassName", VT_BSTR, 0, "CIM_CurrentSensor"},
                       {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
                       {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
                       {"DeviceID", VT_BSTR, 0, "0"}};
  EXPECT_EQ(0, Enumerate("CIM_CurrentSensor"));
  EXPECT_EQ(0, Get("CIM_CurrentSensor", StringKey(OLESTR("DeviceID"), OLESTR("0"))));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(sensor, Delivered(0));
  EXPECT_EQ(sensor, Delivered(1));
}

}  // namespace
}  // namespace tqcim::testing
