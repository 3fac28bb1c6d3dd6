#include "store/smbios_table.h"

#include <gtest/gtest.h>

#include <functional>

#include "store/store_error.h"
#include "tests/store/smbios_bytes.h"

namespace tqcim::store::smbios {
namespace {

using tqcim::testing::ByteVector;
using tqcim::testing::Joined;
using tqcim::testing::kEndOfTable;
using tqcim::testing::WithStrings;

std::string FailureOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const StoreError& error) {
    return error.what();
  }
  return "no failure";
}

std::string EntryPointFailure(const ByteVector& bytes) {
  return FailureOf([&] { ReadEntryPoint(bytes, "f"); });
}

/// The table with a number of structures told, or without.
std::vector<Structure> Read(const ByteVector& table, std::optional<uint16_t> count = {}) {
  EntryPoint entryPoint;
  entryPoint.tableLength = static_cast<uint32_t>(table.size());
  entryPoint.structureCount = count;
  return ReadStructures(table, entryPoint, "f", 0x20);
}

std::string TableFailure(const ByteVector& table, std::optional<uint16_t> count = {}) {
  return FailureOf([&] { Read(table, count); });
}

const ByteVector kEntryPoint32 = {
    '_', 'S', 'M', '_', 0xFA, 0x1F, 2,    7,    0x80, 0x00, 0,    0,    0,    0,    0,    0,  // 00
    '_', 'D', 'M', 'I', '_',  0x4B, 0x34, 0x12, 0x20, 0x00, 0x0F, 0x00, 0x81, 0x00, 0x27, 0,  // 10
};

const ByteVector kEntryPoint64 = {
    '_',  'S',  'M',  '3',  '_', 0xB1, 0x18, 3, 2, 1, 1, 0, 0x60, 0x0F, 0x01, 0x00,  // 00
    0x20, 0x00, 0x00, 0x0F, 0,   0,    0,    0,                                      // 10
};

TEST(SmbiosEntryPoint, A32BitOneTellsAddressLengthAndNumberOfStructures) {
  const EntryPoint entryPoint = ReadEntryPoint(kEntryPoint32, "f");
  EXPECT_EQ(entryPoint.length, 0x1F);
  EXPECT_EQ(entryPoint.tableAddress, 0x000F0020U);
  EXPECT_EQ(entryPoint.tableLength, 0x1234U);
  EXPECT_EQ(entryPoint.structureCount, 129);
}

TEST(SmbiosEntryPoint, A64BitOneTellsAddressAndMostLength) {
  const EntryPoint entryPoint = ReadEntryPoint(kEntryPoint64, "f");
  EXPECT_EQ(entryPoint.length, 0x18);
  EXPECT_EQ(entryPoint.tableAddress, 0x0F000020U);
  EXPECT_EQ(entryPoint.tableLength, 0x00010F60U);
  EXPECT_EQ(entryPoint.structureCount, std::nullopt);
}

TEST(SmbiosEntryPoint, IsKnownByItsAnchor) {
  EXPECT_TRUE(HasEntryPoint(kEntryPoint32));
  EXPECT_TRUE(HasEntryPoint(kEntryPoint64));
  EXPECT_FALSE(HasEntryPoint(ByteVector{'_', 'S', 'M'}));
  EXPECT_FALSE(HasEntryPoint(ByteVector{'_', 'S', 'M', '4', '_', 0}));
  EXPECT_FALSE(HasEntryPoint({}));
}

TEST(SmbiosEntryPoint, AnyChangedByteBreaksAChecksum) {
  for (const ByteVector* whole : {&kEntryPoint32, &kEntryPoint64}) {
    const size_t covered = whole == &kEntryPoint32 ? 0x1F : 0x18;
    for (size_t i = 6; i < covered; ++i) {
      ByteVector changed = *whole;
      ++changed[i];
      EXPECT_NE(EntryPointFailure(changed), "no failure") << i;
    }
  }
  ByteVector changed = kEntryPoint64;
  ++changed[7];
  EXPECT_EQ(EntryPointFailure(changed), "f: byte 0x0: the entry point's checksum is wrong");
}

TEST(SmbiosEntryPoint, TheIntermediatePartHasAChecksumOfItsOwn) {
  ByteVector changed = kEntryPoint32;
  ++changed[0x16];
  --changed[0x08];  // keeps the outer one right
  EXPECT_EQ(EntryPointFailure(changed), "f: byte 0x10: the intermediate checksum is wrong");
  changed = kEntryPoint32;
  ++changed[0x10];
  --changed[0x08];
  EXPECT_EQ(EntryPointFailure(changed), "f: byte 0x10: the intermediate anchor is missing");
}

TEST(SmbiosEntryPoint, ALengthThatCannotBeIsRefused) {
  for (const int length : {0, 0x1D, 0x21, 0xFF}) {
    ByteVector changed = kEntryPoint32;
    changed[5] = static_cast<uint8_t>(length);
    EXPECT_EQ(EntryPointFailure(changed),
              "f: byte 0x5: the entry point can't have a length of " + std::to_string(length));
  }
  for (const int length : {0, 0x17, 0x21, 0xFF}) {
    ByteVector changed = kEntryPoint64;
    changed[6] = static_cast<uint8_t>(length);
    EXPECT_EQ(EntryPointFailure(changed),
              "f: byte 0x6: the entry point can't have a length of " + std::to_string(length));
  }
}

TEST(SmbiosEntryPoint, TheLengthThatVersion21GaveByMistakeIsTaken) {
  ByteVector changed = kEntryPoint32;
  changed[5] = 0x1E;
  tqcim::testing::Sum(changed, 0, 0x1E, 4);
  EXPECT_EQ(ReadEntryPoint(changed, "f").structureCount, 129);
  changed[0x1E] = 0x21;
  EXPECT_EQ(EntryPointFailure(changed), "f: byte 0x10: the intermediate checksum is wrong");
  changed.resize(0x1E);
  EXPECT_EQ(ReadEntryPoint(changed, "f").structureCount, 129)
      << "what is not there is in no checksum";
}

TEST(SmbiosEntryPoint, ALengthPastTheEndOfTheFileIsCutOff) {
  ByteVector changed = kEntryPoint32;
  changed[5] = 0x20;
  changed.resize(0x1F);
  EXPECT_EQ(EntryPointFailure(changed), "f: byte 0x1F: the entry point is cut off");
  changed = kEntryPoint64;
  changed[6] = 0x19;
  EXPECT_EQ(EntryPointFailure(changed), "f: byte 0x18: the entry point is cut off");
}

TEST(SmbiosEntryPoint, CutOffAnywhereItIsRefused) {
  for (const ByteVector* whole : {&kEntryPoint32, &kEntryPoint64}) {
    const size_t covered = whole == &kEntryPoint32 ? 0x1F : 0x18;
    for (size_t length = 5; length < covered; ++length) {
      const ByteVector cut(whole->begin(), whole->begin() + static_cast<ptrdiff_t>(length));
      char place[32];
      std::snprintf(place, sizeof(place), "f: byte 0x%zX", length);
      EXPECT_EQ(EntryPointFailure(cut), place + std::string(": the entry point is cut off"));
    }
  }
}

TEST(SmbiosStructures, FollowOneAnotherPastTheirStrings) {
  const ByteVector table = Joined({WithStrings({1, 6, 7, 0, 1, 2}, {"maker", "product"}),
                                   WithStrings({2, 4, 8, 0}, {}), kEndOfTable});
  const auto structures = Read(table);
  ASSERT_EQ(structures.size(), 3U);
  EXPECT_EQ(structures[0].Type(), 1);
  EXPECT_EQ(structures[0].String(4), "maker");
  EXPECT_EQ(structures[0].String(5), "product");
  EXPECT_EQ(structures[0].Place(), "f: byte 0x20");
  EXPECT_EQ(structures[1].Type(), 2);
  EXPECT_EQ(structures[1].Place(), "f: byte 0x35");
  EXPECT_EQ(structures[2].Type(), 127);
}

TEST(SmbiosStructures, EndAtTheEndOfTableStructureWhereTheirNumberIsNotTold) {
  const ByteVector table = Joined({kEndOfTable, {9, 9, 9, 9, 9, 9}});
  EXPECT_EQ(Read(table).size(), 1U);
}

TEST(SmbiosStructures, EndAfterTheNumberTold) {
  const ByteVector table =
      Joined({WithStrings({1, 4, 0, 0}, {}), kEndOfTable, WithStrings({2, 4, 1, 0}, {})});
  EXPECT_EQ(Read(table, 2).size(), 2U);
  EXPECT_EQ(Read(table, 3).size(), 3U) << "the number counts, not the end-of-table structure";
  EXPECT_EQ(Read(table, 9).size(), 3U) << "some firmware counts too many";
}

TEST(SmbiosStructures, FillingBehindTheEndOfTableStructureIsIgnored) {
  const ByteVector table = Joined({kEndOfTable, ByteVector(16, 0)});
  EXPECT_EQ(Read(table, 5).size(), 1U);
}

TEST(SmbiosStructures, AFieldIsThereOnlyWhereTheStructureCoversIt) {
  const ByteVector table = Joined({WithStrings({4, 12, 0, 0, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66,  //
                                                0x77, 0x88},
                                               {}),
                                   kEndOfTable});
  const Structure structure = Read(table)[0];
  EXPECT_EQ(structure.Byte(11), 0x88);
  EXPECT_EQ(structure.Byte(12), std::nullopt);
  EXPECT_EQ(structure.Word(10), 0x8877);
  EXPECT_EQ(structure.Word(11), std::nullopt);
  EXPECT_EQ(structure.Dword(8), 0x88776655U);
  EXPECT_EQ(structure.Dword(9), std::nullopt);
  EXPECT_EQ(structure.Qword(4), 0x8877665544332211U);
  EXPECT_EQ(structure.Qword(5), std::nullopt);
  EXPECT_EQ(structure.Byte(255), std::nullopt);
  EXPECT_EQ(structure.String(200), std::nullopt);
}

TEST(SmbiosStructures, AStringThatIsNotInTheRecordIsAbsent) {
  const ByteVector table = Joined({WithStrings({1, 8, 0, 0, 0, 1, 2, 255}, {"one"}), kEndOfTable});
  const Structure structure = Read(table)[0];
  EXPECT_EQ(structure.String(4), std::nullopt) << "number 0";
  EXPECT_EQ(structure.String(5), "one");
  EXPECT_EQ(structure.String(6), std::nullopt) << "one past the last";
  EXPECT_EQ(structure.String(7), std::nullopt);
  const ByteVector none = Joined({WithStrings({1, 5, 0, 0, 1}, {}), kEndOfTable});
  EXPECT_EQ(Read(none)[0].String(4), std::nullopt) << "a record without strings";
}

TEST(SmbiosStructures, StringsLoseTheirTrailingBlanksAndTheirControls) {
  const ByteVector table =
      Joined({WithStrings({1, 9, 0, 0, 1, 2, 3, 4, 5},
                          {"  HP  ", "   ", "a\x01\x7Fz\r\n", "caf\xC3\xA9", "caf\xE9 1"}),
              kEndOfTable});
  const Structure structure = Read(table)[0];
  EXPECT_EQ(structure.String(4), "  HP");
  EXPECT_EQ(structure.String(5), std::nullopt) << "blanks only";
  EXPECT_EQ(structure.String(6), "a  z");
  EXPECT_EQ(structure.String(7), "caf\xC3\xA9");
  EXPECT_EQ(structure.String(8), "caf\xEF\xBF\xBD 1") << "not UTF-8";
}

TEST(SmbiosStructures, ALengthShorterThanTheHeaderIsRefused) {
  for (uint8_t length = 0; length < 4; ++length) {
    const ByteVector table =
        Joined({WithStrings({1, 4, 0, 0}, {}), WithStrings({2, length, 1, 0}, {}), kEndOfTable});
    const std::string sentence =
        "f: byte 0x26: structure 1 can't have a length of " + std::to_string(length);
    EXPECT_EQ(TableFailure(table), sentence);
    EXPECT_EQ(TableFailure(table, 3), sentence);
  }
}

TEST(SmbiosStructures, CutOffAnywhereTheTableIsRefused) {
  const ByteVector table =
      Joined({WithStrings({1, 6, 7, 0, 1, 2}, {"maker", "product"}), kEndOfTable});
  for (size_t length = 4; length < 21; ++length) {
    const ByteVector cut(table.begin(), table.begin() + static_cast<ptrdiff_t>(length));
    EXPECT_EQ(TableFailure(cut), "f: byte 0x20: structure 0 reaches past the end of the table")
        << length;
  }
  for (size_t length = 0; length < 4; ++length) {
    const ByteVector cut(table.begin(), table.begin() + static_cast<ptrdiff_t>(length));
    EXPECT_EQ(TableFailure(cut), "f: byte 0x20: the table is empty") << length;
  }
  ASSERT_EQ(table.size(), 27U);
  for (size_t length = 25; length < 27; ++length) {
    const ByteVector cut(table.begin(), table.begin() + static_cast<ptrdiff_t>(length));
    EXPECT_EQ(TableFailure(cut), "f: byte 0x35: structure 1 reaches past the end of the table");
  }
}

TEST(SmbiosStructures, ATableThatEndsBetweenStructuresBeforeItsLengthIsCutOff) {
  const ByteVector table = WithStrings({1, 4, 0, 0}, {});
  EntryPoint entryPoint;
  entryPoint.tableLength = 6;
  EXPECT_EQ(ReadStructures(table, entryPoint, "f", 0).size(), 1U);
  entryPoint.tableLength = 7;
  EXPECT_EQ(FailureOf([&] { ReadStructures(table, entryPoint, "f", 0); }),
            "f: byte 0x6: the table is cut off before its end-of-table structure");
}

TEST(SmbiosStructures, ATableShorterThanItsLengthIsWholeWithAllThatItCountsOrItsEnd) {
  const ByteVector one = WithStrings({1, 4, 0, 0}, {});
  const auto failure = [](const ByteVector& table, uint16_t count) {
    EntryPoint entryPoint;
    entryPoint.tableLength = 100;
    entryPoint.structureCount = count;
    return FailureOf([&] { ReadStructures(table, entryPoint, "f", 0); });
  };
  EXPECT_EQ(failure(one, 1), "no failure");
  EXPECT_EQ(failure(one, 2), "f: byte 0x6: the table is cut off before its end-of-table structure");
  EXPECT_EQ(failure(Joined({one, kEndOfTable}), 3), "no failure")
      << "firmware that counts too many";
}

TEST(SmbiosStructures, StringsWithoutTheirDoubleZeroAreRefused) {
  EXPECT_EQ(TableFailure({1, 4, 0, 0, 'a', 'b', 'c', 0, 'd'}),
            "f: byte 0x20: structure 0 reaches past the end of the table");
}

}  // namespace
}  // namespace tqcim::store::smbios
