// The forms of the computer's name. Here they differ in one that is not ASCII, because the ANSI
// code page is UTF-8.
#include "core/computer_name.h"
#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

class ComputerNameFormsTest : public HandlerTest {
 protected:
  ComputerNameFormsTest() {
    SetComputerName("N\xC3\xA9");
    ReadComputerName();
  }
  ~ComputerNameFormsTest() override {
    SetComputerName(kComputerName);
    ReadComputerName();
  }

  /// The property of the first instance of a class.
  std::string NameIn(const char* className, const char* property) {
    const size_t before = DeliveredCount();
    EXPECT_EQ(0, Enumerate(className));
    return Value(before, property);
  }
};

TEST_F(ComputerNameFormsTest, TheSystemAndTheRemoteAccessPortCarryItWidened) {
  store.Add(1, 1);
  store.Add(120, 320).Ucs2(52, u"port").Ucs2(60, u"3.36").Ucs2(68, u"").Ucs2(72, u"");
  store.List(2, 320, {120});
  EXPECT_EQ("N\\u00C3\\u00A9", NameIn("VORN_System", "Name"));
  EXPECT_EQ("N\\u00C3\\u00A9", NameIn("Vorn_RemoteAccessServicePort", "SystemName"));
}

TEST_F(ComputerNameFormsTest, OtherDevicesCarryItConverted) {
  store.List(1, 17, {2});
  store.Add(22, 23).Ucs2(72, u"fan");
  store.List(2, 23, {22});
  store.Add(21, 21).Ucs2(44, u"supply");
  store.List(2, 21, {21});
  EXPECT_EQ("N\\u00E9", NameIn("CIM_Fan", "SystemName"));
  EXPECT_EQ("N\\u00E9", NameIn("CIM_PowerSupply", "SystemName"));
}

}  // namespace
}  // namespace tqcim::testing
