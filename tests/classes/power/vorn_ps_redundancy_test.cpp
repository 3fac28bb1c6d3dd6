#include "tests/classes/power/power_test.h"

namespace tqcim::testing {
namespace {

/// One chassis, one group, two supplies.
class VornPsRedundancyTest : public PowerTest {
 protected:
  VornPsRedundancyTest() {
    SetChassis({100});
    AddGroup(400, u"Main");
    store.List(2, 2, {400});
    AddSupply(200, u"PS1");
    AddSupply(201, u"PS2");
    store.List(2, 21, {200, 201});
  }

  HRESULT Associate() { return Enumerate("VORN_PSRedundancy"); }
};

constexpr char kMemberSupply1[] =
    R"(\\.\root\cimv2\vorn:CIM_PowerSupply.CreationClassName="CCIM_PowerSupply",)"
    R"(SystemName="RACK42-NODE0007",DeviceID="PS1",SystemCreationClassName="CIM_ComputerSystem")";
constexpr char kMemberSupply2[] =
    R"(\\.\root\cimv2\vorn:CIM_PowerSupply.CreationClassName="CCIM_PowerSupply",)"
    R"(SystemName="RACK42-NODE0007",DeviceID="PS2",SystemCreationClassName="CIM_ComputerSystem")";

TEST_F(VornPsRedundancyTest, PairsEachSupplyWithTheGroupNamedWithItsChassisIndex) {
  EXPECT_EQ(0, Associate());
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(Ends(kMemberSupply1, kMain0), Delivered(0));
  EXPECT_EQ(Ends(kMemberSupply2, kMain0), Delivered(1));
}

TEST_F(VornPsRedundancyTest, PairsAllSuppliesWithTheFirstGroupOnly) {
  AddGroup(401, u"Spare");
  store.List(2, 2, {400, 401});
  EXPECT_EQ(0, Associate());
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(kMain0, Value(0, "Antecedent"));
  EXPECT_EQ(kMain0, Value(1, "Antecedent"));
}

TEST_F(VornPsRedundancyTest, PairsAllSuppliesOnTheFirstChassisOnly) {
  SetChassis({100, 101});
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(2u, DeliveredCount());
}

TEST_F(VornPsRedundancyTest, NeitherPositionIsResetForTheNextGroupOrChassis) {
  SetChassis({100, 101});
  AddGroup(401, u"Spare");
  store.List(2, 2, {400, 401});
  store.RecordCalls();
  Associate();
  EXPECT_EQ((std::vector<std::string>{"convert RACK42-NODE0007",
                                      "children 1/17",  //
                                      "children 2/2",
                                      "object 400",
                                      "free",  //
                                      "children 2/21",
                                      "object 200",
                                      "free",
                                      "free",  //
                                      "children 2/21",
                                      "object 201",
                                      "free",
                                      "free",  //
                                      "children 2/21",
                                      "free",
                                      "free",  //
                                      "children 2/2",
                                      "object 401",
                                      "free",  //
                                      "children 2/21",
                                      "free",
                                      "free",
                                      "children 2/2",
                                      "free",  //
                                      "children 2/2",
                                      "free",
                                      "free"}),
            store.Calls());
}

TEST_F(VornPsRedundancyTest, PairsSuppliesThatAreNoMembersOfTheGroupToo) {
  store.List(400, 21, {201});
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(2u, DeliveredCount());
}

TEST_F(VornPsRedundancyTest, ASupplyOfKindElevenIsNeverAMember) {
  store.Object(200).U8(40, 11);
  EXPECT_EQ(0, Associate());
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(Ends(kMemberSupply2, kMain0), Delivered(0));
}

TEST_F(VornPsRedundancyTest, SuppliesOfEveryOtherKindAreMembers) {
  for (const uint8_t kind : std::initializer_list<uint8_t>{0, 9, 10, 12, 255}) {
    store.Object(200).U8(40, kind);
    const size_t before = DeliveredCount();
    EXPECT_EQ(0, Associate());
    EXPECT_EQ(before + 2, DeliveredCount()) << int{kind};
  }
}

TEST_F(VornPsRedundancyTest, WithoutChassisEnumerationIsSuccess) {
  SetChassis({});
  EXPECT_EQ(0, Associate());
  store.FailListing(1, 17);
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornPsRedundancyTest, WithoutSuppliesEnumerationIsSuccess) {
  store.List(2, 21, {});
  EXPECT_EQ(0, Associate());
  store.FailListing(2, 21);
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornPsRedundancyTest, WithoutGroupsEnumerationIsSuccess) {
  store.List(2, 2, {});
  EXPECT_EQ(0, Associate());
  store.FailListing(2, 2);
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornPsRedundancyTest, AGroupThatFailsToBeReadOnceIsPairedOnTheNextChassis) {
  SetChassis({100, 101});
  store.FailRead(400, 1);
  EXPECT_EQ(0, Associate());
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(Ends(kMemberSupply1, kMain1), Delivered(0));
  EXPECT_EQ(Ends(kMemberSupply2, kMain1), Delivered(1));
}

TEST_F(VornPsRedundancyTest, ASupplyThatFailsToBeReadOnceGoesToTheNextGroup) {
  AddGroup(401, u"Spare");
  store.List(2, 2, {400, 401});
  store.FailRead(201, 1);
  EXPECT_EQ(0, Associate());
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(Ends(kMemberSupply1, kMain0), Delivered(0));
  EXPECT_EQ(Ends(kMemberSupply2, kSpare0), Delivered(1));
}

}  // namespace
}  // namespace tqcim::testing
