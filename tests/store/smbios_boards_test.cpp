#include <gtest/gtest.h>

#include "tests/store/raw_bytes.h"
#include "tests/store/smbios_bytes.h"
#include "tests/store/smbios_snapshot.h"

namespace tqcim::testing {
namespace {

constexpr uint32_t kBoard = 259 * 65536 + 1;

/// Hosting, replaceable, a motherboard, with one contained object.
const ByteVector kBoardStructure = {2, 0x11, 2, 0, 1, 2, 3, 4, 5, 0x09, 6, 3, 0, 0x0A, 1, 0x10, 0};

const std::initializer_list<std::string_view> kBoardStrings = {"Vorn",  "T22-MB", "A03",
                                                               "VB19C", "TAG7",   "Slot 0"};

TEST(SmbiosBaseboard, FillsTheBaseboardObject) {
  const auto snapshot = SnapshotOfStructures({WithStrings(kBoardStructure, kBoardStrings)});
  EXPECT_EQ(Oids(snapshot->Children(2, 259)), std::vector<uint32_t>({kBoard}));
  const std::byte* board = BytesOf(*snapshot, kBoard);
  EXPECT_EQ(U8(board, 10), 1) << "how a board fares isn't told";
  EXPECT_EQ(U32(board, 16), 10U) << "type";
  EXPECT_EQ(U8(board, 20), 0x09) << "features";
  EXPECT_EQ(Text(board, 28), u"Vorn");
  EXPECT_EQ(Text(board, 32), u"T22-MB");
  EXPECT_EQ(Text(board, 36), u"A03");
  EXPECT_EQ(Text(board, 40), u"VB19C");
  EXPECT_EQ(U32(board, 44), 0U) << "no express service code in the standard";
  EXPECT_EQ(U32(board, 48), 0U) << "no part number in the standard";
  EXPECT_EQ(Text(board, 52), u"TAG7");
  EXPECT_EQ(Text(board, 56), u"Slot 0");
  EXPECT_EQ(Text(board, 60), u"Motherboard");
}

TEST(SmbiosBaseboard, EveryBoardOfATableIsOneInItsOrder) {
  const auto snapshot = SnapshotOfStructures({WithStrings(kBoardStructure, {"a", "first"}),
                                              WithStrings(kBoardStructure, {"a", "second"}),
                                              WithStrings(kBoardStructure, {"a", "third"})});
  EXPECT_EQ(Oids(snapshot->Children(2, 259)),
            std::vector<uint32_t>({kBoard, kBoard + 1, kBoard + 2}));
  EXPECT_EQ(Text(BytesOf(*snapshot, kBoard), 32), u"first");
  EXPECT_EQ(Text(BytesOf(*snapshot, kBoard + 2), 32), u"third");
}

TEST(SmbiosBaseboard, EveryTypeKeepsItsCodeAndHasItsWords) {
  const struct {
    uint8_t code;
    const char16_t* words;
  } cases[] = {
      {0x02, u"Other"},
      {0x03, u"Server Blade"},
      {0x04, u"Connectivity Switch"},
      {0x05, u"System Management Module"},
      {0x06, u"Processor Module"},
      {0x07, u"I/O Module"},
      {0x08, u"Memory Module"},
      {0x09, u"Daughter board"},
      {0x0A, u"Motherboard"},
      {0x0B, u"Processor/Memory Module"},
      {0x0C, u"Processor/IO Module"},
      {0x0D, u"Interconnect board"},
  };
  for (const auto& c : cases) {
    const auto snapshot =
        SnapshotOfStructures({WithStrings(With(kBoardStructure, {{0x0D, c.code}}), {})});
    EXPECT_EQ(U32(BytesOf(*snapshot, kBoard), 16), c.code);
    EXPECT_EQ(Text(BytesOf(*snapshot, kBoard), 60), c.words) << int{c.code};
  }
}

TEST(SmbiosBaseboard, ATypeThatIsUnknownOrNoneOfTheStandardsHasNoWords) {
  for (const uint8_t code : ByteVector{0x00, 0x01, 0x0E, 0xFF}) {
    const auto snapshot =
        SnapshotOfStructures({WithStrings(With(kBoardStructure, {{0x0D, code}}), {})});
    EXPECT_EQ(U32(BytesOf(*snapshot, kBoard), 16), code);
    EXPECT_EQ(U32(BytesOf(*snapshot, kBoard), 60), 0U) << int{code};
  }
}

TEST(SmbiosBaseboard, EveryFeatureIsOneBitAndTheReservedOnesAreLeftOut) {
  const auto flagsOf = [](uint8_t features) {
    const auto snapshot =
        SnapshotOfStructures({WithStrings(With(kBoardStructure, {{0x09, features}}), {})});
    return U8(BytesOf(*snapshot, kBoard), 20);
  };
  EXPECT_EQ(flagsOf(0x01), 0x01) << "hosting";
  EXPECT_EQ(flagsOf(0x02), 0x02) << "requires a daughter board";
  EXPECT_EQ(flagsOf(0x04), 0x04) << "removable";
  EXPECT_EQ(flagsOf(0x08), 0x08) << "replaceable";
  EXPECT_EQ(flagsOf(0x10), 0x10) << "hot swappable";
  EXPECT_EQ(flagsOf(0xE0), 0x00) << "reserved";
  EXPECT_EQ(flagsOf(0xFF), 0x1F);
}

TEST(SmbiosBaseboard, TextsThatAreNotThereAreAbsent) {
  // No string; one past the set; one of blanks; and the two that are there.
  const auto snapshot = SnapshotOfStructures(
      {WithStrings(With(kBoardStructure, {{4, 0}, {5, 9}, {6, 1}, {7, 2}, {8, 0xFF}, {0x0A, 3}}),
                   {"   ", "VB19C", "Bay"})});
  const std::byte* board = BytesOf(*snapshot, kBoard);
  EXPECT_EQ(U32(board, 28), 0U);
  EXPECT_EQ(U32(board, 32), 0U);
  EXPECT_EQ(U32(board, 36), 0U);
  EXPECT_EQ(Text(board, 40), u"VB19C");
  EXPECT_EQ(U32(board, 52), 0U);
  EXPECT_EQ(Text(board, 56), u"Bay");
}

TEST(SmbiosBaseboard, AnOldRecordTellsOnlyWhatItHas) {
  const auto of = [](uint8_t length) {
    return SnapshotOfStructures({WithStrings(Shortened(kBoardStructure, length), kBoardStrings)});
  };
  const auto eight = of(0x08);
  EXPECT_EQ(Text(BytesOf(*eight, kBoard), 40), u"VB19C");
  EXPECT_EQ(U32(BytesOf(*eight, kBoard), 52), 0U) << "asset tag";
  EXPECT_EQ(U8(BytesOf(*eight, kBoard), 20), 0) << "features";
  EXPECT_EQ(U32(BytesOf(*eight, kBoard), 16), 1U) << "unknown type";
  EXPECT_EQ(U32(BytesOf(*eight, kBoard), 60), 0U) << "type in words";
  const auto withFeatures = of(0x0A);
  EXPECT_EQ(Text(BytesOf(*withFeatures, kBoard), 52), u"TAG7");
  EXPECT_EQ(U8(BytesOf(*withFeatures, kBoard), 20), 0x09);
  EXPECT_EQ(U32(BytesOf(*withFeatures, kBoard), 56), 0U) << "location";
  const auto withLocation = of(0x0D);
  EXPECT_EQ(Text(BytesOf(*withLocation, kBoard), 56), u"Slot 0");
  EXPECT_EQ(U32(BytesOf(*withLocation, kBoard), 16), 1U) << "unknown type";
  EXPECT_EQ(U32(BytesOf(*of(0x0E), kBoard), 16), 10U) << "without its contained objects";
}

}  // namespace
}  // namespace tqcim::testing
