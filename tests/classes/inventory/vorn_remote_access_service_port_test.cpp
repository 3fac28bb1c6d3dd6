#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

constexpr const char* kRemoteAccessPort = "Vorn_RemoteAccessServicePort";

class VornRemoteAccessServicePortTest : public HandlerTest {
 protected:
  VornRemoteAccessServicePortTest() {
    store.Add(120, 320)
        .U8(19, 13)
        .U8(24, 255)
        .Ucs2(52, u"Remote access")
        .Ucs2(60, u"3.36")
        .Ucs2(68, u"192.0.2.20")
        .Ucs2(72, u"2001:db8::20");
    store.List(2, 320, {120});
    store.Add(121, 322).Ucs2(44, u"https://192.0.2.20");
    store.List(2, 322, {121});
  }

  /// Expects the port to be published whole but for `AccessInfo`.
  void ExpectNoAccessInfo();
};

const Puts kRemoteAccessPortPuts = {
    {"VersionString", VT_BSTR, 0, "3.36"},
    {"PortName", VT_BSTR, 0, "Remote access"},
    {"InfoFormat", VT_I4, 0, "3"},
    {"AccessInfo", VT_BSTR, 0, "https://192.0.2.20"},
    {"CreationClassName", VT_BSTR, 0, "Vorn_RemoteAccessServicePort"},
    {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
    {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
    {"Name", VT_BSTR, 0, "Remote access"},
    {"AccessInfoIPv4", VT_BSTR, 0, "192.0.2.20"},
    {"AccessInfoIPv6", VT_BSTR, 0, "2001:db8::20"},
    {"RemoteAccessType", VT_I4, 0, "13"},
    {"BladeFormFactor", VT_I4, 0, "255"}};

void VornRemoteAccessServicePortTest::ExpectNoAccessInfo() {
  Puts expected = kRemoteAccessPortPuts;
  expected.erase(expected.begin() + 3);
  EXPECT_EQ(0, Enumerate(kRemoteAccessPort));
  EXPECT_EQ(0, GetWithoutKeys(kRemoteAccessPort));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(expected, Delivered(0));
  EXPECT_EQ(expected, Delivered(1));
}

TEST_F(VornRemoteAccessServicePortTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, Enumerate(kRemoteAccessPort));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kRemoteAccessPortPuts, Delivered(0));
}

TEST_F(VornRemoteAccessServicePortTest, IsGotByAnyKeys) {
  FakeKeyList unreadable;
  unreadable.FailCount(Hr(0x80041008));
  EXPECT_EQ(0, Get(kRemoteAccessPort, StringKey(OLESTR("Name"), OLESTR("other"))));
  EXPECT_EQ(0, Get(kRemoteAccessPort, unreadable));
  EXPECT_EQ(0, GetWithoutKeys(kRemoteAccessPort));
  ASSERT_EQ(3u, DeliveredCount());
  for (size_t i = 0; i < 3; ++i) EXPECT_EQ(kRemoteAccessPortPuts, Delivered(i));
}

TEST_F(VornRemoteAccessServicePortTest, PublishesTheFirstPortAndTheFirstAddressOnly) {
  store.Add(122, 320).Ucs2(52, u"b").Ucs2(60, u"b").Ucs2(68, u"b").Ucs2(72, u"b");
  store.Add(123, 322).Ucs2(44, u"b");
  store.List(2, 320, {120, 122});
  store.List(2, 322, {121, 123});
  EXPECT_EQ(0, Enumerate(kRemoteAccessPort));
  EXPECT_EQ(0, GetWithoutKeys(kRemoteAccessPort));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(kRemoteAccessPortPuts, Delivered(0));
  EXPECT_EQ(kRemoteAccessPortPuts, Delivered(1));
}

TEST_F(VornRemoteAccessServicePortTest, EmptyTextsArePut) {
  store.Object(120).Ucs2(60, u"").Ucs2(68, u"").Ucs2(72, u"");
  store.Object(121).Ucs2(44, u"");
  Enumerate(kRemoteAccessPort);
  EXPECT_EQ(12u, Delivered(0).size());
  for (const char* property : {"VersionString", "AccessInfo", "AccessInfoIPv4", "AccessInfoIPv6"}) {
    EXPECT_EQ("", Value(0, property)) << property;
  }
}

TEST_F(VornRemoteAccessServicePortTest, HasNoAccessInfoWhereTheListOfAddressesIsEmpty) {
  store.List(2, 322, {});
  ExpectNoAccessInfo();
}

TEST_F(VornRemoteAccessServicePortTest, HasNoAccessInfoWhereTheAddressesAreNotListed) {
  store.FailListing(2, 322);
  ExpectNoAccessInfo();
}

TEST_F(VornRemoteAccessServicePortTest, HasNoAccessInfoWhereTheFirstAddressCannotBeRead) {
  store.FailRead(121);
  store.Add(123, 322).Ucs2(44, u"second");
  store.List(2, 322, {121, 123});
  ExpectNoAccessInfo();
}

TEST_F(VornRemoteAccessServicePortTest, NoObjectIsSuccess) {
  store.List(2, 320, {});
  EXPECT_EQ(0, Enumerate(kRemoteAccessPort));
  EXPECT_EQ(0, GetWithoutKeys(kRemoteAccessPort));
  store.FailListing(2, 320);
  EXPECT_EQ(0, Enumerate(kRemoteAccessPort));
  EXPECT_EQ(0, GetWithoutKeys(kRemoteAccessPort));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornRemoteAccessServicePortTest, AnUnreadableObjectIsNone) {
  store.FailRead(120);
  EXPECT_EQ(0, Enumerate(kRemoteAccessPort));
  EXPECT_EQ(0, GetWithoutKeys(kRemoteAccessPort));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornRemoteAccessServicePortTest, EnumerationIsASuccessWhateverTheDeliveryCameTo) {
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(0, Enumerate(kRemoteAccessPort));
  EXPECT_EQ(Hr(0x80041032), GetWithoutKeys(kRemoteAccessPort));
  EXPECT_EQ(2u, DeliveredCount());
}

TEST_F(VornRemoteAccessServicePortTest, EnumerationIsASuccessWhateverTheSpawnCameTo) {
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(0, Enumerate(kRemoteAccessPort));
  EXPECT_EQ(Hr(0x80041006), GetWithoutKeys(kRemoteAccessPort));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornRemoteAccessServicePortTest, DeliversNothingWhereASuccessfulSpawnGaveNoInstance) {
  definition.SpawnNothing(0, S_OK);
  definition.SpawnNothing(1, S_OK);
  EXPECT_EQ(0, Enumerate(kRemoteAccessPort));
  EXPECT_EQ(0, GetWithoutKeys(kRemoteAccessPort));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornRemoteAccessServicePortTest, InstancesThatTheSinkKeepsDoNotShowInTheResult) {
  sink.KeepInstances();
  EXPECT_EQ(0, Enumerate(kRemoteAccessPort));
  EXPECT_EQ(0, GetWithoutKeys(kRemoteAccessPort));
}

}  // namespace
}  // namespace tqcim::testing
