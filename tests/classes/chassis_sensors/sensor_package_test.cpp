// What the associations between a chassis and its numeric sensors have in common: all but the type
// of the sensors and the beginning of the reference to one.
#include <ostream>

#include "tests/classes/chassis_sensors/several_chassis.h"

namespace tqcim::testing {
namespace {

struct PackageClass {
  const char* name;
  uint16_t objectType;
  const char* sensor;  ///< its class and the first of its keys, as the reference has them
};

std::ostream& operator<<(std::ostream& out, const PackageClass& packageClass) {
  return out << packageClass.name;
}

/// Two chassis without sensors. Sensors are listed and not read: there are none to read.
class SensorPackageTest : public SeveralChassisTest,
                          public ::testing::WithParamInterface<PackageClass> {
 protected:
  SensorPackageTest() { ListChassis({2, 3}); }

  void ListSensors(uint32_t chassisOid, size_t count) {
    store.List(chassisOid, kType, std::vector<uint32_t>(count, 999));
  }

  HRESULT EnumerateClass() { return Enumerate(kName); }

  const char* const kName = GetParam().name;
  const uint16_t kType = GetParam().objectType;
};

INSTANTIATE_TEST_SUITE_P(
    Classes, SensorPackageTest,
    ::testing::Values(
        // The doubled C is what consumers of this reference know.
        PackageClass{"CIM_PackageCurrentSensor", 25,
                     R"(CIM_CurrentSensor.CreationClassName="CCIM_CurrentSensor")"},
        PackageClass{"CIM_PackageFanSensor", 23, R"(CIM_Fan.CreationClassName="CIM_Fan")"},
        PackageClass{"CIM_PackageTempSensor", 22,
                     R"(CIM_TemperatureSensor.CreationClassName="CIM_TemperatureSensor")"},
        PackageClass{"CIM_PackageVoltSensor", 24,
                     R"(CIM_VoltageSensor.CreationClassName="CIM_VoltageSensor")"}),
    kClassName);

TEST_P(SensorPackageTest, PutsTheChassisThenTheSensor) {
  ListChassis({2});
  ListSensors(2, 2);
  EXPECT_EQ(0, EnumerateClass());
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(
      (Puts{
          {"Dependent", VT_BSTR, 0,
           R"(\\.\root\cimv2\vorn:VORN_Chassis.CreationClassName="VORN_Chassis",Tag="Chassis 2")"},
          {"Antecedent", VT_BSTR, 0,
           R"(\\.\root\cimv2\vorn:)" + std::string(GetParam().sensor) +
               R"(,SystemName="RACK42-NODE0007",DeviceID="1",)"
               R"(SystemCreationClassName="CIM_ComputerSystem")"}}),
      Delivered(1));
}

TEST_P(SensorPackageTest, PairsEverySensorOfOneChassis) {
  ListChassis({2});
  ListSensors(2, 3);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"Chassis 2: 0", "Chassis 2: 1", "Chassis 2: 2"}), Pairs());
}

TEST_P(SensorPackageTest, ALaterChassisAddsOnlyWhatItHasBeyondAllBeforeIt) {
  ListSensors(2, 2);
  ListSensors(3, 3);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"Chassis 2: 0", "Chassis 2: 1", "Chassis 3: 102"}), Pairs());
}

TEST_P(SensorPackageTest, ALaterChassisWithNoMoreSensorsAddsNone) {
  ListChassis({2, 3, 4});
  ListSensors(2, 2);
  ListSensors(3, 2);
  ListSensors(4, 1);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"Chassis 2: 0", "Chassis 2: 1"}), Pairs());
}

TEST_P(SensorPackageTest, ThePositionCarriesOverThreeChassisAndNeverStartsAgain) {
  ListChassis({2, 3, 4});
  ListSensors(2, 3);
  ListSensors(3, 1);
  ListSensors(4, 5);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(
      (Texts{"Chassis 2: 0", "Chassis 2: 1", "Chassis 2: 2", "Chassis 4: 203", "Chassis 4: 204"}),
      Pairs());
}

TEST_P(SensorPackageTest, SkipsAChassisWithoutSensorsOrWhoseListingFails) {
  ListChassis({2, 3, 4, 5});
  ListSensors(2, 0);
  ListSensors(3, 1);
  ListSensors(4, 9);
  store.FailListing(4, kType);
  ListSensors(5, 2);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"Chassis 3: 100", "Chassis 5: 301"}), Pairs());
}

TEST_P(SensorPackageTest, AChassisWithoutADescriptionAddsNoneAndCountsNone) {
  ListSensors(2, 3);
  ListSensors(3, 2);
  store.FailListing(2, 32);
  EXPECT_EQ(0, EnumerateClass());
  store.FailListing(2, 32, 0);
  store.List(2, 32, {});
  EXPECT_EQ(0, EnumerateClass());
  store.List(2, 32, {1002});
  store.FailRead(1002);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"Chassis 3: 100", "Chassis 3: 101", "Chassis 3: 100", "Chassis 3: 101",
                   "Chassis 3: 100", "Chassis 3: 101"}),
            Pairs());
}

TEST_P(SensorPackageTest, TheFirstDescriptionNamesTheChassis) {
  ListChassis({2});
  ListSensors(2, 1);
  store.Add(77, 32).Ucs2(32, u"Another description");
  store.List(2, 32, {1002, 77});
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(Texts{"Chassis 2: 0"}, Pairs());
}

TEST_P(SensorPackageTest, ReadsNoObjectButTheDescription) {
  ListChassis({2});
  ListSensors(2, 2);
  store.RecordCalls();
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"convert RACK42-NODE0007", "children 1/17", "children 2/32", "object 1002",
                   "free", "free", "children 2/" + std::to_string(kType), "free", "free"}),
            store.Calls());
}

TEST_P(SensorPackageTest, AChassisWithoutADescriptionIsNotAskedForItsSensors) {
  ExpectDescriptionAskedForFirst(kName);
}

TEST_P(SensorPackageTest, ALongChassisNameIsCutAtTheEndOfThePath) {
  ListChassis({2});
  ListSensors(2, 1);
  store.Object(1002).Ucs2(32, std::u16string(183, u'x'));
  EXPECT_EQ(0, EnumerateClass());
  store.Object(1002).Ucs2(32, std::u16string(184, u'x'));
  EXPECT_EQ(0, EnumerateClass());
  store.Object(1002).Ucs2(32, std::u16string(5000, u'x'));
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(kChassisPathStart + std::string(183, 'x') + '"', Value(0, "Dependent"));
  EXPECT_EQ(kChassisPathStart + std::string(184, 'x'), Value(1, "Dependent"));
  EXPECT_EQ(kChassisPathStart + std::string(184, 'x'), Value(2, "Dependent"));
}

TEST_P(SensorPackageTest, EnumeratesNothingWithoutChassis) {
  store.List(1, 17, {});
  EXPECT_EQ(0, EnumerateClass());
  store.FailListing(1, 17);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(SensorPackageTest, ReturnsTheReferencesThatAreLeftAfterTheLastRelease) {
  ListSensors(2, 2);
  ListSensors(3, 3);
  EXPECT_EQ(0, EnumerateClass());
  sink.KeepInstances();
  EXPECT_EQ(1, EnumerateClass());
}

TEST_P(SensorPackageTest, IgnoresTheSinksRefusal) {
  ListSensors(2, 2);
  ListSensors(3, 3);
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(3u, DeliveredCount());
}

TEST_P(SensorPackageTest, ASpawnWithoutInstanceEndsTheEnumerationWithTheResultOfTheLastRelease) {
  ListSensors(2, 2);
  ListSensors(3, 3);
  sink.KeepInstances();
  definition.SpawnNothing(0, Hr(0x80041006));
  EXPECT_EQ(0, EnumerateClass());
  definition.SpawnNothing(2, Hr(0x80041006));
  EXPECT_EQ(1, EnumerateClass());
  definition.SpawnNothing(5, S_OK);
  EXPECT_EQ(1, EnumerateClass());
  EXPECT_EQ((Texts{"Chassis 2: 0", "Chassis 2: 0", "Chassis 2: 1"}), Pairs());
  EXPECT_EQ(6u, definition.Spawns());
}

TEST_P(SensorPackageTest, PropertiesThatAreRefusedDoNotKeepAnInstanceBack) {
  ListSensors(2, 1);
  definition.SetPutResult(Hr(0x80041002));
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_P(SensorPackageTest, IsNeverFoundByKeys) {
  ListSensors(2, 1);
  ExpectNeverGot(kName);
}

using SensorPackagesTest = SeveralChassisTest;

TEST_F(SensorPackagesTest, FansOfALaterChassisAreNumberedAsProbesAndNotAsFans) {
  ListChassis({2, 3});
  ListProbes(2, 23, {});
  ListProbes(3, 23, {301});
  Enumerate("CIM_PackageFanSensor");
  Enumerate("CIM_Fan");
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ("100", KeyOf(Value(0, "Antecedent"), "DeviceID"));
  EXPECT_EQ("0", Value(1, "DeviceID"));
}

/// One of the four goes the whole way of their walk.
TEST_F(SensorPackagesTest, TheNumbersEndAt65535) {
  ListChassis({2, 3});
  store.List(2, 24, std::vector<uint32_t>(65'540, 999));
  store.List(3, 24, std::vector<uint32_t>(65'541, 999));
  EXPECT_EQ(0, Enumerate("CIM_PackageVoltSensor"));
  ASSERT_EQ(65'536u, DeliveredCount());
  EXPECT_EQ("65535", KeyOf(Value(65'535, "Antecedent"), "DeviceID"));
}

}  // namespace
}  // namespace tqcim::testing
