#include <algorithm>

#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

struct BoardText {
  uint32_t offset;
  const char* property;
  const char16_t* text;
};

constexpr BoardText kBoardTexts[] = {
    {28, "Manufacturer", u"Example Boards"},
    {32, "ProductName", u"XB-200"},
    {36, "Version", u"A05"},
    {40, "SerialNumber", u"SN0001"},
    {44, "BoardExpressServiceCode", u"12345678901"},
    {48, "PartNumber", u"PN-77"},
    {52, "AssetTag", u"Asset 9"},
    {56, "BoardLocationName", u"Main tray"},
    {60, "BaseboardTypeDescString", u"Motherboard"},
};

class VornBaseboardTest : public HandlerTest {
 protected:
  VornBaseboardTest() {
    AddMainBoard();
    store.Add(31, 259).U32(16, 4).U8(20, 0x1A);
    store.List(2, 259, {30, 31});
  }

  /// The board at OID 30, without the texts at the given offsets.
  void AddMainBoard(std::vector<uint32_t> absentOffsets = {}) {
    FakeBlock& board = store.Add(30, 259).U32(16, 10).U8(20, 0x05);
    for (const BoardText& text : kBoardTexts) {
      if (std::find(absentOffsets.begin(), absentOffsets.end(), text.offset) ==
          absentOffsets.end()) {
        board.Ucs2(text.offset, text.text);
      }
    }
  }

  /// The values of the five flags of the first board: "10100".
  std::string FlagsOf(uint8_t flagByte) {
    store.Object(30).U8(20, flagByte);
    const size_t board = DeliveredCount();
    Enumerate("VORN_Baseboard");
    std::string flags;
    for (const char* property :
         {"HostingBoard", "RequiresDaughterBoard", "Removable", "Replaceable", "HotSwappable"}) {
      flags += Value(board, property);
    }
    return flags;
  }

  HRESULT GetByTag(const OLECHAR* tag) {
    return Get("VORN_Baseboard", StringKey(OLESTR("Tag"), tag));
  }
};

const Puts kMainBoard = {{"CreationClassName", VT_BSTR, 0, "Vorn_Baseboard"},
                         {"Tag", VT_BSTR, 0, "0"},
                         {"HostingBoard", VT_BOOL, 0, "1"},
                         {"RequiresDaughterBoard", VT_BOOL, 0, "0"},
                         {"Removable", VT_BOOL, 0, "1"},
                         {"Replaceable", VT_BOOL, 0, "0"},
                         {"HotSwappable", VT_BOOL, 0, "0"},
                         {"BaseboardType", VT_I4, 0, "10"},
                         {"Version", VT_BSTR, 0, "A05"},
                         {"ProductName", VT_BSTR, 0, "XB-200"},
                         {"Name", VT_BSTR, 0, "XB-200"},
                         {"Manufacturer", VT_BSTR, 0, "Example Boards"},
                         {"PartNumber", VT_BSTR, 0, "PN-77"},
                         {"SerialNumber", VT_BSTR, 0, "SN0001"},
                         {"BoardExpressServiceCode", VT_BSTR, 0, "12345678901"},
                         {"AssetTag", VT_BSTR, 0, "Asset 9"},
                         {"BaseboardTypeDescString", VT_BSTR, 0, "Motherboard"},
                         {"BoardLocationName", VT_BSTR, 0, "Main tray"}};

const Puts kBoardWithoutTexts = {{"CreationClassName", VT_BSTR, 0, "Vorn_Baseboard"},
                                 {"Tag", VT_BSTR, 0, "1"},
                                 {"HostingBoard", VT_BOOL, 0, "0"},
                                 {"RequiresDaughterBoard", VT_BOOL, 0, "1"},
                                 {"Removable", VT_BOOL, 0, "0"},
                                 {"Replaceable", VT_BOOL, 0, "1"},
                                 {"HotSwappable", VT_BOOL, 0, "1"},
                                 {"BaseboardType", VT_I4, 0, "4"}};

TEST_F(VornBaseboardTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, Enumerate("VORN_Baseboard"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(kMainBoard, Delivered(0));
}

TEST_F(VornBaseboardTest, ABoardWithoutProductNameAndVersionHasNoNameAndAbsentTextsStayUnset) {
  Enumerate("VORN_Baseboard");
  EXPECT_EQ(kBoardWithoutTexts, Delivered(1));
}

TEST_F(VornBaseboardTest, CreationClassNameIsTheMixedCaseVornBaseboard) {
  Enumerate("VORN_Baseboard");
  EXPECT_EQ("Vorn_Baseboard", Value(0, "CreationClassName"));
}

TEST_F(VornBaseboardTest, FlagsAreBits0To4AndPutAsOne) {
  EXPECT_EQ("00000", FlagsOf(0x00));
  EXPECT_EQ("10000", FlagsOf(0x01));
  EXPECT_EQ("01000", FlagsOf(0x02));
  EXPECT_EQ("00100", FlagsOf(0x04));
  EXPECT_EQ("00010", FlagsOf(0x08));
  EXPECT_EQ("00001", FlagsOf(0x10));
  EXPECT_EQ("10100", FlagsOf(0x05));
  EXPECT_EQ("00000", FlagsOf(0xE0));
  EXPECT_EQ("11111", FlagsOf(0xFF));
}

TEST_F(VornBaseboardTest, TheBoardTypeKeepsItsBits) {
  store.Object(30).U32(16, 4294967295);
  Enumerate("VORN_Baseboard");
  EXPECT_EQ("-1", Value(0, "BaseboardType"));
}

TEST_F(VornBaseboardTest, TheNameIsTheProductNameBeforeTheVersion) {
  Enumerate("VORN_Baseboard");
  EXPECT_EQ("XB-200", Value(0, "Name"));
  AddMainBoard({36});
  Enumerate("VORN_Baseboard");
  EXPECT_EQ("XB-200", Value(2, "Name"));
}

TEST_F(VornBaseboardTest, WithoutAProductNameTheNameIsTheVersion) {
  AddMainBoard({32});
  Enumerate("VORN_Baseboard");
  EXPECT_EQ("A05", Value(0, "Name"));
  EXPECT_EQ("<absent>", Value(0, "ProductName"));
}

TEST_F(VornBaseboardTest, EachAbsentTextLeavesItsPropertyUnset) {
  for (const BoardText& text : kBoardTexts) {
    AddMainBoard({text.offset});
    Enumerate("VORN_Baseboard");
    const size_t board = DeliveredCount() - 2;
    EXPECT_EQ("<absent>", Value(board, text.property));
    EXPECT_EQ(kMainBoard.size() - 1, Delivered(board).size()) << text.property;
  }
}

TEST_F(VornBaseboardTest, AnEmptyTextIsPut) {
  store.Object(31).Ucs2(32, u"").Ucs2(36, u"B01").Ucs2(52, u"");
  Enumerate("VORN_Baseboard");
  EXPECT_EQ("", Value(1, "ProductName"));
  EXPECT_EQ("", Value(1, "Name"));
  EXPECT_EQ("", Value(1, "AssetTag"));
}

TEST_F(VornBaseboardTest, IsGotByTheNumberInItsTag) {
  EXPECT_EQ(0, GetByTag(OLESTR("1")));
  EXPECT_EQ(0, GetByTag(OLESTR("0")));
  EXPECT_EQ(0, GetByTag(OLESTR(" +01 board")));
  ASSERT_EQ(3u, DeliveredCount());
  EXPECT_EQ(kBoardWithoutTexts, Delivered(0));
  EXPECT_EQ(kMainBoard, Delivered(1));
  EXPECT_EQ(kBoardWithoutTexts, Delivered(2));
}

TEST_F(VornBaseboardTest, ATagThatIsNoNumberIsTheFirstBoard) {
  EXPECT_EQ(0, GetByTag(OLESTR("main")));
  EXPECT_EQ(kMainBoard, Delivered(0));
}

TEST_F(VornBaseboardTest, OnlyTheLow16BitsOfTheTagCount) {
  EXPECT_EQ(0, GetByTag(OLESTR("65536")));
  EXPECT_EQ("XB-200", Value(0, "Name"));
  EXPECT_EQ(Hr(0x80041002), GetByTag(OLESTR("-1")));
  EXPECT_EQ(Hr(0x80041002), GetByTag(OLESTR("256")));
}

TEST_F(VornBaseboardTest, ATagPastTheLastBoardIsNotFound) {
  EXPECT_EQ(Hr(0x80041002), GetByTag(OLESTR("2")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornBaseboardTest, TheTagKeyIsFoundInAnyCaseAmongOtherKeys) {
  FakeKeyList keys;
  keys.Add(StringKey(OLESTR("CreationClassName"), OLESTR("0")))
      .Add(NumberKey(OLESTR("Tag"), 0))
      .Add(StringKey(OLESTR("tAG"), OLESTR("1")))
      .Add(StringKey(OLESTR("Tag"), OLESTR("0")));
  EXPECT_EQ(0, Get("VORN_Baseboard", keys));
  EXPECT_EQ("1", Value(0, "Tag"));
  EXPECT_EQ((std::vector<ULONG>{0, 1, 2}), keys.Reads());
}

TEST_F(VornBaseboardTest, TheTagsValueTellsWhetherItIsAStringNotThePathsViewOfIt) {
  EXPECT_EQ(0,
            Get("VORN_Baseboard", FakeKey{OLESTR("Tag"), Variant::Text(OLESTR("1")), CIM_SINT32}));
  EXPECT_EQ("1", Value(0, "Tag"));
  EXPECT_EQ(Hr(0x80041002),
            Get("VORN_Baseboard", FakeKey{OLESTR("Tag"), Variant::Int32(1), CIM_STRING}));
}

TEST_F(VornBaseboardTest, WithoutAStringInTheTagItIsNotFound) {
  FakeKeyList noKeys;
  EXPECT_EQ(Hr(0x80041002), Get("VORN_Baseboard", noKeys));
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys("VORN_Baseboard"));
  EXPECT_EQ(Hr(0x80041002), GetByTag(nullptr));
  EXPECT_EQ(Hr(0x80041002), Get("VORN_Baseboard", NumberKey(OLESTR("Tag"), 0)));
  EXPECT_EQ(Hr(0x80041002), Get("VORN_Baseboard", StringKey(OLESTR("Tags"), OLESTR("0"))));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornBaseboardTest, ANullTagEndsTheSearchForAnother) {
  FakeKeyList keys;
  keys.Add(StringKey(OLESTR("Tag"), nullptr)).Add(StringKey(OLESTR("Tag"), OLESTR("1")));
  EXPECT_EQ(Hr(0x80041002), Get("VORN_Baseboard", keys));
}

TEST_F(VornBaseboardTest, GettingReturnsTheFailureOfReadingTheKeys) {
  FakeKeyList uncounted;
  uncounted.FailCount(Hr(0x80041008));
  EXPECT_EQ(Hr(0x80041008), Get("VORN_Baseboard", uncounted));
  FakeKeyList unread;
  unread.Add(StringKey(OLESTR("Tag"), OLESTR("0"))).FailKey(0, Hr(0x80041003));
  EXPECT_EQ(Hr(0x80041003), Get("VORN_Baseboard", unread));
  EXPECT_EQ(0u, definition.Spawns());
  unread.Add(StringKey(OLESTR("Tag"), OLESTR("0")));
  EXPECT_EQ(0, Get("VORN_Baseboard", unread));
  EXPECT_EQ(1u, DeliveredCount()) << "the next key counts";
}

TEST_F(VornBaseboardTest, IsNotFoundWhereTheStoreDoesNotGiveIt) {
  store.FailRead(31);
  EXPECT_EQ(Hr(0x80041002), GetByTag(OLESTR("1")));
  store.List(2, 259, {});
  EXPECT_EQ(Hr(0x80041002), GetByTag(OLESTR("0")));
  store.FailListing(2, 259);
  EXPECT_EQ(Hr(0x80041002), GetByTag(OLESTR("0")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornBaseboardTest, GettingReturnsTheStatusOfASpawnWithoutInstance) {
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, S_OK);
  EXPECT_EQ(Hr(0x80041006), GetByTag(OLESTR("0")));
  EXPECT_EQ(0, GetByTag(OLESTR("0")));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornBaseboardTest, GettingReturnsTheStatusOfTheDelivery) {
  sink.KeepInstances();
  EXPECT_EQ(0, GetByTag(OLESTR("0")));
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), GetByTag(OLESTR("0")));
}

}  // namespace
}  // namespace tqcim::testing
