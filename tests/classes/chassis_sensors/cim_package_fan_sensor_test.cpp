#include "tests/classes/chassis_sensors/sensor_package_test.h"

namespace tqcim::testing {
namespace {

INSTANTIATE_TEST_SUITE_P(CimPackageFanSensor, SensorPackageTest,
                         ::testing::Values(PackageClass{"CIM_PackageFanSensor", 23}));

class CimPackageFanSensorTest : public SeveralChassisTest {
 protected:
  CimPackageFanSensorTest() { ListChassis({2}); }
};

TEST_F(CimPackageFanSensorTest, PutsTheChassisThenTheFan) {
  store.List(2, 23, {999, 999});
  EXPECT_EQ(0, Enumerate("CIM_PackageFanSensor"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(
      (Puts{
          {"Dependent", VT_BSTR, 0,
           R"(\\.\root\cimv2\vorn:VORN_Chassis.CreationClassName="VORN_Chassis",Tag="Chassis 2")"},
          {"Antecedent", VT_BSTR, 0,
           R"(\\.\root\cimv2\vorn:CIM_Fan.CreationClassName="CIM_Fan",)"
           R"(SystemName="RACK42-NODE0007",DeviceID="1",)"
           R"(SystemCreationClassName="CIM_ComputerSystem")"}}),
      Delivered(1));
}

TEST_F(CimPackageFanSensorTest, FansOfALaterChassisAreNumberedAsProbesAndNotAsFans) {
  ListChassis({2, 3});
  ListProbes(2, 23, {});
  ListProbes(3, 23, {301});
  Enumerate("CIM_PackageFanSensor");
  Enumerate("CIM_Fan");
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ("100", KeyOf(Value(0, "Antecedent"), "DeviceID"));
  EXPECT_EQ("0", Value(1, "DeviceID"));
}

}  // namespace
}  // namespace tqcim::testing
