#include "tests/classes/chassis_sensors/sensor_package_test.h"

namespace tqcim::testing {
namespace {

INSTANTIATE_TEST_SUITE_P(CimPackageVoltSensor, SensorPackageTest,
                         ::testing::Values(PackageClass{"CIM_PackageVoltSensor", 24}));

class CimPackageVoltSensorTest : public SeveralChassisTest {
 protected:
  CimPackageVoltSensorTest() { ListChassis({2}); }
};

TEST_F(CimPackageVoltSensorTest, PutsTheChassisThenTheSensor) {
  store.List(2, 24, {999, 999});
  EXPECT_EQ(0, Enumerate("CIM_PackageVoltSensor"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(
      (Puts{
          {"Dependent", VT_BSTR, 0,
           R"(\\.\root\cimv2\vorn:VORN_Chassis.CreationClassName="VORN_Chassis",Tag="Chassis 2")"},
          {"Antecedent", VT_BSTR, 0,
           R"(\\.\root\cimv2\vorn:CIM_VoltageSensor.CreationClassName="CIM_VoltageSensor",)"
           R"(SystemName="RACK42-NODE0007",DeviceID="1",)"
           R"(SystemCreationClassName="CIM_ComputerSystem")"}}),
      Delivered(1));
}

/// The four associations share this walk; one of them goes its whole way.
TEST_F(CimPackageVoltSensorTest, TheNumbersEndAt65535) {
  ListChassis({2, 3});
  store.List(2, 24, std::vector<uint32_t>(65'540, 999));
  store.List(3, 24, std::vector<uint32_t>(65'541, 999));
  EXPECT_EQ(0, Enumerate("CIM_PackageVoltSensor"));
  ASSERT_EQ(65'536u, DeliveredCount());
  EXPECT_EQ("65535", KeyOf(Value(65'535, "Antecedent"), "DeviceID"));
}

}  // namespace
}  // namespace tqcim::testing
