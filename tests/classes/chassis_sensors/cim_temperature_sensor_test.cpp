#include "tests/classes/chassis_sensors/threshold_sensor_test.h"

namespace tqcim::testing {
namespace {

constexpr ProbeClass kTemperatureSensor{"CIM_TemperatureSensor", 22};

INSTANTIATE_TEST_SUITE_P(CimTemperatureSensor, ProbeClassTest,
                         ::testing::Values(kTemperatureSensor));
INSTANTIATE_TEST_SUITE_P(CimTemperatureSensor, ThresholdSensorTest,
                         ::testing::Values(kTemperatureSensor));

class CimTemperatureSensorTest : public HandlerTest {};

TEST_F(CimTemperatureSensorTest, PutsItsPropertiesInOrder) {
  store.List(1, 17, {2});
  store.List(2, 22, {220});
  store.Add(220, 22, 3)
      .I32(20, 512)
      .I32(24, 900)
      .I32(28, 850)
      .I32(32, 480)
      .I32(36, -50)
      .I32(40, -100)
      .I32(44, -150)
      .U16(70, 0x0003)
      .Ucs2(72, u"CPU1 Temp");
  const Puts sensor = {{"SettableThresholds", VT_ARRAY | VT_I2, 0, "{1,0}"},
                       {"LowerThresholdCritical", VT_I4, 0, "-100"},
                       {"LowerThresholdFatal", VT_I4, 0, "-150"},
                       {"LowerThresholdNonCritical", VT_I4, 0, "-50"},
                       {"CurrentReading", VT_I4, 0, "512"},
                       {"Name", VT_BSTR, 0, "CPU1 Temp"},
                       {"Status", VT_BSTR, 0, "Stressed"},
                       {"UpperThresholdCritical", VT_I4, 0, "850"},
                       {"UpperThresholdFatal", VT_I4, 0, "900"},
                       {"UpperThresholdNonCritical", VT_I4, 0, "480"},
                       {"CreationClassName", VT_BSTR, 0, "CIM_TemperatureSensor"},
                       {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
                       {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
                       {"DeviceID", VT_BSTR, 0, "0"}};
  EXPECT_EQ(0, Enumerate("CIM_TemperatureSensor"));
  EXPECT_EQ(0, Get("CIM_TemperatureSensor", StringKey(OLESTR("DeviceID"), OLESTR("0"))));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(sensor, Delivered(0));
  EXPECT_EQ(sensor, Delivered(1));
}

}  // namespace
}  // namespace tqcim::testing
