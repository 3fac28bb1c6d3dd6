#include "tests/classes/power/power_test.h"

namespace tqcim::testing {
namespace {

/// Chassis 100 "Shelf A" with two supplies.
class CimPackagePowerSupplyTest : public PowerTest {
 protected:
  CimPackagePowerSupplyTest() {
    SetChassis({100});
    Describe(100, 110, u"Shelf A");
    store.List(100, 21, {200, 201});
  }

  /// Behind it a chassis 101 "Shelf B" with these supplies.
  void AddSecondChassis(std::vector<uint32_t> supplies) {
    SetChassis({100, 101});
    Describe(101, 111, u"Shelf B");
    store.List(101, 21, std::move(supplies));
  }
};

constexpr char kSupply0[] =
    R"(\\.\root\cimv2\vorn:CIM_PowerSupply.CreationClassName="CIM_PowerSupply",)"
    R"(SystemName="RACK42-NODE0007",DeviceID="0",SystemCreationClassName="CIM_ComputerSystem")";
constexpr char kSupply1[] =
    R"(\\.\root\cimv2\vorn:CIM_PowerSupply.CreationClassName="CIM_PowerSupply",)"
    R"(SystemName="RACK42-NODE0007",DeviceID="1",SystemCreationClassName="CIM_ComputerSystem")";
constexpr char kSupply100[] =
    R"(\\.\root\cimv2\vorn:CIM_PowerSupply.CreationClassName="CIM_PowerSupply",)"
    R"(SystemName="RACK42-NODE0007",DeviceID="100",SystemCreationClassName="CIM_ComputerSystem")";
constexpr char kSupply102[] =
    R"(\\.\root\cimv2\vorn:CIM_PowerSupply.CreationClassName="CIM_PowerSupply",)"
    R"(SystemName="RACK42-NODE0007",DeviceID="102",SystemCreationClassName="CIM_ComputerSystem")";

TEST_F(CimPackagePowerSupplyTest, PlacesEachSupplyInItsChassis) {
  EXPECT_EQ(0, Enumerate("CIM_PackagePowerSupply"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(Ends(kSupply0, kShelfA), Delivered(0));
  EXPECT_EQ(Ends(kSupply1, kShelfA), Delivered(1));
}

TEST_F(CimPackagePowerSupplyTest, RefersToSuppliesByNumberWithoutReadingTheirNames) {
  AddSupply(200, u"PS1");
  AddSupply(201, u"PS2");
  store.RecordCalls();
  Enumerate("CIM_PackagePowerSupply");
  EXPECT_EQ(
      (std::vector<std::string>{"convert RACK42-NODE0007", "children 1/17", "children 100/32",
                                "object 110", "free", "free", "children 100/21", "free", "free"}),
      store.Calls());
  EXPECT_EQ(Ends(kSupply0, kShelfA), Delivered(0));
}

TEST_F(CimPackagePowerSupplyTest, TheCounterIsNeverResetSoAsManySuppliesInASecondChassisAddNone) {
  AddSecondChassis({210, 211});
  EXPECT_EQ(0, Enumerate("CIM_PackagePowerSupply"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(Ends(kSupply1, kShelfA), Delivered(1));
}

TEST_F(CimPackagePowerSupplyTest, TheCounterIsNeverResetSoTheSecondChassisAddsItsThirdOnly) {
  AddSecondChassis({210, 211, 212});
  EXPECT_EQ(0, Enumerate("CIM_PackagePowerSupply"));
  ASSERT_EQ(3u, DeliveredCount());
  EXPECT_EQ(Ends(kSupply0, kShelfA), Delivered(0));
  EXPECT_EQ(Ends(kSupply1, kShelfA), Delivered(1));
  EXPECT_EQ(Ends(kSupply102, kShelfB), Delivered(2));
}

TEST_F(CimPackagePowerSupplyTest, TheCounterStaysAcrossAChassisWithoutSupplies) {
  AddSecondChassis({210, 211, 212});
  SetChassis({100, 102, 101});
  Describe(102, 112, u"Shelf C");
  for (const bool isListed : {true, false}) {
    if (isListed) {
      store.List(102, 21, {});
    } else {
      store.FailListing(102, 21);
    }
    EXPECT_EQ(0, Enumerate("CIM_PackagePowerSupply"));
  }
  ASSERT_EQ(6u, DeliveredCount());
  for (const size_t i : {size_t{2}, size_t{5}}) {
    EXPECT_NE(std::string::npos, Value(i, "Dependent").find(R"(DeviceID="202")"));
    EXPECT_EQ(kShelfB, Value(i, "Antecedent"));
  }
}

TEST_F(CimPackagePowerSupplyTest, PassesOverAChassisWithoutADescription) {
  AddSecondChassis({210});
  store.List(100, 32, {});
  EXPECT_EQ(0, Enumerate("CIM_PackagePowerSupply"));
  store.FailListing(100, 32);
  EXPECT_EQ(0, Enumerate("CIM_PackagePowerSupply"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(Ends(kSupply100, kShelfB), Delivered(0));
  EXPECT_EQ(Ends(kSupply100, kShelfB), Delivered(1));
}

TEST_F(CimPackagePowerSupplyTest, AChassisWithoutADescriptionIsNotAskedForItsSupplies) {
  store.FailListing(100, 32);
  store.RecordCalls();
  EXPECT_EQ(0, Enumerate("CIM_PackagePowerSupply"));
  EXPECT_EQ((std::vector<std::string>{"convert RACK42-NODE0007", "children 1/17", "children 100/32",
                                      "free"}),
            store.Calls());
}

TEST_F(CimPackagePowerSupplyTest, PassesOverAChassisWhoseDescriptionCannotBeRead) {
  AddSecondChassis({210});
  store.FailRead(110);
  EXPECT_EQ(0, Enumerate("CIM_PackagePowerSupply"));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(Ends(kSupply100, kShelfB), Delivered(0));
}

TEST_F(CimPackagePowerSupplyTest, TakesTheTagOfTheFirstDescription) {
  store.Add(111, 32).Ucs2(32, u"Another");
  store.List(100, 32, {110, 111});
  Enumerate("CIM_PackagePowerSupply");
  EXPECT_EQ(kShelfA, Value(0, "Antecedent"));
}

TEST_F(CimPackagePowerSupplyTest, AReferenceLongerThan255CharactersIsCut) {
  store.Object(110).Ucs2(32, std::u16string(300, u'T'));
  EXPECT_EQ(0, Enumerate("CIM_PackagePowerSupply"));
  std::string path = R"(\\.\root\cimv2\vorn:VORN_Chassis.CreationClassName="VORN_Chassis",Tag=")";
  path.resize(255, 'T');
  EXPECT_EQ(path, Value(0, "Antecedent"));
}

TEST_F(CimPackagePowerSupplyTest, WithoutChassisEnumerationIsSuccess) {
  SetChassis({});
  EXPECT_EQ(0, Enumerate("CIM_PackagePowerSupply"));
  store.FailListing(1, 17);
  EXPECT_EQ(0, Enumerate("CIM_PackagePowerSupply"));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimPackagePowerSupplyTest, ReturnsTheReferencesThatAreLeftAfterTheLastRelease) {
  sink.KeepInstances();
  EXPECT_EQ(1, Enumerate("CIM_PackagePowerSupply"));
}

TEST_F(CimPackagePowerSupplyTest, IgnoresTheSinksRefusals) {
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(0, Enumerate("CIM_PackagePowerSupply"));
  EXPECT_EQ(2u, DeliveredCount());
}

TEST_F(CimPackagePowerSupplyTest, AFailedSpawnEndsItWithTheLastRelease) {
  sink.KeepInstances();
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(1, Enumerate("CIM_PackagePowerSupply"));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(CimPackagePowerSupplyTest, AFailedSpawnEndsTheChassisBehindToo) {
  AddSecondChassis({210, 211, 212});
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, S_OK);
  EXPECT_EQ(0, Enumerate("CIM_PackagePowerSupply"));
  EXPECT_EQ(0, Enumerate("CIM_PackagePowerSupply"));
  EXPECT_EQ(2u, definition.Spawns());
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(CimPackagePowerSupplyTest, IsNeverGot) {
  ExpectNeverGot("CIM_PackagePowerSupply");
}

}  // namespace
}  // namespace tqcim::testing
