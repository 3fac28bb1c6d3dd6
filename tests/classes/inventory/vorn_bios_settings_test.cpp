#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

class VornBiosSettingsTest : public HandlerTest {
 protected:
  VornBiosSettingsTest() {
    store.Add(70, 45057).U32(16, 1);
    store.List(2, 45057, {70});
  }
};

TEST_F(VornBiosSettingsTest, EnumeratesTheSettings) {
  EXPECT_EQ(0, Enumerate("VORN_BIOSSettings"));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ((Puts{{"VornInstanceID", VT_I4, 0, "0"}, {"TrustedPlatformModule", VT_I4, 0, "3"}}),
            Delivered(0));
  store.ExpectLeaked(1);
}

TEST_F(VornBiosSettingsTest, GettingPutsTheInstanceIdTwice) {
  EXPECT_EQ(0, Get("VORN_BIOSSettings", NumberKey(OLESTR("VornInstanceID"), 99)));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ((Puts{{"VornInstanceID", VT_I4, 0, "0"},
                  {"VornInstanceID", VT_I4, 0, "0"},
                  {"TrustedPlatformModule", VT_I4, 0, "3"}}),
            Delivered(0));
}

TEST_F(VornBiosSettingsTest, IsGotWithoutKeys) {
  EXPECT_EQ(0, GetWithoutKeys("VORN_BIOSSettings"));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(VornBiosSettingsTest, TrustedPlatformModuleIsTranslated) {
  constexpr std::pair<uint32_t, const char*> kRows[] = {{0, "0"}, {1, "3"},   {2, "4"},
                                                        {3, "0"}, {255, "0"}, {0x101, "0"}};
  for (const auto& [state, value] : kRows) {
    store.Object(70).U32(16, state);
    GetWithoutKeys("VORN_BIOSSettings");
    EXPECT_EQ(value, Value(DeliveredCount() - 1, "TrustedPlatformModule")) << state;
  }
}

TEST_F(VornBiosSettingsTest, EnumerationLeaksTheSettingsObjectAndNothingElse) {
  store.RecordCalls();
  Enumerate("VORN_BIOSSettings");
  EXPECT_EQ((std::vector<std::string>{"children 2/45057", "object 70", "free"}), store.Calls());
  store.ExpectLeaked(1);
}

TEST_F(VornBiosSettingsTest, EnumerationLeaksTheSettingsObjectOfAFailedSpawnToo) {
  definition.SpawnNothing(0, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), Enumerate("VORN_BIOSSettings"));
  EXPECT_EQ(0u, DeliveredCount());
  store.ExpectLeaked(1);
}

TEST_F(VornBiosSettingsTest, GettingFreesTheSettingsObject) {
  GetWithoutKeys("VORN_BIOSSettings");
  EXPECT_EQ(0u, store.LiveBlocks());
}

const Puts kNoSettings = {{"VornInstanceID", VT_I4, 0, "0"},
                          {"TrustedPlatformModule", VT_I4, 0, "1"}};

TEST_F(VornBiosSettingsTest, WithoutSettingsEnumerationStillDeliversOneInstance) {
  store.List(2, 45057, {});
  EXPECT_EQ(0, Enumerate("VORN_BIOSSettings"));
  store.FailListing(2, 45057);
  EXPECT_EQ(0, Enumerate("VORN_BIOSSettings"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(kNoSettings, Delivered(0));
  EXPECT_EQ(kNoSettings, Delivered(1));
}

TEST_F(VornBiosSettingsTest, AnUnreadableObjectIsNoSettings) {
  store.FailRead(70);
  EXPECT_EQ(0, Enumerate("VORN_BIOSSettings"));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kNoSettings, Delivered(0));
  EXPECT_EQ(0, GetWithoutKeys("VORN_BIOSSettings"));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(VornBiosSettingsTest, WithoutSettingsGettingIsSuccessWithNothing) {
  store.List(2, 45057, {});
  EXPECT_EQ(0, GetWithoutKeys("VORN_BIOSSettings"));
  store.FailListing(2, 45057);
  EXPECT_EQ(0, GetWithoutKeys("VORN_BIOSSettings"));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornBiosSettingsTest, GettingReturnsTheFailureOfTheSpawn) {
  definition.SpawnNothing(0, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), GetWithoutKeys("VORN_BIOSSettings"));
}

TEST_F(VornBiosSettingsTest, ReturnsTheStatusOfTheDelivery) {
  sink.KeepInstances();
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), Enumerate("VORN_BIOSSettings"));
  EXPECT_EQ(Hr(0x80041032), GetWithoutKeys("VORN_BIOSSettings"));
  store.ExpectLeaked(1);
}

}  // namespace
}  // namespace tqcim::testing
