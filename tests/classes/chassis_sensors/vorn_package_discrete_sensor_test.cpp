#include "tests/classes/chassis_sensors/several_chassis.h"

namespace tqcim::testing {
namespace {

/// Two chassis with a list of temperature probes each, as the class wants it, and no sensors.
class VornPackageDiscreteSensorTest : public SeveralChassisTest {
 protected:
  VornPackageDiscreteSensorTest() {
    ListChassis({2, 3});
    store.List(2, 22, {});
    store.List(3, 22, {});
  }

  void ListDiscrete(uint32_t chassisOid, uint16_t type, const std::vector<uint32_t>& oids) {
    ListProbes(chassisOid, type, oids);
    for (const uint32_t oid : oids) store.Object(oid).U32(16, 21);
  }

  HRESULT EnumerateClass() { return Enumerate("VORN_PackageDiscreteSensor"); }
};

TEST_F(VornPackageDiscreteSensorTest, PutsTheChassisThenTheSensor) {
  ListChassis({2});
  ListDiscrete(2, 24, {4711});
  EXPECT_EQ(0, EnumerateClass());
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(
      (Puts{
          {"Dependent", VT_BSTR, 0,
           R"(\\.\root\cimv2\vorn:VORN_Chassis.CreationClassName="VORN_Chassis",Tag="Chassis 2")"},
          {"Antecedent", VT_BSTR, 0,
           R"(\\.\root\cimv2\vorn:CIM_DiscreteSensor.CreationClassName="CIM_DiscreteSensor",)"
           R"(SystemName="RACK42-NODE0007",DeviceID="4711",)"
           R"(SystemCreationClassName="CIM_ComputerSystem")"}}),
      Delivered(0));
}

TEST_F(VornPackageDiscreteSensorTest, AChassisWithoutADescriptionIsNotAskedForItsProbes) {
  ExpectDescriptionAskedForFirst("VORN_PackageDiscreteSensor");
}

TEST_F(VornPackageDiscreteSensorTest, EachChassisIsPairedWithTheVoltageProbesOfLaterOnesToo) {
  ListChassis({2, 3, 4});
  store.List(4, 22, {});
  ListDiscrete(2, 24, {240, 241});
  ListDiscrete(3, 24, {340});
  ListDiscrete(4, 24, {440, 441});
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"Chassis 2: 240", "Chassis 2: 241", "Chassis 2: 340", "Chassis 2: 440",
                   "Chassis 2: 441", "Chassis 3: 340", "Chassis 3: 440", "Chassis 3: 441",
                   "Chassis 4: 440", "Chassis 4: 441"}),
            Pairs());
}

TEST_F(VornPackageDiscreteSensorTest, TheVoltageWalkLeavesNothingForTheOtherTypes) {
  ListDiscrete(2, 24, {240});
  for (const uint16_t type : Types{22, 23, 25, 26}) {
    ListDiscrete(2, type, {type * 10u});
    ListDiscrete(3, type, {type * 10u + 1});
  }
  ListDiscrete(3, 24, {});
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(Texts{"Chassis 2: 240"}, Pairs());
}

/// An object that can't be read ends the walk of its type and leaves the cursor in the chassis.
TEST_F(VornPackageDiscreteSensorTest, AWalkThatBreaksOffLeavesTheChassisToTheNextTypeButNoBattery) {
  ListChassis({2});
  for (const uint16_t type : Types{22, 23, 24, 25}) ListDiscrete(2, type, {type * 10u, 999});
  ListProbes(2, 26, {260, 999});
  ListDiscrete(2, 27, {270});
  store.FailRead(999);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"Chassis 2: 240", "Chassis 2: 220", "Chassis 2: 230", "Chassis 2: 250",
                   "Chassis 2: 260"}),
            Pairs());
}

TEST_F(VornPackageDiscreteSensorTest, AFailingListLeavesItsChassisToTheNextType) {
  ListChassis({2, 3, 4});
  store.List(4, 22, {});
  ListDiscrete(2, 24, {240});
  store.FailListing(3, 24);
  ListDiscrete(4, 24, {440});
  ListDiscrete(2, 22, {220});
  ListDiscrete(3, 22, {320});
  ListDiscrete(4, 22, {420});
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"Chassis 2: 240", "Chassis 2: 320", "Chassis 2: 420", "Chassis 3: 320",
                   "Chassis 3: 420", "Chassis 4: 440"}),
            Pairs());
}

TEST_F(VornPackageDiscreteSensorTest, TheSubtypeTellsADiscreteProbe) {
  ListChassis({2});
  ListDiscrete(2, 24, {240, 241, 242, 243, 244, 245, 246});
  uint32_t oid = 240;
  for (const uint32_t subtype : {16, 17, 18, 19, 20, 21, 22}) store.Object(oid++).U32(16, subtype);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"Chassis 2: 241", "Chassis 2: 243", "Chassis 2: 244", "Chassis 2: 245"}),
            Pairs());
}

TEST_F(VornPackageDiscreteSensorTest, AChassisWithoutAListOfTemperatureProbesIsLeftOut) {
  ListDiscrete(2, 24, {240});
  ListDiscrete(3, 24, {340});
  store.FailListing(3, 22);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"Chassis 2: 240", "Chassis 2: 340"}), Pairs());
}

TEST_F(VornPackageDiscreteSensorTest, AChassisWithoutADescriptionIsLeftOut) {
  ListDiscrete(2, 24, {240});
  ListDiscrete(3, 24, {340});
  store.FailListing(2, 32);
  EXPECT_EQ(0, EnumerateClass());
  store.FailListing(2, 32, 0);
  store.List(2, 32, {});
  EXPECT_EQ(0, EnumerateClass());
  store.List(2, 32, {1002});
  store.FailRead(1002);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(Texts(3, "Chassis 3: 340"), Pairs());
}

TEST_F(VornPackageDiscreteSensorTest, ALongChassisNameIsCutAtTheEndOfThePath) {
  ListChassis({2});
  ListDiscrete(2, 24, {240});
  store.Object(1002).Ucs2(32, std::u16string(300, u'x'));
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(kChassisPathStart + std::string(184, 'x'), Value(0, "Dependent"));
}

TEST_F(VornPackageDiscreteSensorTest, IdentifiersAreWrittenAsSignedNumbers) {
  ListChassis({2});
  ListDiscrete(2, 24, {240, 241});
  store.Object(240).U32(4, 0x80000001);
  store.Object(241).U32(4, 0xFFFFFFFF);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"Chassis 2: -2147483647", "Chassis 2: -1"}), Pairs());
}

TEST_F(VornPackageDiscreteSensorTest, ReturnsSuccessWhateverTheSinkSaysAndKeeps) {
  ListDiscrete(2, 24, {240, 241});
  ListDiscrete(3, 24, {340});
  sink.SetIndicateResult(Hr(0x80041032));
  sink.KeepInstances();
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(4u, DeliveredCount());
}

TEST_F(VornPackageDiscreteSensorTest, ASpawnWithoutInstanceEndsThePairsOfThatChassisOnly) {
  ListDiscrete(2, 22, {220});
  ListDiscrete(2, 24, {240, 241});
  ListDiscrete(3, 24, {340});
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"Chassis 2: 240", "Chassis 3: 340"}), Pairs());
  definition.SpawnNothing(3, S_OK);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"Chassis 2: 240", "Chassis 3: 340", "Chassis 3: 340"}), Pairs());
}

TEST_F(VornPackageDiscreteSensorTest, PropertiesThatAreRefusedDoNotKeepAnInstanceBack) {
  ListDiscrete(3, 24, {340});
  definition.SetPutResult(Hr(0x80041002));
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(VornPackageDiscreteSensorTest, EnumeratesNothingWithoutSensorsOrChassis) {
  EXPECT_EQ(0, EnumerateClass());
  store.List(1, 17, {});
  EXPECT_EQ(0, EnumerateClass());
  store.FailListing(1, 17);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornPackageDiscreteSensorTest, IsNeverFoundByKeys) {
  ListDiscrete(2, 24, {240});
  ExpectNeverGot("VORN_PackageDiscreteSensor");
}

}  // namespace
}  // namespace tqcim::testing
