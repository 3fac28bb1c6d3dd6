#include "tests/classes/chassis_sensors/probe_class_test.h"

namespace tqcim::testing {
namespace {

INSTANTIATE_TEST_SUITE_P(CimFan, ProbeClassTest, ::testing::Values(ProbeClass{"CIM_Fan", 23}));

class CimFanTest : public SeveralChassisTest {
 protected:
  CimFanTest() {
    ListChassis({2, 3});
    ListProbes(2, 23, {201, 202});
    ListProbes(3, 23, {301, 302});
  }

  HRESULT GetByDeviceId(const OLECHAR* deviceId) {
    return Get("CIM_Fan", StringKey(OLESTR("DeviceID"), deviceId));
  }
};

TEST_F(CimFanTest, PutsItsPropertiesInOrder) {
  store.Add(202, 23, 4).U32(16, 1).Ucs2(72, u"Fan 2 RPM");
  const Puts fan = {{"CreationClassName", VT_BSTR, 0, "CIM_Fan"},
                    {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
                    {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
                    {"Name", VT_BSTR, 0, "Fan 2 RPM"},
                    {"DeviceID", VT_BSTR, 0, "1"},
                    {"VariableSpeed", VT_BOOL, 0, "1"},
                    {"Status", VT_BSTR, 0, "Error"}};
  EXPECT_EQ(0, Enumerate("CIM_Fan"));
  EXPECT_EQ(fan, Delivered(1));
  EXPECT_EQ(0, GetByDeviceId(OLESTR("1")));
  EXPECT_EQ(fan, Delivered(4));
}

TEST_F(CimFanTest, TheFansOfASecondChassisRepeatTheDeviceIdsOfTheFirst) {
  Enumerate("CIM_Fan");
  EXPECT_EQ((Texts{"0", "1", "0", "1"}), Values("DeviceID"));
}

TEST_F(CimFanTest, AFanThatIsGotInALaterChassisHasTheDeviceId0) {
  GetByDeviceId(OLESTR("1"));
  GetByDeviceId(OLESTR("2"));
  GetByDeviceId(OLESTR("101"));
  EXPECT_EQ((Texts{"Probe 202", "Probe 301", "Probe 301"}), Values("Name"));
  EXPECT_EQ((Texts{"1", "0", "0"}), Values("DeviceID"));
}

TEST_F(CimFanTest, Subtypes1And3HaveVariableSpeedAsTheNumber1) {
  constexpr std::pair<uint32_t, const char*> kRows[] = {
      {0, "0"}, {1, "1"}, {2, "0"}, {3, "1"}, {4, "0"}, {17, "0"}, {257, "0"}, {0xFFFFFFFF, "0"}};
  for (const auto& [subtype, value] : kRows) {
    store.Object(201).U32(16, subtype);
    GetByDeviceId(OLESTR("0"));
    EXPECT_EQ(value, Value(DeliveredCount() - 1, "VariableSpeed")) << subtype;
  }
}

}  // namespace
}  // namespace tqcim::testing
