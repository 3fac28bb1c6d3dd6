#include "tests/classes/chassis_sensors/sensor_package_test.h"

namespace tqcim::testing {
namespace {

INSTANTIATE_TEST_SUITE_P(CimPackageTempSensor, SensorPackageTest,
                         ::testing::Values(PackageClass{"CIM_PackageTempSensor", 22}));

class CimPackageTempSensorTest : public SeveralChassisTest {
 protected:
  CimPackageTempSensorTest() { ListChassis({2}); }
};

TEST_F(CimPackageTempSensorTest, PutsTheChassisThenTheSensor) {
  store.List(2, 22, {999, 999});
  EXPECT_EQ(0, Enumerate("CIM_PackageTempSensor"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(
      (Puts{
          {"Dependent", VT_BSTR, 0,
           R"(\\.\root\cimv2\vorn:VORN_Chassis.CreationClassName="VORN_Chassis",Tag="Chassis 2")"},
          {"Antecedent", VT_BSTR, 0,
           R"(\\.\root\cimv2\vorn:CIM_TemperatureSensor.CreationClassName="CIM_TemperatureSensor",)"
           R"(SystemName="RACK42-NODE0007",DeviceID="1",)"
           R"(SystemCreationClassName="CIM_ComputerSystem")"}}),
      Delivered(1));
}

}  // namespace
}  // namespace tqcim::testing
