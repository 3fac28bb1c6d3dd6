#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

class VornFirmwareTest : public HandlerTest {
 protected:
  VornFirmwareTest() {
    store.Add(51, 19).U8(20, 8).U8(21, 0xAA).Ucs2(32, u"4.10").Ucs2(36, u"Management controller");
    store.Add(50, 19).U8(20, 255).U8(21, 0xAA).Ucs2(32, u"1.2").Ucs2(36, u"Backplane");
    store.List(2, 19, {51, 50});
  }
};

const Puts kController = {
    {"Version", VT_BSTR, 0, "4.10"},          {"SoftwareElementID", VT_BSTR, 0, "4.10"},
    {"SoftwareElementState", VT_I4, 0, "4"},  {"Name", VT_BSTR, 0, "Management controller"},
    {"TargetOperatingSystem", VT_I4, 0, "1"}, {"SoftwareElementType", VT_I4, 0, "8"}};

const Puts kBackplane = {
    {"Version", VT_BSTR, 0, "1.2"},           {"SoftwareElementID", VT_BSTR, 0, "1.2"},
    {"SoftwareElementState", VT_I4, 0, "4"},  {"Name", VT_BSTR, 0, "Backplane"},
    {"TargetOperatingSystem", VT_I4, 0, "1"}, {"SoftwareElementType", VT_I4, 0, "255"}};

TEST_F(VornFirmwareTest, EnumeratesEveryFirmwareInStoreOrder) {
  EXPECT_EQ(0, Enumerate("VORN_Firmware"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(kController, Delivered(0));
  EXPECT_EQ(kBackplane, Delivered(1));
}

TEST_F(VornFirmwareTest, ListsAgainForEveryPosition) {
  store.RecordCalls();
  Enumerate("VORN_Firmware");
  EXPECT_EQ((std::vector<std::string>{"children 2/19", "object 51", "free", "free",  //
                                      "children 2/19", "object 50", "free", "free",  //
                                      "children 2/19", "free"}),
            store.Calls());
}

TEST_F(VornFirmwareTest, IsNeverGot) {
  ExpectNeverGot("VORN_Firmware");
}

TEST_F(VornFirmwareTest, AnEmptyStoreIsSuccess) {
  store.List(2, 19, {});
  EXPECT_EQ(0, Enumerate("VORN_Firmware"));
  store.FailListing(2, 19);
  EXPECT_EQ(0, Enumerate("VORN_Firmware"));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornFirmwareTest, EndsAtTheFirstObjectThatCannotBeRead) {
  store.FailRead(51);
  EXPECT_EQ(0, Enumerate("VORN_Firmware"));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornFirmwareTest, EndsAfter65536ObjectsInsteadOfStartingOver) {
  definition.RecordNothing();
  store.ListLong(2, 19, std::vector<uint32_t>(65'537, 50));
  EXPECT_EQ(0, Enumerate("VORN_Firmware"));
  EXPECT_EQ(65'536u, DeliveredCount());
}

TEST_F(VornFirmwareTest, StopsAtAFailedSpawnAndReturnsIt) {
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), Enumerate("VORN_Firmware"));
  EXPECT_EQ(1u, DeliveredCount());
  EXPECT_EQ(2u, definition.Spawns());
}

TEST_F(VornFirmwareTest, GoesOnAfterARefusalAndReturnsTheLastDelivery) {
  sink.Refuse(0, Hr(0x80041032));
  EXPECT_EQ(0, Enumerate("VORN_Firmware"));
  EXPECT_EQ(2u, DeliveredCount());
}

TEST_F(VornFirmwareTest, ReturnsTheRefusalOfTheLastDelivery) {
  sink.Refuse(1, Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), Enumerate("VORN_Firmware"));
}

}  // namespace
}  // namespace tqcim::testing
