// Every call of the libraries that a class makes fails once, one at a time. Whatever the class
// makes of it, it ends and gives everything back.
#include "tests/classes/chassis_sensors/several_chassis.h"

namespace tqcim::testing {
namespace {

/// Two chassis with one object of each type that the classes read, and two logs with a record.
class FailingLibraryCallsTest : public SeveralChassisTest,
                                public ::testing::WithParamInterface<const char*> {
 protected:
  FailingLibraryCallsTest() {
    ListChassis({2, 3});
    for (const uint16_t type : Types{22, 23, 24, 25, 26, 27}) {
      ListProbes(2, type, {type * 10u});
      store.Object(type * 10u).U32(16, 17);
      ListProbes(3, type, {type * 10u + 1});
    }
    store.Add(300, 30);
    store.List(2, 30, {300});
    for (const uint32_t kind : {1, 2}) {
      store.Add(310 + kind, 31).U32(16, kind);
      store.AddRecord(310 + kind).I64(0, 1426325213).Ucs2(16, u"record");
    }
    store.List(2, 31, {311, 312});
  }
};

TEST_P(FailingLibraryCallsTest, LeaveNothingBehindInAnEnumeration) {
  uint32_t position = 0;
  do {
    store.FailCall(position++);
    Enumerate(GetParam());
    EXPECT_EQ(0u, store.LiveBlocks());
  } while (store.HasFailedCall());
  EXPECT_LT(2u, position) << "hardly a call was made";
}

TEST_P(FailingLibraryCallsTest, LeaveNothingBehindWhereAnInstanceIsGot) {
  uint32_t position = 0;
  do {
    store.FailCall(position++);
    FakeKeyList keys;
    keys.Add(StringKey(OLESTR("DeviceID"), OLESTR("0")));
    keys.Add(NumberKey(OLESTR("RecordNumber"), 0));
    Get(GetParam(), keys);
    EXPECT_EQ(0u, store.LiveBlocks());
  } while (store.HasFailedCall());
}

INSTANTIATE_TEST_SUITE_P(ChassisSensors, FailingLibraryCallsTest,
                         ::testing::Values("CIM_TemperatureSensor", "CIM_VoltageSensor",
                                           "CIM_CurrentSensor", "CIM_Tachometer",
                                           "CIM_DiscreteSensor", "VORN_PackageDiscreteSensor",
                                           "CIM_Fan", "VORN_FanSensor", "CIM_PackageCurrentSensor",
                                           "CIM_PackageFanSensor", "CIM_PackageTempSensor",
                                           "CIM_PackageVoltSensor", "VORN_EsmLog", "VORN_PostLog",
                                           "CIM_Watchdog"),
                         [](const auto& name) { return std::string(name.param); });

}  // namespace
}  // namespace tqcim::testing
