#include <algorithm>

#include "tests/classes/chassis_sensors/chassis_fixture.h"

namespace tqcim::testing {
namespace {

using ChassisRollUpsTest = ChassisFixture;

struct RollUp {
  uint16_t type;
  const char* property;
};
constexpr RollUp kWorstStatuses[] = {{22, "TempStatus"},  {23, "FanStatus"},  {24, "VoltStatus"},
                                     {25, "AmpStatus"},   {225, "MemStatus"}, {210, "ProcStatus"},
                                     {31, "EsmLogStatus"}};

TEST_F(ChassisRollUpsTest, RollsUpTheWorstStatusOfTheChildren) {
  for (const auto& [type, property] : kWorstStatuses) {
    AddChildren(type, 1000u * type, {2, 3});
    EXPECT_EQ("Stressed", Now(property)) << property;
    AddChildren(type, 1000u * type, {2, 4, 1});
    EXPECT_EQ("Error", Now(property)) << property;
    AddChildren(type, 1000u * type, {5, 0});
    EXPECT_EQ("NonRecover", Now(property)) << property;
    AddChildren(type, 1000u * type, {2, 2});
    EXPECT_EQ("OK", Now(property)) << property;
    AddChildren(type, 1000u * type, {0});
    EXPECT_EQ("Other", Now(property)) << property;
    AddChildren(type, 1000u * type, {5, 200});
    EXPECT_EQ("Stressed", Now(property)) << property;
  }
}

TEST_F(ChassisRollUpsTest, RollUpsWithoutChildrenAreUnknown) {
  for (const auto& [type, property] : kWorstStatuses) {
    store.List(2, type, {});
    EXPECT_EQ("Unknown", Now(property)) << property;
    store.FailListing(2, type);
    EXPECT_EQ("Unknown", Now(property)) << property;
  }
}

TEST_F(ChassisRollUpsTest, RollUpsIgnoreChildrenThatCannotBeRead) {
  AddChildren(22, 2200, {5, 3});
  store.FailRead(2200);
  EXPECT_EQ("Stressed", Now("TempStatus"));
  store.FailRead(2201);
  EXPECT_EQ("Other", Now("TempStatus"));
}

TEST_F(ChassisRollUpsTest, RollUpsCountTheFirst64ChildrenOnly) {
  std::vector<uint8_t> statuses(65, 2);
  statuses[64] = 5;
  AddChildren(22, 2200, statuses);
  AddChildren(21, 2100, statuses);
  EXPECT_EQ("OK", Now("TempStatus"));
  EXPECT_EQ("OK", Now("PsStatus"));
  EXPECT_EQ("OK", Now("VrmStatus"));
  store.Object(2200 + 63).U8(10, 4);
  store.Object(2100 + 63).U8(10, 4);
  EXPECT_EQ("Error", Now("TempStatus"));
  EXPECT_EQ("Error", Now("PsStatus"));
  EXPECT_EQ("Error", Now("VrmStatus"));
}

TEST_F(ChassisRollUpsTest, PowerSuppliesAndRegulatorsAreUnknownWithoutAny) {
  store.List(2, 21, {});
  EXPECT_EQ("Unknown", Now("PsStatus"));
  EXPECT_EQ("Unknown", Now("VrmStatus"));
  store.FailListing(2, 21);
  EXPECT_EQ("Unknown", Now("PsStatus"));
  EXPECT_EQ("Unknown", Now("VrmStatus"));
}

TEST_F(ChassisRollUpsTest, PowerSuppliesAndRegulatorsAreOkAtBest) {
  AddChildren(21, 2100, {0, 1});
  EXPECT_EQ("OK", Now("PsStatus"));
  EXPECT_EQ("OK", Now("VrmStatus"));
}

TEST_F(ChassisRollUpsTest, AFailedRegulatorShowsInTheRegulatorsOnly) {
  AddChildren(21, 2100, {4, 2});
  store.Object(2100).U8(40, 11).U8(41, 0xAA);
  store.Object(2101).U8(40, 9);
  EXPECT_EQ("OK", Now("PsStatus"));
  EXPECT_EQ("Error", Now("VrmStatus"));
}

TEST_F(ChassisRollUpsTest, AFailedPowerSupplyShowsInBoth) {
  AddChildren(21, 2100, {4});
  store.Object(2100).U8(40, 9);
  EXPECT_EQ("Error", Now("PsStatus"));
  EXPECT_EQ("Error", Now("VrmStatus"));
}

TEST_F(ChassisRollUpsTest, RegulatorsAloneLeaveThePowerSuppliesOk) {
  AddChildren(21, 2100, {5});
  store.Object(2100).U8(40, 11);
  EXPECT_EQ("OK", Now("PsStatus"));
  EXPECT_EQ("NonRecover", Now("VrmStatus"));
}

TEST_F(ChassisRollUpsTest, MemoryRedundancyIsAText) {
  AddChildren(232, 23200, {2, 2});
  store.Object(23200).U8(19, 0xAA);
  store.Object(23201).U8(18, 1);
  constexpr std::pair<uint8_t, const char*> kRows[] = {
      {0, "Not active"}, {1, "Active"}, {2, "Unknown"}, {255, "Unknown"}};
  for (const auto& [state, text] : kRows) {
    store.Object(23200).U8(18, state);
    EXPECT_EQ(text, Now("MemoryRedStatus")) << int{state};
  }
}

TEST_F(ChassisRollUpsTest, MemoryRedundancyIsAnEmptyTextWhereThereIsNothingToRead) {
  AddChildren(232, 23200, {2});
  store.FailRead(23200);
  EXPECT_EQ("", Now("MemoryRedStatus"));
  store.List(2, 232, {});
  EXPECT_EQ("", Now("MemoryRedStatus"));
  store.FailListing(2, 232);
  EXPECT_EQ("", Now("MemoryRedStatus"));
}

TEST_F(ChassisRollUpsTest, RedundancyIsThatOfTheFirstGroupWithMembers) {
  AddChildren(2, 300, {2, 3, 4, 5});
  store.List(300, 21, {});
  store.List(302, 21, {2100});
  store.List(303, 21, {2100});
  store.List(301, 23, {2300});
  EXPECT_EQ("Error", Now("PsRedStatus"));
  EXPECT_EQ("Stressed", Now("FanRedStatus"));
}

TEST_F(ChassisRollUpsTest, AGroupThatCannotBeReadIsPassedOverForTheNextWithMembers) {
  AddChildren(2, 300, {4, 2, 3});
  store.List(300, 21, {2100});
  store.List(301, 21, {});
  store.List(302, 21, {2100});
  store.FailRead(300);
  EXPECT_EQ("Stressed", Now("PsRedStatus"));
}

TEST_F(ChassisRollUpsTest, RedundancyIsAbsentWithoutAGroupThatHasMembers) {
  AddChildren(2, 300, {2});
  store.List(300, 21, {2100});
  EXPECT_EQ("OK", Now("PsRedStatus"));
  EXPECT_EQ("<absent>", Now("FanRedStatus"));
  store.FailRead(300);
  EXPECT_EQ("<absent>", Now("PsRedStatus"));
  store.List(2, 2, {});
  EXPECT_EQ("<absent>", Now("PsRedStatus"));
  store.FailListing(2, 2);
  EXPECT_EQ("<absent>", Now("PsRedStatus"));
}

TEST_F(ChassisRollUpsTest, SecurityBreachIsTranslated) {
  AddChildren(28, 2800, {2});
  store.Object(2800).U8(18, 0xAA);
  constexpr std::pair<uint8_t, const char*> kRows[] = {{0, "2"}, {1, "5"}, {2, "3"},
                                                       {3, "4"}, {4, "2"}, {255, "2"}};
  for (const auto& [state, value] : kRows) {
    store.Object(2800).U8(17, state);
    EXPECT_EQ(value, Now("SecurityBreach")) << int{state};
  }
}

TEST_F(ChassisRollUpsTest, SecurityBreachIsUnknownWhereThereIsNothingToRead) {
  AddChildren(28, 2800, {2});
  store.Object(2800).U8(17, 1);
  store.FailRead(2800);
  EXPECT_EQ("2", Now("SecurityBreach"));
  store.List(2, 28, {});
  EXPECT_EQ("2", Now("SecurityBreach"));
  store.FailListing(2, 28);
  EXPECT_EQ("2", Now("SecurityBreach"));
}

TEST_F(ChassisRollUpsTest, LogFormatIsTheCurrentOneAsSoonAsALogHasIt) {
  AddChildren(31, 3100, {2, 2});
  EXPECT_EQ("5", Now("LogFormat"));
  store.Object(3101).U32(16, 1);
  EXPECT_EQ("5", Now("LogFormat"));
  store.Object(3101).U32(16, 2).U32(20, 1);
  EXPECT_EQ("5", Now("LogFormat"));
  store.Object(3101).U32(16, 1).U32(20, 0x101);
  EXPECT_EQ("5", Now("LogFormat"));
  store.Object(3101).U32(20, 1);
  EXPECT_EQ("2", Now("LogFormat"));
}

TEST_F(ChassisRollUpsTest, LogFormatWithoutLogsIsAnother) {
  store.List(2, 31, {});
  EXPECT_EQ("5", Now("LogFormat"));
  store.FailListing(2, 31);
  EXPECT_EQ("5", Now("LogFormat"));
}

TEST_F(ChassisRollUpsTest, ALogThatCannotBeReadIsTriedAgain) {
  AddChildren(31, 3100, {2});
  store.Object(3100).U32(16, 1).U32(20, 1);
  // The first failure meets `EsmLogStatus`.
  store.FailRead(3100, 4);
  EXPECT_EQ("2", Now("LogFormat"));
}

TEST_F(ChassisRollUpsTest, ALogThatCanNeverBeReadCountsAsAbsentAfter65536Tries) {
  AddChildren(31, 3100, {2, 2, 2});
  store.Object(3102).U32(16, 1).U32(20, 1);
  store.FailRead(3100);
  store.FailRead(3101);
  store.RecordCalls();
  EXPECT_EQ("2", Now("LogFormat"));
  const auto& calls = store.Calls();
  // One of them is for `EsmLogStatus`.
  EXPECT_EQ(65'537, std::count(calls.begin(), calls.end(), "object 3100"));
  EXPECT_EQ(65'537, std::count(calls.begin(), calls.end(), "object 3101"));
}

}  // namespace
}  // namespace tqcim::testing
