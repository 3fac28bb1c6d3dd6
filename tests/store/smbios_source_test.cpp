#include "store/smbios_source.h"

#include <gtest/gtest.h>

#include "tests/store/raw_bytes.h"
#include "tests/store/smbios_bytes.h"
#include "tests/store/smbios_snapshot.h"

namespace tqcim::store::smbios {
namespace {

using tqcim::testing::BytesOf;
using tqcim::testing::ByteVector;
using tqcim::testing::Oids;
using tqcim::testing::Shortened;
using tqcim::testing::SnapshotOfStructures;
using tqcim::testing::Text;
using tqcim::testing::U16;
using tqcim::testing::U32;
using tqcim::testing::U64;
using tqcim::testing::U8;
using tqcim::testing::With;
using tqcim::testing::WithStrings;

// The OIDs of the objects that are made of the first structure of their kind.
constexpr uint32_t kDescription = 32 * 65536 + 1;
constexpr uint32_t kIdentity = 33 * 65536 + 1;
constexpr uint32_t kBios = 212 * 65536 + 1;
constexpr uint32_t kSocket = 196 * 65536 + 1;
constexpr uint32_t kProcessor = 210 * 65536 + 1;
constexpr uint32_t kMemory = 225 * 65536 + 1;

const ByteVector kSystemStructure =
    WithStrings({1, 8, 1, 0, 1, 2, 3, 4}, {"Vorn", "Tessera 2200", "A1", "VR7"});

const ByteVector kEnclosure = {3, 0x0D, 3, 0, 1, 0x97, 2, 3, 4, 3, 3, 3, 0};

TEST(SmbiosChassis, IsTheEnclosureWithTheNamesOfTheSystem) {
  const auto snapshot = SnapshotOfStructures(
      {kSystemStructure, WithStrings(kEnclosure, {"Vorn", "rev 2", "SN1", "TAG1"})});
  EXPECT_EQ(Oids(snapshot->Children(1, 17)), std::vector<uint32_t>({2}));
  EXPECT_EQ(Oids(snapshot->Children(2, 32)), std::vector<uint32_t>({kDescription}));
  EXPECT_EQ(Oids(snapshot->Children(2, 33)), std::vector<uint32_t>({kIdentity}));
  const std::byte* description = BytesOf(*snapshot, kDescription);
  EXPECT_EQ(U32(description, 16), 0x17U) << "type, without the bit of the lock";
  EXPECT_EQ(U16(description, 24), 1) << "lock";
  EXPECT_EQ(Text(description, 32), u"Vorn Tessera 2200");
  EXPECT_EQ(Text(description, 40), u"Tessera 2200");
  EXPECT_EQ(Text(description, 48), u"rev 2");
  const std::byte* identity = BytesOf(*snapshot, kIdentity);
  EXPECT_EQ(Text(identity, 32), u"SN1");
  EXPECT_EQ(Text(identity, 36), u"TAG1");
  EXPECT_EQ(Text(identity, 44), u"") << "no express service code in the standard";
  EXPECT_EQ(U32(identity, 48), 0U);
}

TEST(SmbiosChassis, WithoutALockIsOpen) {
  const auto snapshot = SnapshotOfStructures({WithStrings(With(kEnclosure, {{5, 0x17}}), {})});
  EXPECT_EQ(U32(BytesOf(*snapshot, kDescription), 16), 0x17U);
  EXPECT_EQ(U16(BytesOf(*snapshot, kDescription), 24), 0);
}

TEST(SmbiosChassis, IsThereEvenIfTheTableDoesNotTellOfIt) {
  const auto snapshot = SnapshotOfStructures({});
  EXPECT_EQ(U8(BytesOf(*snapshot, 1), 10), 1) << "unknown, and no fault";
  EXPECT_EQ(U8(BytesOf(*snapshot, 2), 10), 1);
  const std::byte* description = BytesOf(*snapshot, kDescription);
  EXPECT_EQ(U32(description, 16), 2U) << "unknown type";
  EXPECT_EQ(Text(description, 32), u"");
  EXPECT_EQ(Text(BytesOf(*snapshot, kIdentity), 32), u"");
}

TEST(SmbiosChassis, NamesItselfByWhatTheSystemTells) {
  const auto nameOf = [](const ByteVector& system) {
    const auto snapshot = SnapshotOfStructures({system});
    return Text(BytesOf(*snapshot, kDescription), 32);
  };
  EXPECT_EQ(nameOf(WithStrings({1, 6, 1, 0, 1, 0}, {"Vorn"})), u"Vorn");
  EXPECT_EQ(nameOf(WithStrings({1, 6, 1, 0, 0, 1}, {"Tessera"})), u"Tessera");
  EXPECT_EQ(nameOf(WithStrings({1, 5, 1, 0, 1}, {"Vorn", "Tessera"})), u"Vorn")
      << "a record too short for the product";
  EXPECT_EQ(nameOf(WithStrings({1, 4, 1, 0}, {"Vorn"})), u"");
}

TEST(SmbiosChassis, StatusIsTheWorstStateThatIsTold) {
  const auto statusOf = [](uint8_t boot, uint8_t power, uint8_t thermal) {
    const auto snapshot = SnapshotOfStructures(
        {WithStrings(With(kEnclosure, {{9, boot}, {10, power}, {11, thermal}}), {})});
    EXPECT_EQ(U8(BytesOf(*snapshot, 1), 10), U8(BytesOf(*snapshot, 2), 10));
    return U8(BytesOf(*snapshot, 2), 10);
  };
  EXPECT_EQ(statusOf(3, 3, 3), 2) << "safe";
  EXPECT_EQ(statusOf(3, 4, 3), 3) << "warning";
  EXPECT_EQ(statusOf(5, 4, 3), 4) << "critical";
  EXPECT_EQ(statusOf(3, 3, 6), 5) << "non-recoverable";
  EXPECT_EQ(statusOf(3, 2, 2), 2) << "unknown tells nothing";
  EXPECT_EQ(statusOf(1, 3, 1), 2) << "other tells nothing";
  EXPECT_EQ(statusOf(2, 2, 2), 1) << "unknown throughout";
  EXPECT_EQ(statusOf(0, 7, 255), 1) << "codes that the standard doesn't have";
}

TEST(SmbiosChassis, OfAnOldRecordHasNoStates) {
  const auto snapshot =
      SnapshotOfStructures({WithStrings(Shortened(kEnclosure, 9), {"a", "b", "SN1", "TAG1"})});
  EXPECT_EQ(U8(BytesOf(*snapshot, 2), 10), 1);
  EXPECT_EQ(Text(BytesOf(*snapshot, kIdentity), 36), u"TAG1");
}

const ByteVector kBiosStructure = {0,    0x18, 0,    0,    1,    2,    0,    0xF0,
                                   3,    0xFF, 0x80, 0x90, 0xD9, 0x08, 0x11, 0x22,
                                   0x33, 0x44, 0x03, 0x0D, 2,    7,    0xFF, 0xFF};

TEST(SmbiosBios, FillsTheBiosObject) {
  const auto snapshot =
      SnapshotOfStructures({WithStrings(kBiosStructure, {"Vorn", "2.7.1", "03/14/2024"})});
  EXPECT_EQ(Oids(snapshot->Children(2, 212)), std::vector<uint32_t>({kBios}));
  const std::byte* bios = BytesOf(*snapshot, kBios);
  EXPECT_EQ(U8(bios, 10), 2);
  EXPECT_EQ(Text(bios, 32), u"Vorn");
  EXPECT_EQ(Text(bios, 36), u"2.7.1");
  EXPECT_EQ(Text(bios, 40), u"03/14/2024");
  EXPECT_EQ(U64(bios, 48), 0x4433221108D99080U);
  EXPECT_EQ(U8(bios, 30), 0x03);
  EXPECT_EQ(U8(bios, 31), 0x0D);
}

TEST(SmbiosBios, ExtensionBytesAreThereAsFarAsTheRecordReaches) {
  const auto one =
      SnapshotOfStructures({WithStrings(Shortened(kBiosStructure, 0x13), {"V", "1", "d"})});
  EXPECT_EQ(U8(BytesOf(*one, kBios), 30), 0x03);
  EXPECT_EQ(U8(BytesOf(*one, kBios), 31), 0);
  const auto none =
      SnapshotOfStructures({WithStrings(Shortened(kBiosStructure, 0x12), {"V", "1", "d"})});
  EXPECT_EQ(U8(BytesOf(*none, kBios), 30), 0);
  EXPECT_EQ(U64(BytesOf(*none, kBios), 48), 0x4433221108D99080U);
  const auto old =
      SnapshotOfStructures({WithStrings(Shortened(kBiosStructure, 0x11), {"V", "1", "d"})});
  EXPECT_EQ(U64(BytesOf(*old, kBios), 48), 0U) << "a word that isn't whole is not there";
}

TEST(SmbiosBios, WithoutAReleaseDateHasNone) {
  const auto snapshot =
      SnapshotOfStructures({WithStrings(With(kBiosStructure, {{8, 0}}), {"Vorn", "2.7.1"})});
  EXPECT_EQ(U32(BytesOf(*snapshot, kBios), 40), 0U);
}

TEST(SmbiosBios, IsNotThereIfTheTableDoesNotTellOfIt) {
  const auto snapshot = SnapshotOfStructures({kSystemStructure});
  EXPECT_EQ(Oids(snapshot->Children(2, 212)), std::vector<uint32_t>());
}

/// Family B3h (Xeon), signature 06_55h stepping 7, 3600 and 2400 MHz, populated and enabled,
/// upgrade 33h, 12 cores of 16 enabled.
const ByteVector kProcessorStructure = {
    4,    0x30, 4,    0,    1,    3,    0xB3, 2, 0x57, 0x06, 0x05, 0x00,  // 00h
    0xFF, 0xFB, 0xEB, 0xBF, 3,    0x8C, 100,  0, 0x10, 0x0E, 0x60, 0x09,  // 0Ch
    0x41, 0x33, 0,    0,    0,    0,    0,    0, 4,    5,    6,    16,    // 18h
    12,   24,   0xFC, 0x00, 0xB3, 0x00, 16,   0, 12,   0,    24,   0,     // 24h
};

const std::initializer_list<std::string_view> kProcessorStrings = {
    "CPU1", "Quadrel", "Quadrel KS-4112 @ 2.40GHz", "S", "A", "P"};

TEST(SmbiosProcessor, FillsTheSocketAndTheProcessorInIt) {
  const auto snapshot = SnapshotOfStructures({WithStrings(kProcessorStructure, kProcessorStrings)});
  EXPECT_EQ(Oids(snapshot->Children(2, 196)), std::vector<uint32_t>({kSocket}));
  EXPECT_EQ(Oids(snapshot->Children(kSocket, 210)), std::vector<uint32_t>({kProcessor}));
  EXPECT_EQ(Oids(snapshot->Children(2, 210)), std::vector<uint32_t>({kProcessor}));
  EXPECT_EQ(Text(BytesOf(*snapshot, kSocket), 28), u"CPU1");
  const std::byte* processor = BytesOf(*snapshot, kProcessor);
  EXPECT_EQ(U8(processor, 10), 2);
  EXPECT_EQ(U32(processor, 20), 0xB3U) << "family";
  EXPECT_EQ(U32(processor, 24), 3600U) << "maximum speed";
  EXPECT_EQ(U32(processor, 28), 2400U) << "current speed";
  EXPECT_EQ(U32(processor, 40), 3U) << "enabled";
  EXPECT_EQ(U32(processor, 44), 0x33U) << "upgrade";
  EXPECT_EQ(U32(processor, 56), 16U) << "cores";
  EXPECT_EQ(U32(processor, 60), 12U) << "enabled cores";
  EXPECT_EQ(U16(processor, 70), 0x00FC) << "characteristics";
  EXPECT_EQ(Text(processor, 72), u"Quadrel KS-4112 @ 2.40GHz");
  EXPECT_EQ(Text(processor, 76), u"Family 6 Model 85");
  EXPECT_EQ(Text(processor, 80), u"7");
}

TEST(SmbiosProcessor, AnEmptySocketHasNoProcessor) {
  const auto snapshot = SnapshotOfStructures(
      {WithStrings(With(kProcessorStructure, {{0x18, 0x00}}), kProcessorStrings),
       WithStrings(kProcessorStructure, {"CPU2"})});
  EXPECT_EQ(Oids(snapshot->Children(2, 196)), std::vector<uint32_t>({kSocket, kSocket + 1}));
  EXPECT_EQ(Oids(snapshot->Children(kSocket, 210)), std::vector<uint32_t>());
  EXPECT_EQ(Oids(snapshot->Children(kSocket + 1, 210)), std::vector<uint32_t>({kProcessor + 1}));
  EXPECT_EQ(Oids(snapshot->Children(2, 210)), std::vector<uint32_t>({kProcessor + 1}));
  EXPECT_EQ(U8(BytesOf(*snapshot, kSocket), 10), 1) << "an empty socket is no fault";
}

TEST(SmbiosProcessor, EveryStateHasItsCodeAndStatus) {
  const struct {
    uint8_t bits;
    uint32_t code;
    uint8_t status;
  } cases[] = {
      {0, 2, 1},  // unknown
      {1, 3, 2},  // enabled: ok
      {2, 4, 0},  // disabled by the user: other
      {3, 5, 4},  // disabled by the firmware: critical
      {4, 6, 2},  // idle: ok
      {5, 2, 1},  // reserved: unknown
      {6, 2, 1},  // reserved: unknown
      {7, 1, 0},  // other
  };
  for (const auto& c : cases) {
    const auto snapshot = SnapshotOfStructures({WithStrings(
        With(kProcessorStructure, {{0x18, static_cast<uint8_t>(0x40 | c.bits)}}), {"CPU1"})});
    EXPECT_EQ(U32(BytesOf(*snapshot, kProcessor), 40), c.code) << int{c.bits};
    EXPECT_EQ(U8(BytesOf(*snapshot, kProcessor), 10), c.status) << int{c.bits};
    EXPECT_EQ(U8(BytesOf(*snapshot, kSocket), 10), c.status) << int{c.bits};
  }
}

TEST(SmbiosProcessor, FamilyAndCoreCountsAreSentToTheirSecondFields) {
  const auto snapshot = SnapshotOfStructures({WithStrings(With(kProcessorStructure, {{0x06, 0xFE},
                                                                                     {0x28, 0x01},
                                                                                     {0x29, 0x02},
                                                                                     {0x23, 0xFF},
                                                                                     {0x2A, 0x2C},
                                                                                     {0x2B, 0x01},
                                                                                     {0x24, 0xFF},
                                                                                     {0x2C, 0x00},
                                                                                     {0x2D, 0x01}}),
                                                          {"CPU1"})});
  const std::byte* processor = BytesOf(*snapshot, kProcessor);
  EXPECT_EQ(U32(processor, 20), 0x0201U);
  EXPECT_EQ(U32(processor, 56), 300U);
  EXPECT_EQ(U32(processor, 60), 256U);
}

TEST(SmbiosProcessor, ASecondFieldThatTheRecordLacksIsUnknown) {
  const auto snapshot = SnapshotOfStructures({WithStrings(
      Shortened(With(kProcessorStructure, {{0x06, 0xFE}, {0x23, 0xFF}, {0x24, 0xFF}}), 0x28),
      {"CPU1"})});
  const std::byte* processor = BytesOf(*snapshot, kProcessor);
  EXPECT_EQ(U32(processor, 20), 2U) << "unknown family";
  EXPECT_EQ(U32(processor, 56), 0U);
  EXPECT_EQ(U32(processor, 60), 0U);
}

TEST(SmbiosProcessor, AnOldRecordTellsOnlyWhatItHas) {
  const auto snapshot = SnapshotOfStructures(
      {WithStrings(Shortened(kProcessorStructure, 0x1A), {"CPU1", "Q", "KS"})});
  const std::byte* processor = BytesOf(*snapshot, kProcessor);
  EXPECT_EQ(U32(processor, 44), 0x33U);
  EXPECT_EQ(U32(processor, 56), 0U);
  EXPECT_EQ(U16(processor, 70), 0);
  EXPECT_EQ(Text(processor, 72), u"KS");
}

TEST(SmbiosProcessor, ARecordThatEndsBeforeItsStatusIsAnEmptySocket) {
  const auto snapshot =
      SnapshotOfStructures({WithStrings(Shortened(kProcessorStructure, 0x18), {"CPU1"})});
  EXPECT_EQ(Oids(snapshot->Children(2, 196)), std::vector<uint32_t>({kSocket}));
  EXPECT_EQ(Oids(snapshot->Children(2, 210)), std::vector<uint32_t>());
}

TEST(SmbiosProcessor, TheSignatureIsReadAsItsFamilyDefinesIt) {
  const auto modelOf = [](uint8_t family, uint32_t signature) {
    const auto snapshot = SnapshotOfStructures(
        {WithStrings(With(kProcessorStructure, {{0x06, family},
                                                {0x08, static_cast<uint8_t>(signature)},
                                                {0x09, static_cast<uint8_t>(signature >> 8)},
                                                {0x0A, static_cast<uint8_t>(signature >> 16)},
                                                {0x0B, static_cast<uint8_t>(signature >> 24)}}),
                     {"CPU1"})});
    return Text(BytesOf(*snapshot, kProcessor), 76);
  };
  EXPECT_EQ(modelOf(0xB3, 0x000206C2), u"Family 6 Model 44");
  EXPECT_EQ(modelOf(0x84, 0x00100F91), u"Family 16 Model 9");
  EXPECT_EQ(modelOf(0x6B, 0x00800F82), u"Family 23 Model 8");
  EXPECT_EQ(modelOf(0x0B, 0x0000052C), u"Family 5 Model 2");
  EXPECT_EQ(modelOf(0xB3, 0), u"") << "no identification";
  EXPECT_EQ(modelOf(0x02, 0x000206C2), u"") << "an unknown family defines nothing";
  for (const uint8_t family : ByteVector{0x1E, 0x20, 0x30, 0x45, 0x60, 0x69, 0x82, 0xB4, 0xB8}) {
    EXPECT_EQ(modelOf(family, 0x000206C2), u"") << int{family} << " is no x86 family";
  }
}

/// 72 and 64 bits wide, 16 GB, DIMM, DDR4, 2933 MT/s, rank 2.
const ByteVector kMemoryStructure = {
    17,   0x5C, 17,   0,    0x10, 0, 0xFE, 0xFF, 72, 0,    64,   0,  // 00h
    0x00, 0x40, 9,    0,    1,    2, 26,   0x80, 0,  0x75, 0x0B, 3,  // 0Ch
    4,    5,    6,    2,    0,    0, 0,    0,    0,  0,    0,    0,  // 18h
    0,    0,    0,    0,    0,    0, 0,    0,    0,  0,    0,    0,  // 24h
    0,    0,    0,    0,    0,    0, 0,    0,    0,  0,    0,    0,  // 30h
    0,    0,    0,    0,    0,    0, 0,    0,    0,  0,    0,    0,  // 3Ch
    0,    0,    0,    0,    0,    0, 0,    0,    0,  0,    0,    0,  // 48h
    0x40, 0x1F, 0x01, 0x80, 0,    0, 0,    0,                        // 54h
};

const std::initializer_list<std::string_view> kMemoryStrings = {"DIMM_A1",  "Bank A", "Lanemark",
                                                                "4D7A31C0", "T",      "P"};

TEST(SmbiosMemory, FillsTheMemoryDevice) {
  const auto snapshot = SnapshotOfStructures({WithStrings(kMemoryStructure, kMemoryStrings)});
  EXPECT_EQ(Oids(snapshot->Children(2, 225)), std::vector<uint32_t>({kMemory}));
  const std::byte* memory = BytesOf(*snapshot, kMemory);
  EXPECT_EQ(U8(memory, 10), 2);
  EXPECT_EQ(U32(memory, 16), 72U) << "total width";
  EXPECT_EQ(U32(memory, 20), 64U) << "data width";
  EXPECT_EQ(U32(memory, 24), 16777216U) << "KB";
  EXPECT_EQ(U32(memory, 112), 0U) << "extended size";
  EXPECT_EQ(U32(memory, 28), 9U) << "form factor";
  EXPECT_EQ(U32(memory, 36), 26U) << "type";
  EXPECT_EQ(U32(memory, 44), 2933U) << "speed";
  EXPECT_EQ(Text(memory, 96), u"2933 MT/s");
  EXPECT_EQ(Text(memory, 68), u"DIMM_A1");
  EXPECT_EQ(Text(memory, 72), u"Bank A");
  EXPECT_EQ(Text(memory, 80), u"Lanemark");
  EXPECT_EQ(Text(memory, 84), u"4D7A31C0");
  EXPECT_EQ(U32(memory, 108), 2U) << "rank";
}

TEST(SmbiosMemory, AnEmptySocketIsNoDeviceAndKeepsItsPlaceInTheNumbering) {
  const auto snapshot = SnapshotOfStructures(
      {WithStrings(With(kMemoryStructure, {{0x0C, 0}, {0x0D, 0}}), kMemoryStrings),
       WithStrings(kMemoryStructure, kMemoryStrings)});
  EXPECT_EQ(Oids(snapshot->Children(2, 225)), std::vector<uint32_t>({kMemory + 1}));
}

TEST(SmbiosMemory, SizesComeInMegabytesKilobytesAndTheExtendedField) {
  struct Sizes {
    uint32_t kb;
    uint32_t extendedMb;
    bool operator==(const Sizes&) const = default;
  };
  const auto sizesOf = [](uint16_t size, uint32_t extended, uint8_t length = 0x5C) {
    const auto snapshot = SnapshotOfStructures({WithStrings(
        Shortened(With(kMemoryStructure, {{0x0C, static_cast<uint8_t>(size)},
                                          {0x0D, static_cast<uint8_t>(size >> 8)},
                                          {0x1C, static_cast<uint8_t>(extended)},
                                          {0x1D, static_cast<uint8_t>(extended >> 8)},
                                          {0x1E, static_cast<uint8_t>(extended >> 16)},
                                          {0x1F, static_cast<uint8_t>(extended >> 24)}}),
                  length),
        kMemoryStrings)});
    const std::byte* memory = BytesOf(*snapshot, kMemory);
    return Sizes{U32(memory, 24), U32(memory, 112)};
  };
  EXPECT_EQ(sizesOf(1, 0), (Sizes{1024, 0}));
  EXPECT_EQ(sizesOf(0x7FFE, 0), (Sizes{33552384, 0})) << "the largest in megabytes";
  EXPECT_EQ(sizesOf(0x8200, 0), (Sizes{512, 0})) << "granularity bit: kilobytes";
  EXPECT_EQ(sizesOf(0xFFFE, 0), (Sizes{32766, 0}));
  EXPECT_EQ(sizesOf(0x7FFF, 32768), (Sizes{0, 32768})) << "32 GB";
  EXPECT_EQ(sizesOf(0x7FFF, 0x80010000), (Sizes{0, 65536})) << "the top bit is reserved";
  EXPECT_EQ(sizesOf(0x7FFF, 32768, 0x1C), (Sizes{0, 0})) << "sent to a field it lacks";
  EXPECT_EQ(sizesOf(0xFFFF, 32768), (Sizes{0, 0})) << "unknown";
  EXPECT_EQ(sizesOf(0x4000, 32768), (Sizes{16777216, 0})) << "not sent there";
}

TEST(SmbiosMemory, WhatIsUnknownStaysUnset) {
  const auto snapshot = SnapshotOfStructures({WithStrings(With(kMemoryStructure, {{0x08, 0xFF},
                                                                                  {0x09, 0xFF},
                                                                                  {0x0A, 0xFF},
                                                                                  {0x0B, 0xFF},
                                                                                  {0x15, 0},
                                                                                  {0x16, 0},
                                                                                  {0x1B, 0xF0}}),
                                                          {})});
  const std::byte* memory = BytesOf(*snapshot, kMemory);
  EXPECT_EQ(U32(memory, 16), 0U);
  EXPECT_EQ(U32(memory, 20), 0U);
  EXPECT_EQ(U32(memory, 44), 0U);
  EXPECT_EQ(Text(memory, 96), u"");
  EXPECT_EQ(Text(memory, 80), u"");
  EXPECT_EQ(U32(memory, 108), 0U) << "the upper bits of the attributes are no rank";
}

TEST(SmbiosMemory, ASpeedPastTheWordIsInTheExtendedField) {
  const auto speedOf = [](uint8_t length) {
    const auto snapshot = SnapshotOfStructures(
        {WithStrings(Shortened(With(kMemoryStructure, {{0x15, 0xFF}, {0x16, 0xFF}}), length), {})});
    return U32(BytesOf(*snapshot, kMemory), 44);
  };
  EXPECT_EQ(speedOf(0x5C), 73536U);
  EXPECT_EQ(speedOf(0x58), 73536U);
  EXPECT_EQ(speedOf(0x57), 0U);
}

TEST(SmbiosMemory, AnOldRecordTellsOnlyWhatItHas) {
  const auto snapshot =
      SnapshotOfStructures({WithStrings(Shortened(kMemoryStructure, 0x15), {"DIMM 1", "B"})});
  const std::byte* memory = BytesOf(*snapshot, kMemory);
  EXPECT_EQ(U32(memory, 24), 16777216U);
  EXPECT_EQ(U32(memory, 36), 26U);
  EXPECT_EQ(U32(memory, 44), 0U);
  EXPECT_EQ(Text(memory, 68), u"DIMM 1");
  EXPECT_EQ(Text(memory, 84), u"");
  const auto none = SnapshotOfStructures({WithStrings(Shortened(kMemoryStructure, 0x0D), {})});
  EXPECT_EQ(Oids(none->Children(2, 225)), std::vector<uint32_t>()) << "no size at all";
}

TEST(SmbiosSource, RecordsOfTheBareHeaderTellNothingAndBreakNothing) {
  const auto snapshot = SnapshotOfStructures(
      {WithStrings({0, 4, 0, 0}, {}), WithStrings({1, 4, 1, 0}, {}), WithStrings({2, 4, 6, 0}, {}),
       WithStrings({3, 4, 2, 0}, {}), WithStrings({4, 4, 3, 0}, {}), WithStrings({8, 4, 7, 0}, {}),
       WithStrings({9, 4, 8, 0}, {}), WithStrings({17, 4, 4, 0}, {}),
       WithStrings({21, 4, 9, 0}, {}), WithStrings({39, 4, 10, 0}, {}),
       WithStrings({126, 4, 5, 0}, {})});
  EXPECT_EQ(snapshot->Objects().size(), 9U)
      << "system, chassis and its two, bios, a board, a socket, a slot, a pointing device";
}

TEST(SmbiosSource, TheFirstBiosSystemAndEnclosureOfSeveralCount) {
  const auto snapshot = SnapshotOfStructures(
      {WithStrings(kBiosStructure, {"Vorn", "2.7.1", "03/14/2024"}), kSystemStructure,
       WithStrings(kEnclosure, {"Vorn", "rev 2", "SN1", "TAG1"}),
       WithStrings(kBiosStructure, {"Vorn", "1.0.0", "01/02/2020"}),
       WithStrings({1, 8, 2, 0, 1, 2, 3, 4}, {"Vorn", "Tessera 1100", "A2", "VR8"}),
       WithStrings(kEnclosure, {"Vorn", "rev 3", "SN2", "TAG2"})});
  EXPECT_EQ(Oids(snapshot->Children(2, 212)), std::vector<uint32_t>({kBios}));
  EXPECT_EQ(Text(BytesOf(*snapshot, kBios), 36), u"2.7.1");
  EXPECT_EQ(Text(BytesOf(*snapshot, kDescription), 40), u"Tessera 2200");
  EXPECT_EQ(Text(BytesOf(*snapshot, kDescription), 48), u"rev 2");
  EXPECT_EQ(Oids(snapshot->Children(1, 17)), std::vector<uint32_t>({2}));
  EXPECT_EQ(Text(BytesOf(*snapshot, kIdentity), 32), u"SN1");
}

TEST(SmbiosSource, StructuresAreNumberedByTypeWhateverStandsBetween) {
  const ByteVector board = WithStrings({2, 8, 1, 0, 0, 0, 0, 0}, {});
  const ByteVector slot = WithStrings({9, 5, 2, 0, 0}, {});
  const ByteVector vendors = WithStrings({200, 4, 3, 0}, {});
  const auto snapshot =
      SnapshotOfStructures({vendors, slot, board, WithStrings(kMemoryStructure, kMemoryStrings),
                            slot, vendors, board, WithStrings({21, 4, 4, 0}, {})});
  EXPECT_EQ(Oids(snapshot->Children(2, 228)),
            std::vector<uint32_t>({228 * 65536 + 1, 228 * 65536 + 2}));
  EXPECT_EQ(Oids(snapshot->Children(2, 259)),
            std::vector<uint32_t>({259 * 65536 + 1, 259 * 65536 + 2}));
  EXPECT_EQ(Oids(snapshot->Children(2, 225)), std::vector<uint32_t>({kMemory}));
  EXPECT_EQ(Oids(snapshot->Children(2, 208)), std::vector<uint32_t>({208 * 65536 + 1}));
}

TEST(SmbiosSource, HandlesThatRepeatAreNoMatter) {
  const auto snapshot = SnapshotOfStructures({WithStrings(kMemoryStructure, kMemoryStrings),
                                              WithStrings(kMemoryStructure, kMemoryStrings)});
  EXPECT_EQ(Oids(snapshot->Children(2, 225)), std::vector<uint32_t>({kMemory, kMemory + 1}));
}

}  // namespace
}  // namespace tqcim::store::smbios
