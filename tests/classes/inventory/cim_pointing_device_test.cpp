#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

class CimPointingDeviceTest : public HandlerTest {
 protected:
  CimPointingDeviceTest() {
    store.Add(97, 208, 2);
    store.Add(98, 208, 4).U32(16, 0xFFFFFFFF).U32(40, 0xFFFFFFFF);
    store.List(2, 208, {97, 98});
  }
};

const Puts kDevice = {{"CreationClassName", VT_BSTR, 0, "CIM_PointingDevice"},
                      {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
                      {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"}};

TEST_F(CimPointingDeviceTest, DevicesDifferInNothing) {
  EXPECT_EQ(0, Enumerate("CIM_PointingDevice"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(kDevice, Delivered(0));
  EXPECT_EQ(kDevice, Delivered(1));
}

}  // namespace
}  // namespace tqcim::testing
