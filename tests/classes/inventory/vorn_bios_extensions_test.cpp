#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

class VornBiosExtensionsTest : public HandlerTest {
 protected:
  VornBiosExtensionsTest() {
    store.Add(40, 212).U8(30, 0x03).U8(31, 0xFF).U64(48, 0x0000000B7C099E80);
    store.List(2, 212, {40});
  }
};

const Puts kExtensions = {{"systemBIOSCharacteristics", VT_BSTR, CIM_UINT64, "49325645440"},
                          {"systemBIOSCharacteristicsExt1", VT_UI1, 0, "3"},
                          {"systemBIOSCharacteristicsExt2", VT_UI1, 0, "255"}};

TEST_F(VornBiosExtensionsTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, Enumerate("VORN_BIOSExtensions"));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kExtensions, Delivered(0));
}

TEST_F(VornBiosExtensionsTest, WritesAll64BitsInDecimal) {
  store.Object(40).U64(48, 0xFFFFFFFFFFFFFFFF);
  Enumerate("VORN_BIOSExtensions");
  EXPECT_EQ("18446744073709551615", Value(0, "systemBIOSCharacteristics"));
}

TEST_F(VornBiosExtensionsTest, PublishesTheFirstObjectOnly) {
  store.List(2, 212, {40, 40});
  EXPECT_EQ(0, Enumerate("VORN_BIOSExtensions"));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(VornBiosExtensionsTest, IsGotByAnyKeys) {
  EXPECT_EQ(0, Get("VORN_BIOSExtensions", StringKey(OLESTR("Name"), OLESTR("other"))));
  EXPECT_EQ(0, GetWithoutKeys("VORN_BIOSExtensions"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(kExtensions, Delivered(0));
  EXPECT_EQ(kExtensions, Delivered(1));
}

TEST_F(VornBiosExtensionsTest, ReturnsTheReferencesThatAreLeftAfterItsRelease) {
  sink.KeepInstances();
  EXPECT_EQ(1, Enumerate("VORN_BIOSExtensions"));
  EXPECT_EQ(1, GetWithoutKeys("VORN_BIOSExtensions"));
}

TEST_F(VornBiosExtensionsTest, IgnoresTheSinksRefusal) {
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(0, Enumerate("VORN_BIOSExtensions"));
  EXPECT_EQ(0, GetWithoutKeys("VORN_BIOSExtensions"));
  EXPECT_EQ(2u, DeliveredCount());
}

TEST_F(VornBiosExtensionsTest, AFailedSpawnIsSuccess) {
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(0, Enumerate("VORN_BIOSExtensions"));
  EXPECT_EQ(0, GetWithoutKeys("VORN_BIOSExtensions"));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornBiosExtensionsTest, AnEmptyStoreIsSuccessToEnumerateAndNotFoundToGet) {
  store.List(2, 212, {});
  EXPECT_EQ(0, Enumerate("VORN_BIOSExtensions"));
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys("VORN_BIOSExtensions"));
  store.FailListing(2, 212);
  EXPECT_EQ(0, Enumerate("VORN_BIOSExtensions"));
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys("VORN_BIOSExtensions"));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornBiosExtensionsTest, AnUnreadableObjectIsSuccessToEnumerateAndNotFoundToGet) {
  store.FailRead(40);
  EXPECT_EQ(0, Enumerate("VORN_BIOSExtensions"));
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys("VORN_BIOSExtensions"));
  EXPECT_EQ(0u, definition.Spawns());
}

}  // namespace
}  // namespace tqcim::testing
