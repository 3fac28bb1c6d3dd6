#include "tests/classes/power/power_test.h"

namespace tqcim::testing {
namespace {

/// Chassis 100 with two supplies, and for each the probe of its current.
class VornAssociatedSupplyPcAmpsTest : public PowerTest {
 protected:
  VornAssociatedSupplyPcAmpsTest() {
    SetChassis({100});
    AddSupply(200, u"PS 1");
    AddSupply(201, u"PS 2");
    store.List(100, 21, {200, 201});
    AddProbe(300, 23, u"PS 1");
    AddProbe(301, 25, u"PS 2");
    store.List(100, 25, {300, 301});
  }

  HRESULT Associate() { return Enumerate("VORN_AssociatedSupplyPCAmps"); }
};

constexpr char kMeteredSupply1[] =
    R"(\\.\root\cimv2\vorn:CIM_PowerSupply.CreationClassName="CCIM_PowerSupply",)"
    R"(SystemName="RACK42-NODE0007",DeviceID="PS 1",SystemCreationClassName="CIM_ComputerSystem")";
constexpr char kMeteredSupply2[] =
    R"(\\.\root\cimv2\vorn:CIM_PowerSupply.CreationClassName="CCIM_PowerSupply",)"
    R"(SystemName="RACK42-NODE0007",DeviceID="PS 2",SystemCreationClassName="CIM_ComputerSystem")";
constexpr char kMeteringSensor1[] =
    R"(\\.\root\cimv2\vorn:VORN_PowerConsumptionAmpsSensor.)"
    R"(CreationClassName="CVORN_PowerConsumptionAmpsSensor",)"
    R"(SystemName="RACK42-NODE0007",Name="PS 1",SystemCreationClassName="CIM_ComputerSystem")";
constexpr char kMeteringSensor2[] =
    R"(\\.\root\cimv2\vorn:VORN_PowerConsumptionAmpsSensor.)"
    R"(CreationClassName="CVORN_PowerConsumptionAmpsSensor",)"
    R"(SystemName="RACK42-NODE0007",Name="PS 2",SystemCreationClassName="CIM_ComputerSystem")";

TEST_F(VornAssociatedSupplyPcAmpsTest, PairsASupplyWithItsProbeUnderClassNamesWithALetterTooMany) {
  EXPECT_EQ(0, Associate());
  ASSERT_LE(1u, DeliveredCount());
  EXPECT_EQ(Ends(kMeteredSupply1, kMeteringSensor1), Delivered(0));
}

TEST_F(VornAssociatedSupplyPcAmpsTest, TheSharedChassisIndexEndsTheAssociationAfterTheFirstSupply) {
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(VornAssociatedSupplyPcAmpsTest, TheSuppliesOfLaterChassisAreNotAssociatedEither) {
  SetChassis({100, 101});
  AddSupply(210, u"PS 1");
  store.List(101, 21, {210});
  AddProbe(310, 23, u"far");
  store.List(101, 25, {310});
  store.RecordCalls();
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(1u, DeliveredCount());
  EXPECT_EQ((std::vector<std::string>{"convert RACK42-NODE0007",  //
                                      "children 1/17",
                                      "children 100/21",
                                      "object 200",
                                      "free",
                                      "free",  //
                                      "children 1/17",
                                      "children 100/25",
                                      "object 300",
                                      "free",
                                      "free",
                                      "compare",
                                      "free",  //
                                      "children 1/17",
                                      "children 100/25",
                                      "object 301",
                                      "free",
                                      "free",
                                      "compare",
                                      "free",  //
                                      "children 1/17",
                                      "children 100/25",
                                      "free",
                                      "children 101/25",
                                      "object 310",  //
                                      "free",
                                      "free",
                                      "compare",
                                      "free",  //
                                      "children 1/17",
                                      "children 101/25",
                                      "free",
                                      "free",
                                      "free",  //
                                      "children 1/17",
                                      "free"}),
            store.Calls());
}

TEST_F(VornAssociatedSupplyPcAmpsTest, TheProbesOfLaterChassisArePairedWithTheFirstSupply) {
  SetChassis({100, 101});
  AddProbe(310, 25, u"PS 1");
  store.List(101, 25, {310});
  EXPECT_EQ(0, Associate());
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(Ends(kMeteredSupply1, kMeteringSensor1), Delivered(0));
  EXPECT_EQ(Ends(kMeteredSupply1, kMeteringSensor1), Delivered(1));
}

TEST_F(VornAssociatedSupplyPcAmpsTest, TheProbesOfChassisBeforeTheFirstSupplyAreNotSeen) {
  SetChassis({102, 100});
  store.List(102, 21, {});
  AddProbe(320, 23, u"PS 1");
  store.List(102, 25, {320});
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(VornAssociatedSupplyPcAmpsTest, TakesProbesOfSubtypes23And25Only) {
  for (const uint32_t subtype : {0u, 22u, 24u, 26u, 27u, 0x0117u, 0x00010017u}) {
    store.Object(300).U32(16, subtype);
    EXPECT_EQ(0, Associate());
    EXPECT_EQ(0u, DeliveredCount()) << subtype;
  }
  store.Object(300).U32(16, 25);
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(VornAssociatedSupplyPcAmpsTest, ANameThatDiffersInCaseOnlyDoesNotMatch) {
  store.Object(300).U32(16, 25).Ucs2(72, u"ps 1");
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornAssociatedSupplyPcAmpsTest, ANameThatOnlyBeginsTheSameDoesNotMatch) {
  store.Object(300).Ucs2(72, u"PS 11");
  store.Object(301).Ucs2(72, u"PS ");
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornAssociatedSupplyPcAmpsTest, WithoutChassisOrSuppliesEnumerationIsSuccess) {
  store.List(100, 21, {});
  EXPECT_EQ(0, Associate());
  store.FailListing(100, 21);
  EXPECT_EQ(0, Associate());
  SetChassis({});
  EXPECT_EQ(0, Associate());
  store.FailListing(1, 17);
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornAssociatedSupplyPcAmpsTest, WithoutProbesEnumerationIsSuccess) {
  store.List(100, 25, {});
  EXPECT_EQ(0, Associate());
  store.FailListing(100, 25);
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornAssociatedSupplyPcAmpsTest, AnUnreadableSupplyEndsTheEnumeration) {
  store.FailRead(200);
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornAssociatedSupplyPcAmpsTest, AProbeThatFailsToBeReadOnceGoesToTheNextSupply) {
  store.FailRead(301, 1);
  EXPECT_EQ(0, Associate());
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(Ends(kMeteredSupply1, kMeteringSensor1), Delivered(0));
  EXPECT_EQ(Ends(kMeteredSupply2, kMeteringSensor2), Delivered(1));
}

TEST_F(VornAssociatedSupplyPcAmpsTest, TheNextSupplyGoesOnWhereTheProbesOfTheFirstEnded) {
  store.Object(201).Ucs2(44, u"PS 1");
  store.FailRead(301, 1);
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(VornAssociatedSupplyPcAmpsTest, AProbeThatCannotBeReadEndsTheWalkOfEverySupply) {
  store.FailRead(300);
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(0u, definition.Spawns());
}

}  // namespace
}  // namespace tqcim::testing
