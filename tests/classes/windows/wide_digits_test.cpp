// Full-width digits, of which code page 1252 makes plain ones: what a class finds by them shows
// whether it converts its key before it reads the number.
#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

class WideDigitsTest : public HandlerTest {
 protected:
  void SetUp() override {
    if (GetACP() != 1252) GTEST_SKIP() << "written for code page 1252, this is " << GetACP();
    store.List(1, 17, {2});
  }

  /// Two objects of a type on the main chassis, with their names in the text field at an offset.
  void AddTwo(uint16_t type, uint32_t nameOffset) {
    store.Add(10, type).Ucs2(nameOffset, u"first");
    store.Add(11, type).Ucs2(nameOffset, u"second");
    store.List(2, type, {10, 11});
  }

  /// The name of the object that "1" in full width finds.
  std::string NameGot(const char* className, const OLECHAR* key = OLESTR("DeviceID")) {
    const size_t before = DeliveredCount();
    EXPECT_EQ(0, Get(className, StringKey(key, OLESTR("\xFF11"))));
    return Value(before, "Name");
  }

  /// The same of two probes of a type.
  std::string ProbeGot(const char* className, uint16_t type) {
    AddTwo(type, 72);
    return NameGot(className);
  }
};

TEST_F(WideDigitsTest, AreReadAsTheCodePageHasThemByAllButCurrentSensors) {
  EXPECT_EQ("second", ProbeGot("CIM_TemperatureSensor", 22));
  EXPECT_EQ("second", ProbeGot("CIM_VoltageSensor", 24));
  EXPECT_EQ("second", ProbeGot("CIM_Tachometer", 23));
  EXPECT_EQ("second", ProbeGot("CIM_Fan", 23));
  EXPECT_EQ("first", ProbeGot("CIM_CurrentSensor", 25));
}

TEST_F(WideDigitsTest, AreNoNumberToPowerConsumptionSensors) {
  EXPECT_EQ("first", ProbeGot("VORN_PowerConsumptionAmpsSensor", 25));
  EXPECT_EQ("first", ProbeGot("VORN_PowerConsumptionWattsSensor", 25));
}

TEST_F(WideDigitsTest, AreNoNumberToDiscreteSensors) {
  store.Add(0, 22).Ucs2(72, u"number 0");
  store.Add(1, 22).Ucs2(72, u"number 1");
  EXPECT_EQ("number 0", NameGot("CIM_DiscreteSensor"));
}

TEST_F(WideDigitsTest, AreNoNumberToPowerConsumptionData) {
  store.Add(10, 40).Utf8(96, "first");
  store.Add(11, 40).Utf8(96, "second");
  store.List(2, 40, {10, 11});
  EXPECT_EQ("first", NameGot("VORN_PowerConsumptionData"));
}

TEST_F(WideDigitsTest, AreNoNumberToBaseboards) {
  AddTwo(259, 32);
  EXPECT_EQ("first", NameGot("VORN_Baseboard", OLESTR("Tag")));
}

TEST_F(WideDigitsTest, AreReadAsTheCodePageHasThemByProcessors) {
  AddTwo(196, 28);
  store.Add(12, 210).Ucs2(76, u"model");
  for (const uint32_t socket : {10u, 11u}) store.List(socket, 210, {12});
  EXPECT_EQ("second", NameGot("CIM_Processor"));
}

TEST_F(WideDigitsTest, AreReadAsTheCodePageHasThemByPhysicalMemory) {
  AddTwo(225, 68);
  for (const uint32_t field : {72u, 80u, 84u, 96u}) {
    for (const uint32_t oid : {10u, 11u}) store.Object(oid).Ucs2(field, u"other text");
  }
  EXPECT_EQ("second", NameGot("CIM_PhysicalMemory", OLESTR("Tag")));
}

}  // namespace
}  // namespace tqcim::testing
