// Every call of the libraries that a class makes fails once, one at a time. Whatever the class
// makes of it, it ends and gives everything back.
#include "tests/classes/power/power_test.h"

namespace tqcim::testing {
namespace {

/// Two chassis with something of each type that the classes read. The key "0" is taken by every
/// class that takes keys.
class PowerLibraryCallsTest : public PowerTest, public ::testing::WithParamInterface<const char*> {
 protected:
  PowerLibraryCallsTest() {
    SetChassis({100, 101});
    Describe(100, 110, u"Shelf A");
    Describe(101, 111, u"Shelf B");
    AddSupply(200, u"0");
    AddSupply(201, u"1");
    AddProbe(300, 23, u"0");
    AddProbe(301, 24, u"System");
    for (const uint32_t chassis : {100, 101}) {
      store.List(chassis, 21, {200, 201});
      store.List(chassis, 25, {300, 301});
    }
    AddGroup(400, u"0");
    store.List(2, 2, {400});
    store.List(2, 21, {200, 201});
    store.List(400, 21, {200, 201});
    store.List(400, 23, {600});
    store.Add(500, 40).Ucs2(96, u"record");
    store.List(2, 40, {500});
    store.Add(700, 48);
    store.List(2, 48, {700});
    for (const uint16_t type : {uint16_t{80}, uint16_t{81}, uint16_t{82}}) {
      store.Add(type, type);
      store.List(700, type, {type});
    }
  }
};

TEST_P(PowerLibraryCallsTest, LeaveNothingBehindInAnEnumeration) {
  uint32_t position = 0;
  do {
    store.FailCall(position++);
    Enumerate(GetParam());
    EXPECT_EQ(0u, store.LiveBlocks());
  } while (store.HasFailedCall());
  EXPECT_LT(2u, position) << "hardly a call was made";
}

TEST_P(PowerLibraryCallsTest, LeaveNothingBehindWhereAnInstanceIsGot) {
  uint32_t position = 0;
  do {
    store.FailCall(position++);
    FakeKeyList keys;
    keys.Add(StringKey(OLESTR("DeviceID"), OLESTR("0")));
    keys.Add(StringKey(OLESTR("Name"), OLESTR("0")));
    Get(GetParam(), keys);
    EXPECT_EQ(0u, store.LiveBlocks());
  } while (store.HasFailedCall());
}

INSTANTIATE_TEST_SUITE_P(
    Classes, PowerLibraryCallsTest,
    ::testing::Values("CIM_PowerSupply", "CIM_PackagePowerSupply", "VORN_PowerConsumptionData",
                      "VORN_PowerConsumptionAmpsSensor", "VORN_PowerConsumptionWattsSensor",
                      "VORN_AssociatedSupplyPCAmps", "VORN_AssociatedSystemPCWatts",
                      "VORN_AssociatedSystemPCData", "VORN_PSRedundancyGroup",
                      "VORN_FanRedundancyGroup", "VORN_PSRedundancy", "VORN_PackagePSRedundancy",
                      "VORN_PowerProfileData"),
    [](const auto& tested) { return std::string(tested.param); });

}  // namespace
}  // namespace tqcim::testing
