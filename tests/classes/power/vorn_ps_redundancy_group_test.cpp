#include "tests/classes/power/power_test.h"

namespace tqcim::testing {
namespace {

class VornPsRedundancyGroupTest : public PowerTest {
 protected:
  VornPsRedundancyGroupTest() {
    SetChassis({100});
    AddGroup(400, u"Main").U8(16, 4).U16(18, 2);
    store.List(2, 2, {400});
    store.List(400, 21, {200, 201});
  }
};

const Puts kSupplyGroup = {{"MinNumberNeeded", VT_I4, 0, "2"},
                           {"RedundancyStatus", VT_I4, 0, "2"},
                           {"Name", VT_BSTR, 0, "Main"},
                           {"CreationClassName", VT_BSTR, 0, "VORN_PSRedundancyGroup"}};

TEST_F(VornPsRedundancyGroupTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, Enumerate("VORN_PSRedundancyGroup"));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kSupplyGroup, Delivered(0));
}

TEST_F(VornPsRedundancyGroupTest, IsGotWithTheSameProperties) {
  EXPECT_EQ(0, Get("VORN_PSRedundancyGroup", StringKey(OLESTR("Name"), OLESTR("Main"))));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kSupplyGroup, Delivered(0));
}

TEST_F(VornPsRedundancyGroupTest, IsNoGroupOfFans) {
  store.List(400, 21, {});
  store.List(400, 23, {200});
  EXPECT_EQ(0, Enumerate("VORN_PSRedundancyGroup"));
  EXPECT_EQ(0u, definition.Spawns());
}

}  // namespace
}  // namespace tqcim::testing
