#include "store/firmware_table.h"

#include <gtest/gtest.h>

#include <string>

#include "store/store_error.h"
#include "tests/store/raw_bytes.h"
#include "tests/store/smbios_bytes.h"
#include "tests/support/temporary_folder.h"

namespace tqcim::store {
namespace {

using testing::BytesOf;
using testing::ByteVector;
using testing::Dump64;
using testing::EntryPoint32;
using testing::EntryPoint64;
using testing::Joined;
using testing::kEndOfTable;
using testing::TemporaryFolder;
using testing::Text;
using testing::TextOf;
using testing::WithStrings;

constexpr uint32_t kDescription = 32 * 65536 + 1;

const ByteVector kTable =
    Joined({WithStrings({1, 6, 1, 0, 1, 2}, {"Vorn", "Tessera"}), kEndOfTable});

std::u16string ModelIn(const std::filesystem::path& path) {
  const auto snapshot = LoadFirmwareTable(path);
  return Text(BytesOf(*snapshot, kDescription), 40);
}

/// The failure's sentence, without the folder.
std::string FailureOf(const std::filesystem::path& path, const TemporaryFolder& folder) {
  try {
    LoadFirmwareTable(path);
  } catch (const StoreError& error) {
    const std::string sentence = error.what();
    const size_t prefix = folder.Path().string().size() + 1;
    EXPECT_EQ(sentence.substr(0, prefix - 1), folder.Path().string());
    return sentence.substr(prefix);
  }
  return "no failure";
}

TEST(FirmwareTable, IsReadFromADumpOfEitherKind) {
  const TemporaryFolder folder;
  EXPECT_EQ(ModelIn(folder.Write("64.bin", TextOf(Dump64(kTable)))), u"Tessera");
  const auto length = static_cast<uint16_t>(kTable.size());
  EXPECT_EQ(ModelIn(folder.Write("32.bin", TextOf(Joined({EntryPoint32(length, 2), kTable})))),
            u"Tessera");
}

TEST(FirmwareTable, StandsInADumpWhereTheEntryPointSays) {
  const TemporaryFolder folder;
  ByteVector entryPoint = EntryPoint64(static_cast<uint32_t>(kTable.size()));
  entryPoint[0x10] = 0x40;
  testing::Sum(entryPoint, 0, 0x18, 5);
  const auto path =
      folder.Write("far.bin", TextOf(Joined({entryPoint, ByteVector(0x20, 0xEE), kTable})));
  EXPECT_EQ(ModelIn(path), u"Tessera");
}

TEST(FirmwareTable, IsReadBareWithItsEntryPointBeside) {
  const TemporaryFolder folder;
  const auto length = static_cast<uint16_t>(kTable.size());
  for (ByteVector entryPoint : {EntryPoint64(length), EntryPoint32(length, 2)}) {
    // The address is one of the machine's memory and says nothing about the file.
    const bool is64 = entryPoint[3] == '3';
    entryPoint[is64 ? 0x13 : 0x1B] = 0x7B;
    if (!is64) testing::Sum(entryPoint, 0x10, 0x0F, 0x15);
    testing::Sum(entryPoint, 0, is64 ? 0x18 : 0x1F, is64 ? 5 : 4);
    entryPoint.resize(is64 ? 0x18 : 0x1F);
    folder.Write("smbios_entry_point", TextOf(entryPoint));
    const auto table = folder.Write("DMI", TextOf(kTable));
    EXPECT_EQ(ModelIn(table), u"Tessera");
    EXPECT_EQ(ModelIn(folder.Path()), u"Tessera") << "by the folder";
  }
}

TEST(FirmwareTable, MayBeShorterThanA64BitEntryPointAllows) {
  const TemporaryFolder folder;
  folder.Write("smbios_entry_point", TextOf(EntryPoint64(100000)));
  EXPECT_EQ(ModelIn(folder.Write("DMI", TextOf(kTable))), u"Tessera");
}

TEST(FirmwareTable, MayComeWithoutTheFillingThatItsEntryPointCounts) {
  const TemporaryFolder folder;
  const ByteVector entryPoint = EntryPoint32(64, 2);
  const ByteVector filled = Joined({kTable, ByteVector(64 - kTable.size(), 0xFF)});
  const auto dump = folder.Write("32.bin", TextOf(Joined({entryPoint, filled})));
  EXPECT_EQ(ModelIn(dump), u"Tessera");
  // Linux hands out the structures alone.
  folder.Write("smbios_entry_point", TextOf(entryPoint));
  EXPECT_EQ(ModelIn(folder.Write("DMI", TextOf(kTable))), u"Tessera");
}

TEST(FirmwareTable, IsReadWithAnEntryPointThatLeavesItsLastByteOut) {
  const TemporaryFolder folder;
  ByteVector entryPoint = EntryPoint32(static_cast<uint16_t>(kTable.size()), 2);
  entryPoint[5] = 0x1E;
  entryPoint[0x1E] = 0x21;
  testing::Sum(entryPoint, 0x10, 0x0F, 0x15);
  testing::Sum(entryPoint, 0, 0x1E, 4);
  entryPoint.resize(0x1E);
  folder.Write("smbios_entry_point", TextOf(entryPoint));
  EXPECT_EQ(ModelIn(folder.Write("DMI", TextOf(kTable))), u"Tessera");
}

TEST(FirmwareTable, IsReadOnlyAsFarAsItsLength) {
  const TemporaryFolder folder;
  const ByteVector dump = Joined(
      {EntryPoint32(static_cast<uint16_t>(kTable.size()), 99), kTable, {1, 0, 0, 0, 0, 0, 0, 0}});
  EXPECT_EQ(ModelIn(folder.Write("tail.bin", TextOf(dump))), u"Tessera");
}

TEST(FirmwareTable, CutOffIsToldWithFileAndByte) {
  const TemporaryFolder folder;
  const auto length = static_cast<uint16_t>(kTable.size());
  ByteVector dump = Joined({EntryPoint32(length, 2), kTable});
  ASSERT_EQ(kTable.size(), 26U);
  dump.resize(dump.size() - 7);
  EXPECT_EQ(FailureOf(folder.Write("32.bin", TextOf(dump)), folder),
            "32.bin: byte 0x20: structure 0 reaches past the end of the table");
  dump = Joined({EntryPoint32(length, 2), kTable});
  dump.resize(dump.size() - 6);
  EXPECT_EQ(FailureOf(folder.Write("32.bin", TextOf(dump)), folder),
            "32.bin: byte 0x34: the table is cut off before its end-of-table structure");
  dump = Dump64(kTable);
  dump.resize(dump.size() - 7);
  EXPECT_EQ(FailureOf(folder.Write("64.bin", TextOf(dump)), folder),
            "64.bin: byte 0x20: structure 0 reaches past the end of the table");
  dump = Dump64(kTable);
  dump.resize(dump.size() - 6);
  EXPECT_EQ(FailureOf(folder.Write("64.bin", TextOf(dump)), folder),
            "64.bin: byte 0x34: the table is cut off before its end-of-table structure");
}

TEST(FirmwareTable, DamageIsToldWithFileAndByte) {
  const TemporaryFolder folder;
  ByteVector dump = Dump64(kTable);
  dump[7] = 9;
  EXPECT_EQ(FailureOf(folder.Write("sum.bin", TextOf(dump)), folder),
            "sum.bin: byte 0x0: the entry point's checksum is wrong");
  dump = Dump64(kTable);
  dump[0x21] = 2;
  EXPECT_EQ(FailureOf(folder.Write("length.bin", TextOf(dump)), folder),
            "length.bin: byte 0x20: structure 0 can't have a length of 2");
}

TEST(FirmwareTable, AnAddressPastTheFileIsToldInBothSizes) {
  const TemporaryFolder folder;
  ByteVector dump = Dump64(kTable);
  dump[0x17] = 0xFF;
  testing::Sum(dump, 0, 0x18, 5);
  EXPECT_EQ(FailureOf(folder.Write("far.bin", TextOf(dump)), folder),
            "far.bin: byte 0x0: the entry point gives the table an address, 18374686479671623712, "
            "past the end of the file");
}

TEST(FirmwareTable, AnAddressInsideTheEntryPointIsRefused) {
  const TemporaryFolder folder;
  ByteVector dump = Dump64(kTable);
  for (const uint8_t address : ByteVector{0, 0x17}) {
    dump[0x10] = address;
    testing::Sum(dump, 0, 0x18, 5);
    EXPECT_EQ(FailureOf(folder.Write("near.bin", TextOf(dump)), folder),
              "near.bin: byte 0x0: the entry point gives the table an address, " +
                  std::to_string(address) + ", inside itself");
  }
  dump.erase(dump.begin() + 0x18, dump.begin() + 0x20);
  dump[0x10] = 0x18;
  testing::Sum(dump, 0, 0x18, 5);
  EXPECT_EQ(ModelIn(folder.Write("next.bin", TextOf(dump))), u"Tessera");
}

TEST(FirmwareTable, WithoutAnEntryPointIsNone) {
  const TemporaryFolder folder;
  const auto table = folder.Write("DMI", TextOf(kTable));
  EXPECT_EQ(FailureOf(table, folder),
            "DMI: neither begins with an SMBIOS entry point nor has one in smbios_entry_point "
            "beside it");
  folder.Write("smbios_entry_point", "no such thing");
  EXPECT_EQ(FailureOf(table, folder), "smbios_entry_point: byte 0x0: not an SMBIOS entry point");
  EXPECT_EQ(FailureOf(folder.Write("empty.bin", ""), folder),
            "smbios_entry_point: byte 0x0: not an SMBIOS entry point");
}

TEST(FirmwareTable, FilesThatAreMissingAreToldByName) {
  const TemporaryFolder folder;
  EXPECT_EQ(FailureOf(folder.Path() / "missing.bin", folder), "missing.bin: no such file");
  EXPECT_EQ(FailureOf(folder.Path(), folder), "DMI: no such file") << "a folder without a table";
}

TEST(FirmwareTable, OfTheRunningMachineIsReadOrItsAbsenceTold) {
  try {
    EXPECT_NE(LoadFirmware()->Find(1), nullptr);
  } catch (const StoreError& error) {
    EXPECT_NE(std::string(error.what()).find("firmware table"), std::string::npos) << error.what();
  }
}

TEST(FirmwareTable, EverySingleByteMayBeWrongWithoutHarm) {
  // What matters is that each of them either loads or is refused.
  const TemporaryFolder folder;
  const ByteVector table = Joined({WithStrings({0, 8, 0, 0, 1, 2, 0, 0}, {"Vorn", "1.0"}), kTable});
  int refused = 0;
  for (size_t i = 0; i < table.size(); ++i) {
    for (const uint8_t value : ByteVector{0x00, 0x01, 0x7F, 0xFF}) {
      ByteVector changed = table;
      changed[i] = value;
      try {
        LoadFirmwareTable(folder.Write("changed.bin", TextOf(Dump64(changed))));
      } catch (const StoreError&) {
        ++refused;
      }
    }
  }
  EXPECT_GT(refused, 0);
}

}  // namespace
}  // namespace tqcim::store
