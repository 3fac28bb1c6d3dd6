#include "tests/classes/chassis_sensors/probe_class_test.h"

namespace tqcim::testing {
namespace {

TEST_P(ProbeClassTest, EnumeratesTheProbesOfOneChassisAfterTheOther) {
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"Probe 201", "Probe 202", "Probe 203", "Probe 301", "Probe 302"}), Names());
}

TEST_P(ProbeClassTest, PassesOverChassisWithoutProbes) {
  ListChassis({2, 3, 4, 5});
  store.List(2, kType, {});
  store.List(4, kType, {});
  ListProbes(5, kType, {501});
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"Probe 301", "Probe 302", "Probe 501"}), Names());
}

TEST_P(ProbeClassTest, AListingThatFailsEndsTheEnumerationBeforeTheLaterChassis) {
  ListChassis({2, 3, 4});
  ListProbes(4, kType, {401});
  store.FailListing(3, kType);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"Probe 201", "Probe 202", "Probe 203"}), Names());
}

TEST_P(ProbeClassTest, AnUnreadableProbeEndsTheEnumeration) {
  store.FailRead(202);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(Texts{"Probe 201"}, Names());
}

TEST_P(ProbeClassTest, EnumeratesNothingWithoutProbes) {
  store.List(2, kType, {});
  store.List(3, kType, {});
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(ProbeClassTest, EnumeratesNothingWithoutChassis) {
  store.List(1, 17, {});
  EXPECT_EQ(0, EnumerateClass());
  store.FailListing(1, 17);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(ProbeClassTest, AFailedSpawnEndsTheEnumerationWithItsResult) {
  definition.SpawnNothing(2, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), EnumerateClass());
  EXPECT_EQ((Texts{"Probe 201", "Probe 202"}), Names());
  EXPECT_EQ(3u, definition.Spawns());
}

TEST_P(ProbeClassTest, ASuccessfulSpawnWithoutInstanceEndsTheEnumerationToo) {
  definition.SpawnNothing(1, Hr(1));
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(1, EnumerateClass());
  EXPECT_EQ(Texts{"Probe 201"}, Names());
}

TEST_P(ProbeClassTest, EnumerationGoesOnWhereTheSinkRefuses) {
  sink.Refuse(1, Hr(0x80041032));
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(5u, DeliveredCount());
}

TEST_P(ProbeClassTest, EnumerationReturnsTheStatusOfTheLastDelivery) {
  sink.Refuse(4, Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), EnumerateClass());
  EXPECT_EQ(5u, DeliveredCount());
}

TEST_P(ProbeClassTest, AnInstanceThatTheSinkKeepsDoesNotShowInTheResult) {
  sink.KeepInstances();
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(0, GetByDeviceId(OLESTR("0")));
}

TEST_P(ProbeClassTest, PropertiesThatAreRefusedDoNotKeepAnInstanceBack) {
  definition.SetPutResult(Hr(0x80041002));
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(5u, DeliveredCount());
}

TEST_P(ProbeClassTest, StatusFollowsTheProbe) {
  constexpr std::pair<uint8_t, const char*> kTexts[] = {
      {0, "Other"}, {1, "Unknown"},    {2, "OK"},       {3, "Stressed"},
      {4, "Error"}, {5, "NonRecover"}, {9, "Stressed"}, {255, "Stressed"}};
  for (const auto& [status, text] : kTexts) {
    store.Object(201).U8(10, status);
    GetByDeviceId(OLESTR("0"));
    EXPECT_EQ(text, Value(DeliveredCount() - 1, "Status")) << int{status};
  }
}

TEST_P(ProbeClassTest, EachProbeCostsTheSameNumberOfCalls) {
  store.RecordCalls();
  ListChassis({2});
  std::vector<uint32_t> oids(50, 201);
  store.List(2, kType, oids);
  EnumerateClass();
  // Two lists and the probe, and their release; in the end two lists.
  EXPECT_EQ(50u * 6 + 4, store.Calls().size());
  oids.resize(500, 201);
  store.List(2, kType, oids);
  EnumerateClass();
  EXPECT_EQ(50u * 6 + 4 + 500u * 6 + 4, store.Calls().size());
}

TEST_P(ProbeClassTest, IsGotByItsPositionInTheFirstChassis) {
  EXPECT_EQ(0, GetByDeviceId(OLESTR("0")));
  EXPECT_EQ(0, GetByDeviceId(OLESTR("2")));
  EXPECT_EQ((Texts{"Probe 201", "Probe 203"}), Names());
}

TEST_P(ProbeClassTest, ADeviceIdOfALaterChassisIsNotDecodedAndFindsItsFirstProbe) {
  for (const OLECHAR* deviceId : {OLESTR("3"), OLESTR("7"), OLESTR("100"), OLESTR("101"),
                                  OLESTR("105"), OLESTR("200"), OLESTR("65535")}) {
    EXPECT_EQ(0, GetByDeviceId(deviceId));
  }
  EXPECT_EQ(Texts(7, "Probe 301"), Names());
}

TEST_P(ProbeClassTest, TheSearchGoesOnToTheNextChassisThatHasProbes) {
  ListChassis({2, 3, 4, 5});
  store.List(3, kType, {});
  ListProbes(4, kType, {401, 402});
  ListProbes(5, kType, {501});
  EXPECT_EQ(0, GetByDeviceId(OLESTR("101")));
  EXPECT_EQ(Texts{"Probe 401"}, Names());
}

TEST_P(ProbeClassTest, TheSearchEndsAtAListingThatFails) {
  ListChassis({2, 3, 4});
  ListProbes(4, kType, {401});
  store.FailListing(3, kType);
  EXPECT_EQ(0, GetByDeviceId(OLESTR("3")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(ProbeClassTest, PastTheLastProbeNothingIsFoundAndThatIsSuccess) {
  store.List(3, kType, {});
  EXPECT_EQ(0, GetByDeviceId(OLESTR("3")));
  store.FailListing(1, 17);
  EXPECT_EQ(0, GetByDeviceId(OLESTR("0")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(ProbeClassTest, WhereNoProbeIsFoundTheResultOfTheKeysReadingStands) {
  store.List(3, kType, {});
  FakeKeyList keys;
  keys.Add(StringKey(OLESTR("DeviceID"), OLESTR("3")));
  keys.FailKey(0, S_FALSE);
  EXPECT_EQ(S_FALSE, Get(kName, keys));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(ProbeClassTest, AnUnreadableProbeIsNotFoundAndThatIsSuccess) {
  store.FailRead(202);
  EXPECT_EQ(0, GetByDeviceId(OLESTR("1")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(ProbeClassTest, TheLow16BitsOfTheNumberCount) {
  for (const OLECHAR* deviceId : {OLESTR("65537"), OLESTR("131073"), OLESTR("-65535")}) {
    EXPECT_EQ(0, GetByDeviceId(deviceId));
  }
  EXPECT_EQ(Texts(3, "Probe 202"), Names());
}

TEST_P(ProbeClassTest, TheNumberAtTheBeginningOfTheTextCounts) {
  for (const OLECHAR* deviceId :
       {OLESTR("2"), OLESTR("002"), OLESTR(" \t2"), OLESTR("+2"), OLESTR("2nd"), OLESTR("2.9")}) {
    EXPECT_EQ(0, GetByDeviceId(deviceId));
  }
  EXPECT_EQ(Texts(6, "Probe 203"), Names());
}

TEST_P(ProbeClassTest, ATextWithoutANumberCountsAs0) {
  for (const OLECHAR* deviceId : {OLESTR(""), OLESTR("probe"), OLESTR("x2"), OLESTR("- 2")}) {
    EXPECT_EQ(0, GetByDeviceId(deviceId));
  }
  EXPECT_EQ(0, GetByDeviceId(nullptr));
  EXPECT_EQ(Texts(5, "Probe 201"), Names());
}

TEST_P(ProbeClassTest, TheNameOfTheKeyCountsInAnyCase) {
  for (const OLECHAR* name : {OLESTR("deviceid"), OLESTR("DEVICEID"), OLESTR("dEVICEid")}) {
    EXPECT_EQ(0, Get(kName, StringKey(name, OLESTR("1"))));
  }
  EXPECT_EQ(Texts(3, "Probe 202"), Names());
}

TEST_P(ProbeClassTest, ADeviceIdGivenAsANumberIsIgnored) {
  EXPECT_EQ(0, Get(kName, NumberKey(OLESTR("DeviceID"), 1)));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(ProbeClassTest, TheTypeThatThePathGivesTheValueDecidesWhatAStringIs) {
  EXPECT_EQ(0, Get(kName, {OLESTR("DeviceID"), Variant::Text(OLESTR("1")), CIM_UINT64}));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(ProbeClassTest, TheFirstStringKeyOfThatNameCountsAndLaterOnesAreNotRead) {
  FakeKeyList keys;
  keys.Add(StringKey(OLESTR("CreationClassName"), OLESTR("2")));
  keys.Add(NumberKey(OLESTR("DeviceID"), 2));
  keys.Add(StringKey(OLESTR("DeviceID2"), OLESTR("2")));
  keys.Add(StringKey(OLESTR("DeviceID"), OLESTR("1")));
  keys.Add(StringKey(OLESTR("DeviceID"), OLESTR("2")));
  EXPECT_EQ(0, Get(kName, keys));
  EXPECT_EQ(Texts{"Probe 202"}, Names());
  EXPECT_EQ((std::vector<ULONG>{0, 1, 2, 3}), keys.Reads());
}

TEST_P(ProbeClassTest, WithoutADeviceIdNothingIsFoundAndThatIsSuccess) {
  EXPECT_EQ(0, Get(kName, StringKey(OLESTR("Name"), OLESTR("0"))));
  FakeKeyList none;
  EXPECT_EQ(0, Get(kName, none));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(ProbeClassTest, WithoutAKeyListItIsNotFound) {
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys(kName));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(ProbeClassTest, AFailingKeyCountIsReturnedAtOnce) {
  FakeKeyList keys;
  keys.Add(StringKey(OLESTR("DeviceID"), OLESTR("1")));
  keys.FailCount(Hr(0x80041008));
  EXPECT_EQ(Hr(0x80041008), Get(kName, keys));
  EXPECT_EQ(std::vector<ULONG>{}, keys.Reads());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(ProbeClassTest, AKeyThatCannotBeReadIsReturned) {
  FakeKeyList keys;
  keys.Add(StringKey(OLESTR("SystemName"), OLESTR("1")));
  keys.Add(StringKey(OLESTR("DeviceID"), OLESTR("1")));
  keys.FailKey(1, Hr(0x80041008));
  EXPECT_EQ(Hr(0x80041008), Get(kName, keys));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(ProbeClassTest, ProbesOfOtherTypesAreNotPublished) {
  ListChassis({2});
  for (const uint16_t type : Types{22, 23, 24, 25, 26, 27}) ListProbes(2, type, {900u + type});
  store.List(2, kType, {});
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(0, GetByDeviceId(OLESTR("0")));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_P(ProbeClassTest, AKeyThatCannotBeReadIsPassedOver) {
  FakeKeyList keys;
  keys.Add(StringKey(OLESTR("DeviceID"), OLESTR("1")));
  keys.Add(StringKey(OLESTR("DeviceID"), OLESTR("0")));
  keys.FailKey(0, Hr(0x80041008));
  EXPECT_EQ(0, Get(kName, keys));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_P(ProbeClassTest, GettingReturnsTheResultOfASpawnWithoutInstance) {
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, Hr(1));
  EXPECT_EQ(Hr(0x80041006), GetByDeviceId(OLESTR("0")));
  EXPECT_EQ(1, GetByDeviceId(OLESTR("0")));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_P(ProbeClassTest, GettingReturnsTheStatusOfTheDelivery) {
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), GetByDeviceId(OLESTR("0")));
}

}  // namespace
}  // namespace tqcim::testing
