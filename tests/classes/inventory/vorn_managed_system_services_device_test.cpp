#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

constexpr const char* kServicesDevice = "VORN_ManagedSystemServicesDevice";

class VornManagedSystemServicesDeviceTest : public HandlerTest {
 protected:
  VornManagedSystemServicesDeviceTest() {
    store.Add(110, 50).U8(16, 255).U8(17, 1).U16(18, 0x5555).U32(20, 4096);
    store.List(2, 50, {110});
  }
};

const Puts kServicesDevicePuts = {{"deviceType", VT_UI1, 0, "255"},
                                  {"storagePresent", VT_BOOL, 0, "1"},
                                  {"deviceSize", VT_I4, 0, "4096"}};

TEST_F(VornManagedSystemServicesDeviceTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, Enumerate(kServicesDevice));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kServicesDevicePuts, Delivered(0));
}

TEST_F(VornManagedSystemServicesDeviceTest, IsGotByAnyKeys) {
  FakeKeyList unreadable;
  unreadable.FailCount(Hr(0x80041008));
  EXPECT_EQ(0, Get(kServicesDevice, StringKey(OLESTR("Name"), OLESTR("other"))));
  EXPECT_EQ(0, Get(kServicesDevice, unreadable));
  EXPECT_EQ(0, GetWithoutKeys(kServicesDevice));
  ASSERT_EQ(3u, DeliveredCount());
  for (size_t i = 0; i < 3; ++i) EXPECT_EQ(kServicesDevicePuts, Delivered(i));
}

TEST_F(VornManagedSystemServicesDeviceTest, PublishesTheFirstObjectOnly) {
  store.Add(111, 50).U32(20, 1);
  store.List(2, 50, {110, 111});
  EXPECT_EQ(0, Enumerate(kServicesDevice));
  EXPECT_EQ(0, GetWithoutKeys(kServicesDevice));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(kServicesDevicePuts, Delivered(0));
  EXPECT_EQ(kServicesDevicePuts, Delivered(1));
}

TEST_F(VornManagedSystemServicesDeviceTest, StoragePresentIsTheStoresByteCopiedUnchanged) {
  constexpr std::pair<uint8_t, const char*> kValues[] = {
      {0, "0"}, {1, "1"}, {2, "2"}, {255, "255"}};
  for (const auto& [raw, value] : kValues) {
    store.Object(110).U8(17, raw);
    Enumerate(kServicesDevice);
    EXPECT_EQ(value, Value(DeliveredCount() - 1, "storagePresent"));
  }
}

TEST_F(VornManagedSystemServicesDeviceTest, TheSizeKeepsItsBits) {
  store.Object(110).U32(20, 4294967295);
  Enumerate(kServicesDevice);
  EXPECT_EQ("-1", Value(0, "deviceSize"));
}

TEST_F(VornManagedSystemServicesDeviceTest, NoObjectIsSuccessToEnumerateAndNotFoundToGet) {
  store.List(2, 50, {});
  EXPECT_EQ(0, Enumerate(kServicesDevice));
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys(kServicesDevice));
  store.FailListing(2, 50);
  EXPECT_EQ(0, Enumerate(kServicesDevice));
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys(kServicesDevice));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornManagedSystemServicesDeviceTest, AnUnreadableObjectIsNone) {
  store.FailRead(110);
  EXPECT_EQ(0, Enumerate(kServicesDevice));
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys(kServicesDevice));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornManagedSystemServicesDeviceTest, OnlyGettingReturnsTheFailureOfTheSpawn) {
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(0, Enumerate(kServicesDevice));
  EXPECT_EQ(Hr(0x80041006), GetWithoutKeys(kServicesDevice));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornManagedSystemServicesDeviceTest, DeliversNothingWhereASuccessfulSpawnGaveNoInstance) {
  definition.SpawnNothing(0, S_OK);
  definition.SpawnNothing(1, S_OK);
  EXPECT_EQ(0, Enumerate(kServicesDevice));
  EXPECT_EQ(0, GetWithoutKeys(kServicesDevice));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornManagedSystemServicesDeviceTest, IgnoresTheSinksRefusal) {
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(0, Enumerate(kServicesDevice));
  EXPECT_EQ(0, GetWithoutKeys(kServicesDevice));
  EXPECT_EQ(2u, DeliveredCount());
}

TEST_F(VornManagedSystemServicesDeviceTest, ReturnsTheReferencesThatAreLeftAfterItsRelease) {
  sink.KeepInstances();
  EXPECT_EQ(1, Enumerate(kServicesDevice));
  EXPECT_EQ(1, GetWithoutKeys(kServicesDevice));
}

}  // namespace
}  // namespace tqcim::testing
