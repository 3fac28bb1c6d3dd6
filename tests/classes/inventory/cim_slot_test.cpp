#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

class CimSlotTest : public HandlerTest {
 protected:
  CimSlotTest() {
    store.Add(81, 228).U32(16, 172).U32(28, 7).I16(48, 1).Utf8(80, "PCIe Slot 7");
    store.Add(80, 228).U32(16, 4294967295).U32(28, 2147483648).I16(48, -2).Utf8(80, "Riser");
    store.List(2, 228, {81, 80});
  }
};

TEST_F(CimSlotTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, Enumerate("CIM_Slot"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ((Puts{{"Caption", VT_BSTR, 0, "PCIe Slot 7"},
                  {"Number", VT_I4, 0, "7"},
                  {"SupportsHotPlug", VT_I4, 0, "1"},
                  {"CreationClassName", VT_BSTR, 0, "CIM_Slot"},
                  {"SystemSlotType", VT_I4, 0, "172"}}),
            Delivered(0));
}

TEST_F(CimSlotTest, UnsignedNumbersKeepTheirBits) {
  Enumerate("CIM_Slot");
  EXPECT_EQ("-2147483648", Value(1, "Number"));
  EXPECT_EQ("-1", Value(1, "SystemSlotType"));
}

TEST_F(CimSlotTest, SupportsHotPlugIsASignExtended16BitNumberAndNoTruthValue) {
  constexpr std::pair<uint16_t, const char*> kValues[] = {
      {0, "0"}, {1, "1"}, {2, "2"}, {0x7FFF, "32767"}, {0x8000, "-32768"}, {0xFFFF, "-1"}};
  for (const auto& [raw, value] : kValues) {
    store.Object(81).U16(46, 0x5555).U16(48, raw).U16(50, 0x5555);
    Enumerate("CIM_Slot");
    const RecordedPut put = Delivered(DeliveredCount() - 2).at(2);
    EXPECT_EQ((RecordedPut{"SupportsHotPlug", VT_I4, 0, value}), put) << raw;
  }
}

TEST_F(CimSlotTest, AnAbsentCaptionIsPutAsANullString) {
  store.Add(81, 228);
  Enumerate("CIM_Slot");
  EXPECT_EQ((RecordedPut{"Caption", VT_BSTR, 0, "<null>"}), Delivered(0).at(0));
  EXPECT_EQ(5u, Delivered(0).size());
}

TEST_F(CimSlotTest, AnEmptyCaptionIsPutAsAnEmptyString) {
  store.Object(81).Utf8(80, "");
  Enumerate("CIM_Slot");
  EXPECT_EQ("", Value(0, "Caption"));
}

}  // namespace
}  // namespace tqcim::testing
