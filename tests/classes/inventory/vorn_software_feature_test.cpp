#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

class VornSoftwareFeatureTest : public HandlerTest {
 protected:
  VornSoftwareFeatureTest() {
    store.Add(60, 257)
        .U32(16, 4294967295)
        .Ucs2(32, u"Example Agent")
        .Ucs2(36, u"9.4.0")
        .Ucs2(40, u"Example Vendor")
        .Ucs2(44, u"Watches the hardware")
        .Ucs2(52, u"https://agent.example/")
        .Ucs2(56, u"en")
        .Ucs2(60, u"9.4");
    store.List(2, 257, {60});
  }
};

const Puts kAgent = {{"Version", VT_BSTR, 0, "9.4"},
                     {"AgentVersion", VT_BSTR, 0, "9.4.0"},
                     {"ProductName", VT_BSTR, 0, "Example Agent"},
                     {"Name", VT_BSTR, 0, "Example Agent"},
                     {"Vendor", VT_BSTR, 0, "Example Vendor"},
                     {"IdentifyingNumber", VT_BSTR, 0, "4294967295"},
                     {"SkmaURL", VT_BSTR, 0, "https://agent.example/"},
                     {"Language", VT_BSTR, 0, "en"},
                     {"Description", VT_BSTR, 0, "Watches the hardware"}};

TEST_F(VornSoftwareFeatureTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, Enumerate("Vorn_SoftwareFeature"));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kAgent, Delivered(0));
}

TEST_F(VornSoftwareFeatureTest, PublishesTheFirstObjectOnly) {
  store.List(2, 257, {60, 60});
  EXPECT_EQ(0, Enumerate("Vorn_SoftwareFeature"));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(VornSoftwareFeatureTest, TextsAreCopiedCharacterByCharacter) {
  store.Object(60).Ucs2(40, u"Vörn ™");
  Enumerate("Vorn_SoftwareFeature");
  EXPECT_EQ("V\\u00F6rn \\u2122", Value(0, "Vendor"));
}

TEST_F(VornSoftwareFeatureTest, IsGotByAnyKeys) {
  EXPECT_EQ(0, Get("Vorn_SoftwareFeature", StringKey(OLESTR("Name"), OLESTR("other"))));
  EXPECT_EQ(0, GetWithoutKeys("Vorn_SoftwareFeature"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(kAgent, Delivered(0));
  EXPECT_EQ(kAgent, Delivered(1));
}

TEST_F(VornSoftwareFeatureTest, AnEmptyStoreIsSuccessToEnumerateAndNotFoundToGet) {
  store.List(2, 257, {});
  EXPECT_EQ(0, Enumerate("Vorn_SoftwareFeature"));
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys("Vorn_SoftwareFeature"));
  store.FailListing(2, 257);
  EXPECT_EQ(0, Enumerate("Vorn_SoftwareFeature"));
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys("Vorn_SoftwareFeature"));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornSoftwareFeatureTest, ReturnsTheFailureOfTheSpawn) {
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), Enumerate("Vorn_SoftwareFeature"));
  EXPECT_EQ(Hr(0x80041006), GetWithoutKeys("Vorn_SoftwareFeature"));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornSoftwareFeatureTest, ReturnsTheStatusOfTheDelivery) {
  sink.KeepInstances();
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), Enumerate("Vorn_SoftwareFeature"));
  EXPECT_EQ(Hr(0x80041032), GetWithoutKeys("Vorn_SoftwareFeature"));
}

}  // namespace
}  // namespace tqcim::testing
