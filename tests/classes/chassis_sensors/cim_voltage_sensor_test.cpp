#include "tests/classes/chassis_sensors/threshold_sensor_test.h"

namespace tqcim::testing {
namespace {

constexpr ProbeClass kVoltageSensor{"CIM_VoltageSensor", 24};

INSTANTIATE_TEST_SUITE_P(CimVoltageSensor, ProbeClassTest, ::testing::Values(kVoltageSensor));
INSTANTIATE_TEST_SUITE_P(CimVoltageSensor, ThresholdSensorTest, ::testing::Values(kVoltageSensor));

class CimVoltageSensorTest : public HandlerTest {};

TEST_F(CimVoltageSensorTest, PutsItsPropertiesInOrder) {
  store.List(1, 17, {2});
  store.List(2, 24, {240});
  store.Add(240, 24, 2)
      .I32(20, 12050)
      .I32(24, 13800)
      .I32(28, 13200)
      .I32(32, 12600)
      .I32(36, 11400)
      .I32(40, 10800)
      .I32(44, 10200)
      .U16(70, 0x0000)
      .Ucs2(72, u"12V Rail");
  const Puts sensor = {{"SettableThresholds", VT_ARRAY | VT_I2, 0, "{}"},
                       {"LowerThresholdCritical", VT_I4, 0, "10800"},
                       {"LowerThresholdFatal", VT_I4, 0, "10200"},
                       {"LowerThresholdNonCritical", VT_I4, 0, "11400"},
                       {"CurrentReading", VT_I4, 0, "12050"},
                       {"Name", VT_BSTR, 0, "12V Rail"},
                       {"Status", VT_BSTR, 0, "OK"},
                       {"UpperThresholdCritical", VT_I4, 0, "13200"},
                       {"UpperThresholdFatal", VT_I4, 0, "13800"},
                       {"UpperThresholdNonCritical", VT_I4, 0, "12600"},
                       {"CreationClassName", VT_BSTR, 0, "CIM_VoltageSensor"},
                       {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
                       {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
                       {"DeviceID", VT_BSTR, 0, "0"}};
  EXPECT_EQ(0, Enumerate("CIM_VoltageSensor"));
  EXPECT_EQ(0, Get("CIM_VoltageSensor", StringKey(OLESTR("DeviceID"), OLESTR("0"))));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(sensor, Delivered(0));
  EXPECT_EQ(sensor, Delivered(1));
}

}  // namespace
}  // namespace tqcim::testing
