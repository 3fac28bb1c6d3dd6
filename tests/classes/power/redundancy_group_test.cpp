// What the redundancy groups of power supplies and of fans have in common.
#include "tests/classes/power/power_test.h"

namespace tqcim::testing {
namespace {

/// A group class, the type of its members, and that of the other class.
struct GroupClass {
  const char* name;
  uint16_t memberType;
  uint16_t otherMemberType;
};

std::ostream& operator<<(std::ostream& out, const GroupClass& group) {
  return out << group.name;
}

/// One chassis, and two groups with members of the class.
class RedundancyGroupTest : public PowerTest, public ::testing::WithParamInterface<GroupClass> {
 protected:
  RedundancyGroupTest() {
    SetChassis({100});
    AddGroup(400, u"Main");
    AddGroup(401, u"Spare");
    store.List(2, 2, {400, 401});
    store.List(400, GetParam().memberType, {200, 201});
    store.List(401, GetParam().memberType, {202});
  }

  HRESULT EnumerateGroups() { return Enumerate(GetParam().name); }
  HRESULT GetByName(const OLECHAR* name) {
    return Get(GetParam().name, StringKey(OLESTR("Name"), name));
  }
};

TEST_P(RedundancyGroupTest, RedundancyStatusIsTranslated) {
  constexpr std::pair<uint8_t, const char*> kRows[] = {{0, "1"}, {1, "0"}, {2, "1"},  {3, "1"},
                                                       {4, "2"}, {5, "3"}, {6, "4"},  {7, "1"},
                                                       {8, "1"}, {9, "1"}, {255, "1"}};
  for (const auto& [state, status] : kRows) {
    store.Object(400).U8(16, state);
    GetByName(OLESTR("Main"));
    EXPECT_EQ(status, Value(DeliveredCount() - 1, "RedundancyStatus")) << int{state};
  }
}

TEST_P(RedundancyGroupTest, MinNumberNeededHasNoSign) {
  store.Object(400).U16(18, 0xFFFE);
  GetByName(OLESTR("Main"));
  EXPECT_EQ("65534", Value(0, "MinNumberNeeded"));
}

TEST_P(RedundancyGroupTest, AGroupIsHeldWithItsMembersWhileItIsDelivered) {
  size_t live = 0;
  sink.AtIndicate([&] { live = store.LiveBlocks(); });
  EnumerateGroups();
  EXPECT_EQ(3u, live) << "the list of chassis, the group and the list of its members";
}

TEST_P(RedundancyGroupTest, EnumeratesTheGroupsInStoreOrder) {
  EXPECT_EQ(0, EnumerateGroups());
  EXPECT_EQ((Texts{"Main", "Spare"}), Values("Name"));
}

TEST_P(RedundancyGroupTest, EveryGroupIsDeliveredAgainForEveryChassis) {
  SetChassis({100, 101, 102});
  EXPECT_EQ(0, EnumerateGroups());
  EXPECT_EQ((Texts{"Main", "Spare", "Main", "Spare", "Main", "Spare"}), Values("Name"));
}

TEST_P(RedundancyGroupTest, AGroupWithoutMembersOfTheClassIsPassedOver) {
  store.List(400, GetParam().memberType, {});
  store.List(400, GetParam().otherMemberType, {200});
  EXPECT_EQ(0, EnumerateGroups());
  store.FailListing(400, GetParam().memberType);
  EXPECT_EQ(0, EnumerateGroups());
  EXPECT_EQ((Texts{"Spare", "Spare"}), Values("Name"));
}

TEST_P(RedundancyGroupTest, MembersAreListedUnderTheGroupsOwnIdentifier) {
  std::string listing = "children 777/";
  listing += std::to_string(GetParam().memberType);
  store.Object(400).U32(4, 777);
  store.List(777, GetParam().memberType, {});
  store.List(2, 2, {400});
  store.RecordCalls();
  EXPECT_EQ(0, EnumerateGroups());
  EXPECT_EQ((std::vector<std::string>{"children 1/17", "children 2/2", "object 400", "free",
                                      listing, "free", "free", "children 2/2", "free", "free"}),
            store.Calls());
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_P(RedundancyGroupTest, GettingHasTheComputerNameConvertedWithoutNeed) {
  store.List(1, 17, {});
  store.RecordCalls();
  GetByName(OLESTR("Main"));
  EXPECT_EQ((std::vector<std::string>{"convert RACK42-NODE0007", "children 1/17", "free"}),
            store.Calls());
}

TEST_P(RedundancyGroupTest, WithoutChassisOrGroupsEnumerationIsSuccess) {
  store.List(2, 2, {});
  EXPECT_EQ(0, EnumerateGroups());
  store.FailListing(2, 2);
  EXPECT_EQ(0, EnumerateGroups());
  SetChassis({});
  EXPECT_EQ(0, EnumerateGroups());
  store.FailListing(1, 17);
  EXPECT_EQ(0, EnumerateGroups());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(RedundancyGroupTest, AnUnreadableGroupEndsTheGroupsOfItsChassis) {
  SetChassis({100, 101});
  store.FailRead(400, 1);
  EXPECT_EQ(0, EnumerateGroups());
  EXPECT_EQ((Texts{"Main", "Spare"}), Values("Name"));
}

TEST_P(RedundancyGroupTest, EnumerationGoesOnAfterARefusalAndReturnsTheLastDelivery) {
  sink.KeepInstances();
  sink.Refuse(0, Hr(0x80041032));
  EXPECT_EQ(0, EnumerateGroups());
  sink.Refuse(3, Hr(0x80041033));
  EXPECT_EQ(Hr(0x80041033), EnumerateGroups());
  EXPECT_EQ(4u, DeliveredCount());
}

TEST_P(RedundancyGroupTest, AFailedSpawnEndsTheEnumerationWithTheLastDelivery) {
  SetChassis({100, 101});
  sink.Refuse(0, Hr(0x80041032));
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041032), EnumerateGroups());
  EXPECT_EQ(2u, definition.Spawns());
}

TEST_P(RedundancyGroupTest, AFirstSpawnWithoutAnInstanceIsSuccess) {
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, S_OK);
  EXPECT_EQ(0, EnumerateGroups());
  EXPECT_EQ(0, EnumerateGroups());
  EXPECT_EQ(2u, definition.Spawns());
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_P(RedundancyGroupTest, IsGotByItsNameInAnyCase) {
  EXPECT_EQ(0, GetByName(OLESTR("sPARE")));
  EXPECT_EQ((Texts{"Spare"}), Values("Name"));
}

TEST_P(RedundancyGroupTest, IsGotOnceThoughThereAreSeveralChassis) {
  SetChassis({100, 101});
  AddGroup(401, u"main");
  EXPECT_EQ(0, GetByName(OLESTR("Main")));
  EXPECT_EQ((Texts{"Main"}), Values("Name"));
}

TEST_P(RedundancyGroupTest, IsGotEvenWithoutMembers) {
  store.List(400, GetParam().memberType, {});
  EXPECT_EQ(0, GetByName(OLESTR("Main")));
  EXPECT_EQ((Texts{"Main"}), Values("Name"));
}

TEST_P(RedundancyGroupTest, TheNameOfAReferenceWithItsChassisIndexIsNotGot) {
  for (const OLECHAR* name : {OLESTR("Main0"), OLESTR("Mai"), OLESTR("")}) {
    EXPECT_EQ(0, GetByName(name));
  }
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(RedundancyGroupTest, GettingLooksAtTheGroupsAgainForEveryChassis) {
  SetChassis({100, 101});
  store.FailRead(400, 1);
  EXPECT_EQ(0, GetByName(OLESTR("Spare")));
  EXPECT_EQ((Texts{"Spare"}), Values("Name"));
}

TEST_P(RedundancyGroupTest, GettingEndsAtAnUnreadableGroup) {
  store.FailRead(400);
  EXPECT_EQ(0, GetByName(OLESTR("Spare")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(RedundancyGroupTest, GettingWhatIsNotThereIsSuccessWithNothing) {
  store.FailRead(400);
  EXPECT_EQ(0, GetByName(OLESTR("Main")));
  store.FailListing(2, 2);
  EXPECT_EQ(0, GetByName(OLESTR("Spare")));
  SetChassis({});
  EXPECT_EQ(0, GetByName(OLESTR("Spare")));
  store.FailListing(1, 17);
  EXPECT_EQ(0, GetByName(OLESTR("Spare")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(RedundancyGroupTest, WithoutChassisNoGroupIsGot) {
  SetChassis({});
  EXPECT_EQ(0, GetByName(OLESTR("Main")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(RedundancyGroupTest, GettingReturnsTheStatusOfTheDelivery) {
  sink.KeepInstances();
  sink.Refuse(0, Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), GetByName(OLESTR("Main")));
  EXPECT_EQ(0, GetByName(OLESTR("Main")));
}

TEST_P(RedundancyGroupTest, GettingReturnsTheResultOfASpawnWithoutAnInstance) {
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, S_OK);
  EXPECT_EQ(Hr(0x80041006), GetByName(OLESTR("Main")));
  EXPECT_EQ(0, GetByName(OLESTR("Main")));
  EXPECT_EQ(0u, DeliveredCount());
}

constexpr GroupClass kGroupClasses[] = {{"VORN_PSRedundancyGroup", 21, 23},
                                        {"VORN_FanRedundancyGroup", 23, 21}};

INSTANTIATE_TEST_SUITE_P(Classes, RedundancyGroupTest, ::testing::ValuesIn(kGroupClasses),
                         kClassName);

}  // namespace
}  // namespace tqcim::testing
