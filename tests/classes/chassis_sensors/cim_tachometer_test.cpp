#include "tests/classes/chassis_sensors/threshold_sensor_test.h"

namespace tqcim::testing {
namespace {

constexpr ProbeClass kTachometer{"CIM_Tachometer", 23};

INSTANTIATE_TEST_SUITE_P(CimTachometer, ProbeClassTest, ::testing::Values(kTachometer));
INSTANTIATE_TEST_SUITE_P(CimTachometer, ThresholdSensorTest, ::testing::Values(kTachometer));

class CimTachometerTest : public HandlerTest {};

TEST_F(CimTachometerTest, PutsItsPropertiesInOrder) {
  store.List(1, 17, {2});
  store.List(2, 23, {230});
  store.Add(230, 23, 5)
      .I32(20, 0)
      .I32(24, 18000)
      .I32(28, 17000)
      .I32(32, 16000)
      .I32(36, 1200)
      .I32(40, 840)
      .I32(44, 600)
      .U16(70, 0x0002)
      .Ucs2(72, u"Fan 1 RPM");
  const Puts sensor = {{"SettableThresholds", VT_ARRAY | VT_I2, 0, "{0}"},
                       {"LowerThresholdCritical", VT_I4, 0, "840"},
                       {"LowerThresholdFatal", VT_I4, 0, "600"},
                       {"LowerThresholdNonCritical", VT_I4, 0, "1200"},
                       {"CurrentReading", VT_I4, 0, "0"},
                       {"Name", VT_BSTR, 0, "Fan 1 RPM"},
                       {"Status", VT_BSTR, 0, "NonRecover"},
                       {"UpperThresholdCritical", VT_I4, 0, "17000"},
                       {"UpperThresholdFatal", VT_I4, 0, "18000"},
                       {"UpperThresholdNonCritical", VT_I4, 0, "16000"},
                       {"CreationClassName", VT_BSTR, 0, "CIM_Tachometer"},
                       {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
                       {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
                       {"DeviceID", VT_BSTR, 0, "0"}};
  EXPECT_EQ(0, Enumerate("CIM_Tachometer"));
  EXPECT_EQ(0, Get("CIM_Tachometer", StringKey(OLESTR("DeviceID"), OLESTR("0"))));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(sensor, Delivered(0));
  EXPECT_EQ(sensor, Delivered(1));
}

}  // namespace
}  // namespace tqcim::testing
