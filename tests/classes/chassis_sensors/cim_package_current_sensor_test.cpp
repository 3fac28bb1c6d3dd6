#include "tests/classes/chassis_sensors/sensor_package_test.h"

namespace tqcim::testing {
namespace {

INSTANTIATE_TEST_SUITE_P(CimPackageCurrentSensor, SensorPackageTest,
                         ::testing::Values(PackageClass{"CIM_PackageCurrentSensor", 25}));

class CimPackageCurrentSensorTest : public SeveralChassisTest {
 protected:
  CimPackageCurrentSensorTest() { ListChassis({2}); }
};

TEST_F(CimPackageCurrentSensorTest, PutsTheChassisThenTheSensorWhoseKeyHasADoubledC) {
  store.List(2, 25, {999, 999});
  EXPECT_EQ(0, Enumerate("CIM_PackageCurrentSensor"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(
      (Puts{
          {"Dependent", VT_BSTR, 0,
           R"(\\.\root\cimv2\vorn:VORN_Chassis.CreationClassName="VORN_Chassis",Tag="Chassis 2")"},
          {"Antecedent", VT_BSTR, 0,
           R"(\\.\root\cimv2\vorn:CIM_CurrentSensor.CreationClassName="CCIM_CurrentSensor",)"
           R"(SystemName="RACK42-NODE0007",DeviceID="1",)"
           R"(SystemCreationClassName="CIM_ComputerSystem")"}}),
      Delivered(1));
}

}  // namespace
}  // namespace tqcim::testing
