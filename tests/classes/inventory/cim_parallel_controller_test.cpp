#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

class CimParallelControllerTest : public HandlerTest {
 protected:
  CimParallelControllerTest() {
    store.Add(95, 192).U32(40, 3).Ucs2(44, u"LPT1");
    store.List(2, 192, {95});
  }
};

const Puts kPort = {{"Caption", VT_BSTR, 0, "LPT1"},
                    {"Security", VT_I4, 0, "3"},
                    {"CreationClassName", VT_BSTR, 0, "CIM_ParallelController"},
                    {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
                    {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"}};

TEST_F(CimParallelControllerTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, Enumerate("CIM_ParallelController"));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kPort, Delivered(0));
}

TEST_F(CimParallelControllerTest, HasNoDeviceId) {
  Enumerate("CIM_ParallelController");
  EXPECT_EQ("<absent>", Value(0, "DeviceID"));
}

TEST_F(CimParallelControllerTest, SecurityIsTheStoresCodeAndKeepsItsBits) {
  store.Object(95).U32(40, 4294967294);
  Enumerate("CIM_ParallelController");
  EXPECT_EQ("-2", Value(0, "Security"));
}

}  // namespace
}  // namespace tqcim::testing
