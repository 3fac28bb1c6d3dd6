#include <algorithm>

#include "tests/classes/chassis_sensors/chassis_fixture.h"

namespace tqcim::testing {
namespace {

using VornChassisTest = ChassisFixture;

const Puts kRollUpsOfABareChassis = {{"TempStatus", VT_BSTR, 0, "Unknown"},
                                     {"FanStatus", VT_BSTR, 0, "Unknown"},
                                     {"VoltStatus", VT_BSTR, 0, "Unknown"},
                                     {"AmpStatus", VT_BSTR, 0, "Unknown"},
                                     {"MemStatus", VT_BSTR, 0, "Unknown"},
                                     {"ProcStatus", VT_BSTR, 0, "Unknown"},
                                     {"PsStatus", VT_BSTR, 0, "Unknown"},
                                     {"VrmStatus", VT_BSTR, 0, "Unknown"},
                                     {"EsmLogStatus", VT_BSTR, 0, "Unknown"},
                                     {"MemoryRedStatus", VT_BSTR, 0, ""},
                                     {"IsDefThrSupported", VT_BOOL, 0, "1"},
                                     {"SecurityBreach", VT_I4, 0, "2"},
                                     {"LogFormat", VT_I4, 0, "5"}};

TEST_F(VornChassisTest, AChassisGoesBackToTheLibraryBeforeItIsDelivered) {
  size_t live = 0;
  sink.AtIndicate([&] { live = store.LiveBlocks(); });
  EXPECT_EQ(0, Enumerate("VORN_Chassis"));
  EXPECT_EQ(1u, live) << "the list alone is there";
}

TEST_F(VornChassisTest, PutsItsPropertiesInOrder) {
  AddIdentity();
  AddChildren(22, 2200, {0});
  AddChildren(23, 2300, {2});
  AddChildren(24, 2400, {3});
  AddChildren(25, 2500, {4});
  AddChildren(225, 22500, {5});
  AddChildren(210, 21000, {2});
  AddChildren(21, 2100, {2});
  AddChildren(31, 3100, {2});
  AddChildren(232, 23200, {2});
  AddChildren(28, 2800, {2});
  AddChildren(2, 300, {3, 4});
  store.List(300, 21, {2100});
  store.List(301, 23, {2300});
  store.Object(3100).U32(16, 1).U32(20, 1);
  store.Object(23200).U8(18, 1);
  store.Object(2800).U8(17, 2);
  EXPECT_EQ(0, Enumerate("VORN_Chassis"));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ((Puts{{"TempStatus", VT_BSTR, 0, "Other"},
                  {"FanStatus", VT_BSTR, 0, "OK"},
                  {"VoltStatus", VT_BSTR, 0, "Stressed"},
                  {"AmpStatus", VT_BSTR, 0, "Error"},
                  {"MemStatus", VT_BSTR, 0, "NonRecover"},
                  {"ProcStatus", VT_BSTR, 0, "OK"},
                  {"PsStatus", VT_BSTR, 0, "OK"},
                  {"VrmStatus", VT_BSTR, 0, "OK"},
                  {"EsmLogStatus", VT_BSTR, 0, "OK"},
                  {"MemoryRedStatus", VT_BSTR, 0, "Active"},
                  {"PsRedStatus", VT_BSTR, 0, "Stressed"},
                  {"FanRedStatus", VT_BSTR, 0, "Error"},
                  {"IsDefThrSupported", VT_BOOL, 0, "1"},
                  {"SecurityBreach", VT_I4, 0, "3"},
                  {"LogFormat", VT_I4, 0, "2"},
                  {"ChassisTypes", VT_ARRAY | VT_I4, 0, "{23}"},
                  {"Name", VT_BSTR, 0, "Main System Chassis"},
                  {"Tag", VT_BSTR, 0, "Main System Chassis"},
                  {"Model", VT_BSTR, 0, "Example R700"},
                  {"Status", VT_BSTR, 0, "OK"},
                  {"LockPresent", VT_BOOL, 0, "1"},
                  {"SystemClass", VT_I4, 0, "-2147483645"},
                  {"SystemID", VT_I4, 0, "200"},
                  {"ChassisSystemProperties", VT_I4, 0, "129"},
                  {"ChassisSystemRevision", VT_I4, 0, "255"},
                  {"ChassisSystemRevisionName", VT_BSTR, 0, "A00"},
                  {"AssetTag", VT_BSTR, 0, "Asset 7"},
                  {"SerialNumber", VT_BSTR, 0, "SN-0001"},
                  {"ChassisExpressServiceCode", VT_BSTR, 0, "12345678901"},
                  {"ChassisNodeID", VT_BSTR, 0, "NODE-1"},
                  {"VisibleAlarm", VT_BOOL, 0, "1"},
                  {"CreationClassName", VT_BSTR, 0, "VORN_Chassis"}}),
            Delivered(0));
}

TEST_F(VornChassisTest, WithoutDescriptionAndIdentityThereIsNoStatusEither) {
  store.FailListing(2, 32);
  Enumerate("VORN_Chassis");
  Puts expected = kRollUpsOfABareChassis;
  expected.push_back({"CreationClassName", VT_BSTR, 0, "VORN_Chassis"});
  EXPECT_EQ(expected, Delivered(0));
}

TEST_F(VornChassisTest, AnUnreadableDescriptionIsNone) {
  store.FailRead(32);
  EXPECT_EQ("<absent>", Now("Status"));
  EXPECT_EQ("<absent>", Now("Name"));
}

TEST_F(VornChassisTest, OptionalPropertiesAreLeftOut) {
  AddIdentity();
  store.Object(32).U16(24, 0).U32(48, 0);
  store.Add(33, 33).Ucs2(32, u"").Ucs2(36, u"").Ucs2(44, u"");
  EXPECT_EQ("<absent>", Now("LockPresent"));
  EXPECT_EQ("<absent>", Now("ChassisNodeID"));
  EXPECT_EQ("<absent>", Now("VisibleAlarm"));
  EXPECT_EQ("", Now("AssetTag"));
}

TEST_F(VornChassisTest, ARevisionWithoutANameIsPutAsANullText) {
  store.Add(32, 32).Ucs2(32, u"Chassis").Ucs2(40, u"");
  Enumerate("VORN_Chassis");
  const Puts puts = Delivered(0);
  EXPECT_EQ(1, std::count(puts.begin(), puts.end(),
                          RecordedPut{"ChassisSystemRevisionName", VT_BSTR, 0, "<null>"}));
}

TEST_F(VornChassisTest, AnyNonZeroLockWordIsALock) {
  store.Object(32).U16(24, 0x0100);
  EXPECT_EQ("1", Now("LockPresent"));
}

TEST_F(VornChassisTest, AnyNonZeroAlarmByteIsAnAlarm) {
  AddIdentity();
  store.Object(33).U8(17, 0x80);
  EXPECT_EQ("1", Now("VisibleAlarm"));
}

TEST_F(VornChassisTest, SystemId254MeansTheExtendedIdentifier) {
  store.Object(32).U8(28, 254);
  EXPECT_EQ("291", Now("SystemID"));
  store.Object(32).U16(30, 0xFFFF);
  EXPECT_EQ("65535", Now("SystemID"));
  store.Object(32).U8(28, 255);
  EXPECT_EQ("255", Now("SystemID"));
}

TEST_F(VornChassisTest, StatusIsTheChassissOwn) {
  store.Object(2).U8(10, 4);
  store.Object(32).U8(10, 2);
  EXPECT_EQ("Error", Now("Status"));
}

TEST_F(VornChassisTest, EnumeratesEveryChassis) {
  store.Add(5, 17, 3);
  AddDescription(5, 532, u"Second");
  store.List(1, 17, {5, 2});
  EXPECT_EQ(0, Enumerate("VORN_Chassis"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ("Second", Value(0, "Tag"));
  EXPECT_EQ("Stressed", Value(0, "Status"));
  EXPECT_EQ("Main System Chassis", Value(1, "Tag"));
}

TEST_F(VornChassisTest, ChildrenBelongToTheIdentifierThatTheChassisIsListedBy) {
  store.Object(2).U32(4, 777);
  EXPECT_EQ("Main System Chassis", Now("Tag"));
  EXPECT_EQ(0, GetByTag(OLESTR("another")));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(VornChassisTest, AnEmptyStoreIsSuccess) {
  store.List(1, 17, {});
  EXPECT_EQ(0, Enumerate("VORN_Chassis"));
  store.FailListing(1, 17);
  EXPECT_EQ(0, Enumerate("VORN_Chassis"));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornChassisTest, SkipsAChassisThatCannotBeRead) {
  store.List(1, 17, {9, 2, 9});
  EXPECT_EQ(0, Enumerate("VORN_Chassis"));
  EXPECT_EQ(1u, DeliveredCount());
  EXPECT_EQ(3u, definition.Spawns());
}

TEST_F(VornChassisTest, AFailedSpawnEndsTheEnumeration) {
  store.List(1, 17, {2, 2, 2});
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), Enumerate("VORN_Chassis"));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(VornChassisTest, ASuccessfulSpawnWithoutAnInstanceEndsTheEnumerationToo) {
  store.List(1, 17, {2, 2, 2});
  definition.SpawnNothing(1, S_FALSE);
  EXPECT_EQ(S_FALSE, Enumerate("VORN_Chassis"));
  EXPECT_EQ(2u, definition.Spawns());
}

TEST_F(VornChassisTest, ARefusalEndsTheEnumeration) {
  store.List(1, 17, {2, 2, 2});
  sink.Refuse(1, Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), Enumerate("VORN_Chassis"));
  EXPECT_EQ(2u, DeliveredCount());
}

TEST_F(VornChassisTest, ASinksSuccessCodeDoesNotEndTheEnumeration) {
  store.List(1, 17, {2, 2});
  sink.SetIndicateResult(S_FALSE);
  EXPECT_EQ(S_FALSE, Enumerate("VORN_Chassis"));
  EXPECT_EQ(2u, DeliveredCount());
}

TEST_F(VornChassisTest, IsGotByItsTag) {
  EXPECT_EQ(0, GetByTag(OLESTR("Main System Chassis")));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ("Main System Chassis", Value(0, "Tag"));
  EXPECT_EQ("VORN_Chassis", Value(0, "CreationClassName"));
  EXPECT_EQ("Unknown", Value(0, "TempStatus"));
}

TEST_F(VornChassisTest, TheTagIsMatchedExactly) {
  for (const OLECHAR* tag : {OLESTR("main system chassis"), OLESTR("Main System Chassi"),
                             OLESTR("Main System Chassis "), OLESTR("")}) {
    EXPECT_EQ(0, GetByTag(tag));
  }
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornChassisTest, EveryChassisWithTheTagIsDelivered) {
  store.Add(5, 17);
  AddDescription(5, 532, u"Other");
  store.Add(6, 17);
  AddDescription(6, 632, u"Main System Chassis");
  store.List(1, 17, {2, 5, 6});
  EXPECT_EQ(0, GetByTag(OLESTR("Main System Chassis")));
  EXPECT_EQ(2u, DeliveredCount());
}

TEST_F(VornChassisTest, AChassisWithoutADescriptionGoesByAnyTag) {
  store.List(2, 32, {});
  EXPECT_EQ(0, GetByTag(OLESTR("whatever")));
  store.FailListing(2, 32);
  EXPECT_EQ(0, GetByTag(OLESTR("whatever")));
  store.FailListing(2, 32, 0);
  store.List(2, 32, {999});
  EXPECT_EQ(0, GetByTag(OLESTR("whatever")));
  EXPECT_EQ(3u, DeliveredCount());
}

TEST_F(VornChassisTest, GettingSkipsAChassisThatCannotBeRead) {
  store.List(1, 17, {9, 2});
  EXPECT_EQ(0, GetByTag(OLESTR("Main System Chassis")));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(VornChassisTest, GettingFromAnEmptyStoreIsSuccess) {
  store.FailListing(1, 17);
  EXPECT_EQ(0, GetByTag(OLESTR("Main System Chassis")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornChassisTest, GettingFromAnEmptyStoreReturnsTheResultOfTheKeysReading) {
  store.List(1, 17, {});
  FakeKeyList keys;
  keys.Add(StringKey(OLESTR("Tag"), OLESTR("Main System Chassis"))).FailKey(0, S_FALSE);
  EXPECT_EQ(S_FALSE, Get("VORN_Chassis", keys));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornChassisTest, GettingDoesNotStopAtARefusalAndReturnsTheLastStatus) {
  store.List(1, 17, {2, 2});
  sink.Refuse(0, Hr(0x80041032));
  EXPECT_EQ(0, GetByTag(OLESTR("Main System Chassis")));
  EXPECT_EQ(2u, DeliveredCount());
  sink.Refuse(3, Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), GetByTag(OLESTR("Main System Chassis")));
}

TEST_F(VornChassisTest, GettingEndsAtASpawnWithoutAnInstanceWithItsResult) {
  store.List(1, 17, {2, 2});
  definition.SpawnNothing(0, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), GetByTag(OLESTR("Main System Chassis")));
  definition.SpawnNothing(1, S_FALSE);
  EXPECT_EQ(S_FALSE, GetByTag(OLESTR("Main System Chassis")));
  EXPECT_EQ(2u, definition.Spawns());
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornChassisTest, TheFirstTagKeyCountsInAnyCase) {
  FakeKeyList keys;
  keys.Add(StringKey(OLESTR("CreationClassName"), OLESTR("VORN_Chassis")))
      .Add(StringKey(OLESTR("tAG"), OLESTR("Main System Chassis")))
      .Add(StringKey(OLESTR("Tag"), OLESTR("another")));
  EXPECT_EQ(0, Get("VORN_Chassis", keys));
  EXPECT_EQ(1u, DeliveredCount());
  EXPECT_EQ((std::vector<ULONG>{0, 1}), keys.Reads());
}

TEST_F(VornChassisTest, AKeyThatThePathTakesForNoTextIsSkipped) {
  EXPECT_EQ(0, Get("VORN_Chassis",
                   {OLESTR("Tag"), Variant::Text(OLESTR("Main System Chassis")), CIM_SINT32}));
  EXPECT_EQ(0, Get("VORN_Chassis", NumberKey(OLESTR("Tag"), 1)));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornChassisTest, WithoutATagNothingIsReadAndTheResultIsThatOfTheKeyList) {
  store.RecordCalls();
  FakeKeyList none;
  EXPECT_EQ(0, Get("VORN_Chassis", none));
  FakeKeyList uncountable;
  uncountable.Add(StringKey(OLESTR("Tag"), OLESTR("Main System Chassis")))
      .FailCount(Hr(0x80041008));
  EXPECT_EQ(Hr(0x80041008), Get("VORN_Chassis", uncountable));
  FakeKeyList unreadable;
  unreadable.Add(StringKey(OLESTR("Tag"), OLESTR("Main System Chassis")))
      .FailKey(0, Hr(0x80041001));
  EXPECT_EQ(Hr(0x80041001), Get("VORN_Chassis", unreadable));
  EXPECT_TRUE(store.Calls().empty());
  EXPECT_EQ(0u, definition.Spawns());
  unreadable.Add(StringKey(OLESTR("Tag"), OLESTR("Main System Chassis")));
  EXPECT_EQ(0, Get("VORN_Chassis", unreadable));
  EXPECT_EQ(1u, DeliveredCount()) << "the next key counts";
}

TEST_F(VornChassisTest, IsNotFoundWithoutAKeyList) {
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys("VORN_Chassis"));
}

}  // namespace
}  // namespace tqcim::testing
