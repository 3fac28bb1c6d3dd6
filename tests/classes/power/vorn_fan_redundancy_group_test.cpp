#include "tests/classes/power/power_test.h"

namespace tqcim::testing {
namespace {

class VornFanRedundancyGroupTest : public PowerTest {
 protected:
  VornFanRedundancyGroupTest() {
    SetChassis({100});
    AddGroup(400, u"Main").U8(16, 4).U16(18, 2);
    store.List(2, 2, {400});
    store.List(400, 23, {200, 201});
  }
};

const Puts kFanGroup = {{"MinNumberNeeded", VT_I4, 0, "2"},
                        {"RedundancyStatus", VT_I4, 0, "2"},
                        {"Name", VT_BSTR, 0, "Main"},
                        {"CreationClassName", VT_BSTR, 0, "VORN_FanRedundancyGroup"}};

TEST_F(VornFanRedundancyGroupTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, Enumerate("VORN_FanRedundancyGroup"));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kFanGroup, Delivered(0));
}

TEST_F(VornFanRedundancyGroupTest, IsGotWithTheSameProperties) {
  EXPECT_EQ(0, Get("VORN_FanRedundancyGroup", StringKey(OLESTR("Name"), OLESTR("Main"))));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kFanGroup, Delivered(0));
}

TEST_F(VornFanRedundancyGroupTest, IsNoGroupOfPowerSupplies) {
  store.List(400, 23, {});
  store.List(400, 21, {200});
  EXPECT_EQ(0, Enumerate("VORN_FanRedundancyGroup"));
  EXPECT_EQ(0u, definition.Spawns());
}

}  // namespace
}  // namespace tqcim::testing
