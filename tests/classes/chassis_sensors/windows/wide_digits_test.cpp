// Full-width digits, of which code page 1252 makes plain ones.
#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

class WideDigitsTest : public HandlerTest {
 protected:
  void SetUp() override {
    if (GetACP() != 1252) GTEST_SKIP() << "written for code page 1252, this is " << GetACP();
  }

  /// The name of the second of two probes of a type, or of the first, whichever "1" in full width
  /// finds.
  std::string NameGot(const char* className, uint16_t type) {
    store.List(1, 17, {2});
    store.List(2, type, {10, 11});
    store.Add(10, type).Ucs2(72, u"first");
    store.Add(11, type).Ucs2(72, u"second");
    const size_t before = DeliveredCount();
    EXPECT_EQ(0, Get(className, StringKey(OLESTR("DeviceID"), OLESTR("\xFF11"))));
    return Value(before, "Name");
  }
};

TEST_F(WideDigitsTest, AreReadAsTheCodePageHasThemByAllButCurrentSensors) {
  EXPECT_EQ("second", NameGot("CIM_TemperatureSensor", 22));
  EXPECT_EQ("second", NameGot("CIM_VoltageSensor", 24));
  EXPECT_EQ("second", NameGot("CIM_Tachometer", 23));
  EXPECT_EQ("second", NameGot("CIM_Fan", 23));
  EXPECT_EQ("first", NameGot("CIM_CurrentSensor", 25));
}

}  // namespace
}  // namespace tqcim::testing
