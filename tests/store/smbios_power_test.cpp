#include <gtest/gtest.h>

#include "tests/store/raw_bytes.h"
#include "tests/store/smbios_bytes.h"
#include "tests/store/smbios_snapshot.h"

namespace tqcim::testing {
namespace {

constexpr uint32_t kSupply = 21 * 65536 + 1;

/// 750 W; switching, OK, auto-switching, plugged, present, hot-replaceable.
const ByteVector kSupplyStructure = {39,   0x16, 39,   0,    1,    1,    2,    3,
                                     4,    5,    6,    7,    0xEE, 0x02, 0xA3, 0x11,
                                     0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};

const std::initializer_list<std::string_view> kSupplyStrings = {
    "Left Supply Bay", "DR-36", "Vorn", "SN1", "TAG1", "P1", "R1"};

/// The snapshot of one supply with these characteristics.
std::unique_ptr<store::Snapshot> SupplyOf(uint16_t characteristics) {
  return SnapshotOfStructures(
      {WithStrings(With(kSupplyStructure, {{0x0E, static_cast<uint8_t>(characteristics)},
                                           {0x0F, static_cast<uint8_t>(characteristics >> 8)}}),
                   kSupplyStrings)});
}

TEST(SmbiosPowerSupply, FillsThePowerSupply) {
  const auto snapshot = SnapshotOfStructures({WithStrings(kSupplyStructure, kSupplyStrings)});
  EXPECT_EQ(Oids(snapshot->Children(2, 21)), std::vector<uint32_t>({kSupply}));
  const std::byte* supply = BytesOf(*snapshot, kSupply);
  EXPECT_EQ(U8(supply, 10), 2);
  EXPECT_EQ(U16(supply, 16), 750) << "watts that it can give";
  EXPECT_EQ(U32(supply, 20), 0U) << "the standard doesn't tell what it takes";
  EXPECT_EQ(U16(supply, 38), 1) << "present";
  EXPECT_EQ(U8(supply, 40), 9) << "switching";
  EXPECT_EQ(U8(supply, 41), 0);
  EXPECT_EQ(U16(supply, 42), 0) << "power management isn't told";
  EXPECT_EQ(Text(supply, 44), u"DR-36");
}

TEST(SmbiosPowerSupply, EveryStatusIsAnObjectStatus) {
  const struct {
    uint16_t bits;
    uint8_t status;
    uint16_t state;
  } cases[] = {
      {0, 1, 1},  // not in use: unknown
      {1, 0, 1},  // other
      {2, 1, 1},  // unknown
      {3, 2, 1},  // OK
      {4, 3, 1},  // non-critical
      {5, 4, 2},  // critical: failed and taken off-line
      {6, 1, 1},  // not in use: unknown
      {7, 1, 1},  // not in use: unknown
  };
  for (const auto& c : cases) {
    const auto snapshot = SupplyOf(static_cast<uint16_t>(0x1022 | c.bits << 7));
    EXPECT_EQ(U8(BytesOf(*snapshot, kSupply), 10), c.status) << c.bits;
    EXPECT_EQ(U16(BytesOf(*snapshot, kSupply), 38), c.state) << c.bits;
  }
}

TEST(SmbiosPowerSupply, TwoTypesAreKindsOfTheStore) {
  // By bits 13:10: 4 switching, 8 regulator. The others (linear, battery, UPS, ...) have no code.
  const uint8_t kinds[16] = {0, 0, 0, 0, 9, 0, 0, 0, 11, 0, 0, 0, 0, 0, 0, 0};
  for (uint16_t type = 0; type < 16; ++type) {
    const auto snapshot = SupplyOf(static_cast<uint16_t>(0x0182 | type << 10));
    EXPECT_EQ(U8(BytesOf(*snapshot, kSupply), 40), kinds[type]) << type;
    EXPECT_EQ(U8(BytesOf(*snapshot, kSupply), 10), 2) << type;
  }
}

TEST(SmbiosPowerSupply, UnpluggedHasLostItsAc) {
  const auto unplugged = SupplyOf(0x11A6);
  EXPECT_EQ(U16(BytesOf(*unplugged, kSupply), 38), 8);
  EXPECT_EQ(U8(BytesOf(*unplugged, kSupply), 10), 2) << "the status is what the firmware tells";
  const auto failed = SupplyOf(0x12A6);
  EXPECT_EQ(U16(BytesOf(*failed, kSupply), 38), 2) << "a failure is worse";
}

TEST(SmbiosPowerSupply, OtherCharacteristicsMakeNoDifference) {
  // Without hot replacing, every range switching, the reserved bits.
  for (const uint16_t characteristics :
       std::initializer_list<uint16_t>{0x1182, 0x118A, 0x1192, 0x119A, 0x11B3, 0x11FA, 0xD1A3}) {
    const auto snapshot = SupplyOf(characteristics);
    const std::byte* supply = BytesOf(*snapshot, kSupply);
    EXPECT_EQ(U8(supply, 10), 2) << characteristics;
    EXPECT_EQ(U16(supply, 38), 1) << characteristics;
    EXPECT_EQ(U8(supply, 40), 9) << characteristics;
  }
}

TEST(SmbiosPowerSupply, AnEmptyBayIsNoneAndKeepsItsPlaceInTheNumbering) {
  const auto snapshot =
      SnapshotOfStructures({WithStrings(With(kSupplyStructure, {{0x0E, 0xA1}}), kSupplyStrings),
                            WithStrings(kSupplyStructure, kSupplyStrings)});
  EXPECT_EQ(Oids(snapshot->Children(2, 21)), std::vector<uint32_t>({kSupply + 1}));
}

TEST(SmbiosPowerSupply, ACapacityThatIsUnknownStaysUnset) {
  const auto powerOf = [](uint8_t low, uint8_t high) {
    const auto snapshot = SnapshotOfStructures(
        {WithStrings(With(kSupplyStructure, {{0x0C, low}, {0x0D, high}}), kSupplyStrings)});
    return U16(BytesOf(*snapshot, kSupply), 16);
  };
  EXPECT_EQ(powerOf(0x00, 0x80), 0);
  EXPECT_EQ(powerOf(0x00, 0x00), 0);
  EXPECT_EQ(powerOf(0xFF, 0x7F), 32767);
  EXPECT_EQ(powerOf(0xCC, 0x01), 460);
}

TEST(SmbiosPowerSupply, IsNamedByItsLocationWhereItHasNoName) {
  const auto nameOf = [](uint8_t location, uint8_t name) {
    const auto snapshot = SnapshotOfStructures({WithStrings(
        With(kSupplyStructure, {{0x05, location}, {0x06, name}}), {"Left Supply Bay", "DR-36"})});
    return Text(BytesOf(*snapshot, kSupply), 44);
  };
  EXPECT_EQ(nameOf(1, 2), u"DR-36");
  EXPECT_EQ(nameOf(1, 0), u"Left Supply Bay");
  EXPECT_EQ(nameOf(1, 3), u"Left Supply Bay") << "a string past the set";
  EXPECT_EQ(nameOf(0, 2), u"DR-36");
  EXPECT_EQ(nameOf(0, 0), u"");
}

TEST(SmbiosPowerSupply, ARecordThatEndsBeforeItsCharacteristicsIsNone) {
  const auto of = [](uint8_t length) {
    const auto snapshot =
        SnapshotOfStructures({WithStrings(Shortened(kSupplyStructure, length), kSupplyStrings)});
    return Oids(snapshot->Children(2, 21));
  };
  EXPECT_EQ(of(0x10), std::vector<uint32_t>({kSupply})) << "without the handles of its probes";
  EXPECT_EQ(of(0x0F), std::vector<uint32_t>());
  EXPECT_EQ(of(0x0E), std::vector<uint32_t>());
  EXPECT_EQ(of(0x05), std::vector<uint32_t>());
}

}  // namespace
}  // namespace tqcim::testing
