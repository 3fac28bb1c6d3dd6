#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

/// Two ports whose names stand at 64 and at 96.
class CimSerialControllerTest : public HandlerTest {
 protected:
  CimSerialControllerTest() {
    store.Add(91, 193)
        .U32(32, 115200)
        .U32(40, 64)
        .U16(64, 'C')
        .U16(66, 'O')
        .U16(68, 'M')
        .U16(70, '1');
    store.Add(90, 193)
        .U32(32, 4294967295)
        .U32(40, 96)
        .U16(96, 'C')
        .U16(98, 'O')
        .U16(100, 'M')
        .U16(102, '2');
    store.List(2, 193, {91, 90});
  }
};

TEST_F(CimSerialControllerTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, Enumerate("CIM_SerialController"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ((Puts{{"Caption", VT_BSTR, 0, "COM1"},
                  {"CreationClassName", VT_BSTR, 0, "CIM_SerialController"},
                  {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
                  {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
                  {"DeviceID", VT_BSTR, 0, "COM1"},
                  {"MaxBaudRate", VT_I4, 0, "115200"},
                  {"Security", VT_I4, 0, "64"}}),
            Delivered(0));
  EXPECT_EQ("COM2", Value(1, "Caption"));
  EXPECT_EQ("COM2", Value(1, "DeviceID"));
  EXPECT_EQ("-1", Value(1, "MaxBaudRate"));
}

TEST_F(CimSerialControllerTest, SecurityCarriesTheOffsetOfTheName) {
  Enumerate("CIM_SerialController");
  EXPECT_EQ("64", Value(0, "Security"));
  EXPECT_EQ("96", Value(1, "Security"));
}

TEST_F(CimSerialControllerTest, TheNameIsCopiedCharacterByCharacter) {
  store.Object(91).U16(64, 0x00F6).U16(66, 0x2122);
  Enumerate("CIM_SerialController");
  EXPECT_EQ("\\u00F6\\u2122M1", Value(0, "Caption"));
}

}  // namespace
}  // namespace tqcim::testing
