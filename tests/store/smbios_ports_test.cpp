#include <gtest/gtest.h>

#include "tests/store/raw_bytes.h"
#include "tests/store/smbios_bytes.h"
#include "tests/store/smbios_snapshot.h"

namespace tqcim::testing {
namespace {

constexpr uint32_t kParallelPort = 192 * 65536 + 1;
constexpr uint32_t kSerialPort = 193 * 65536 + 1;
constexpr uint32_t kPointingDevice = 208 * 65536 + 1;
constexpr uint32_t kSlot = 228 * 65536 + 1;

/// A connector of the port type: "J101" inside, none; "COM A" outside, DB-9 male.
ByteVector Connector(uint8_t portType) {
  return WithStrings({8, 9, 8, 0, 1, 0, 2, 8, portType}, {"J101", "COM A"});
}

TEST(SmbiosPort, OfASerialTypeIsASerialPort) {
  for (const uint8_t type : ByteVector{0x06, 0x07, 0x08, 0x09}) {
    const auto snapshot = SnapshotOfStructures({Connector(type)});
    EXPECT_EQ(Oids(snapshot->Children(2, 193)), std::vector<uint32_t>({kSerialPort}));
    EXPECT_EQ(Oids(snapshot->Children(2, 192)), std::vector<uint32_t>());
    const std::byte* port = BytesOf(*snapshot, kSerialPort);
    EXPECT_EQ(U8(port, 10), 1) << "how a port fares isn't told";
    EXPECT_EQ(Text(port, 40), u"COM A");
    EXPECT_EQ(U32(port, 32), 0U) << "no baud rate in the standard";
  }
}

TEST(SmbiosPort, OfAParallelTypeIsAParallelPort) {
  for (const uint8_t type : ByteVector{0x01, 0x02, 0x03, 0x04, 0x05}) {
    const auto snapshot = SnapshotOfStructures({Connector(type)});
    EXPECT_EQ(Oids(snapshot->Children(2, 192)), std::vector<uint32_t>({kParallelPort}));
    EXPECT_EQ(Oids(snapshot->Children(2, 193)), std::vector<uint32_t>());
    const std::byte* port = BytesOf(*snapshot, kParallelPort);
    EXPECT_EQ(U8(port, 10), 1);
    EXPECT_EQ(Text(port, 44), u"COM A");
    EXPECT_EQ(U32(port, 40), 0U) << "no security in the standard";
  }
}

TEST(SmbiosPort, OfAnyOtherTypeIsNoObject) {
  for (int type = 0; type < 256; ++type) {
    if (1 <= type && type <= 9) continue;
    const auto snapshot = SnapshotOfStructures({Connector(static_cast<uint8_t>(type))});
    EXPECT_EQ(snapshot->Objects().size(), 4U) << type << " adds to the chassis";
  }
}

TEST(SmbiosPort, IsNumberedAmongAllConnectors) {
  const auto snapshot = SnapshotOfStructures(
      {Connector(0x10), Connector(0x09), Connector(0x05), Connector(0x1F), Connector(0x06)});
  EXPECT_EQ(Oids(snapshot->Children(2, 193)),
            std::vector<uint32_t>({kSerialPort + 1, kSerialPort + 4}));
  EXPECT_EQ(Oids(snapshot->Children(2, 192)), std::vector<uint32_t>({kParallelPort + 2}));
}

TEST(SmbiosPort, HasItsNameFromOutsideElseFromInside) {
  const auto nameOf = [](uint8_t inside, uint8_t outside) {
    const auto snapshot = SnapshotOfStructures(
        {WithStrings({8, 9, 8, 0, inside, 9, outside, 8, 0x09}, {"J101", "COM A", " "})});
    return Text(BytesOf(*snapshot, kSerialPort), 40);
  };
  EXPECT_EQ(nameOf(1, 2), u"COM A");
  EXPECT_EQ(nameOf(1, 0), u"J101");
  EXPECT_EQ(nameOf(1, 3), u"J101") << "blanks outside";
  EXPECT_EQ(nameOf(1, 4), u"J101") << "a string past the set";
  EXPECT_EQ(nameOf(0, 2), u"COM A");
  EXPECT_EQ(nameOf(0, 0), u"");
  EXPECT_EQ(nameOf(4, 255), u"");
}

TEST(SmbiosPort, ARecordThatEndsBeforeThePortTypeIsNoObject) {
  const auto snapshot =
      SnapshotOfStructures({WithStrings({8, 8, 8, 0, 1, 0, 2, 8}, {"J101", "COM A"})});
  EXPECT_EQ(snapshot->Objects().size(), 4U);
}

/// PCI Express Gen 3 x8, 8 lanes, in use, long, number 513, 3.3 V, PME and hot-plug, 0000:19:00.0.
const ByteVector kSlotStructure = {9,    0x11, 9,    0,    1, 0xB5, 0x0B, 4,   4,
                                   0x01, 0x02, 0x04, 0x03, 0, 0,    0x19, 0x00};

TEST(SmbiosSlot, FillsTheSlotObject) {
  const auto snapshot = SnapshotOfStructures({WithStrings(kSlotStructure, {"PCIe Slot 1"})});
  EXPECT_EQ(Oids(snapshot->Children(2, 228)), std::vector<uint32_t>({kSlot}));
  const std::byte* slot = BytesOf(*snapshot, kSlot);
  EXPECT_EQ(U8(slot, 10), 1) << "how a slot fares isn't told";
  EXPECT_EQ(U32(slot, 16), 0xB5U) << "type";
  EXPECT_EQ(U32(slot, 28), 513U) << "number";
  EXPECT_EQ(U16(slot, 48), 1) << "hot-plug";
  EXPECT_EQ(Text(slot, 80), u"PCIe Slot 1");
}

TEST(SmbiosSlot, IsOneWhetherACardIsInItOrNot) {
  // Other, unknown, available, in use, unavailable.
  for (const uint8_t usage : ByteVector{1, 2, 3, 4, 5}) {
    const auto snapshot =
        SnapshotOfStructures({WithStrings(With(kSlotStructure, {{0x07, usage}}), {"S"})});
    EXPECT_EQ(Oids(snapshot->Children(2, 228)), std::vector<uint32_t>({kSlot})) << int{usage};
  }
}

TEST(SmbiosSlot, EveryTypeKeepsItsCode) {
  for (int type = 0; type < 256; ++type) {
    const auto snapshot = SnapshotOfStructures(
        {WithStrings(With(kSlotStructure, {{0x05, static_cast<uint8_t>(type)}}), {"S"})});
    EXPECT_EQ(U32(BytesOf(*snapshot, kSlot), 16), static_cast<uint32_t>(type));
    EXPECT_EQ(U32(BytesOf(*snapshot, kSlot), 28), type == 7 ? 0U : 513U)
        << type << ": a PC Card slot has an adapter and a socket in place of a number";
  }
}

TEST(SmbiosSlot, HotPlugIsOneBitOfTheSecondCharacteristics) {
  const auto hotPlugOf = [](uint8_t first, uint8_t second) {
    const auto snapshot = SnapshotOfStructures(
        {WithStrings(With(kSlotStructure, {{0x0B, first}, {0x0C, second}}), {"S"})});
    return U16(BytesOf(*snapshot, kSlot), 48);
  };
  EXPECT_EQ(hotPlugOf(0x00, 0x02), 1);
  EXPECT_EQ(hotPlugOf(0x00, 0xFF), 1);
  EXPECT_EQ(hotPlugOf(0xFF, 0xFD), 0);
  EXPECT_EQ(hotPlugOf(0x00, 0x00), 0);
}

TEST(SmbiosSlot, WithoutAStringHasNoName) {
  EXPECT_EQ(U32(BytesOf(*SnapshotOfStructures({WithStrings(kSlotStructure, {})}), kSlot), 80), 0U)
      << "sent to a string, of which there are none";
  EXPECT_EQ(
      U32(BytesOf(*SnapshotOfStructures({WithStrings(With(kSlotStructure, {{4, 0}}), {})}), kSlot),
          80),
      0U);
  EXPECT_EQ(U32(BytesOf(*SnapshotOfStructures({WithStrings(With(kSlotStructure, {{4, 2}}), {"S"})}),
                        kSlot),
                80),
            0U);
}

TEST(SmbiosSlot, AnOldRecordTellsOnlyWhatItHas) {
  const auto of = [](uint8_t length) {
    return SnapshotOfStructures({WithStrings(Shortened(kSlotStructure, length), {"S1"})});
  };
  const auto withNumber = of(0x0C);
  EXPECT_EQ(U32(BytesOf(*withNumber, kSlot), 28), 513U);
  EXPECT_EQ(U16(BytesOf(*withNumber, kSlot), 48), 0) << "hot-plug";
  EXPECT_EQ(U16(BytesOf(*of(0x0D), kSlot), 48), 1) << "hot-plug";
  const auto halfANumber = of(0x0A);
  EXPECT_EQ(U32(BytesOf(*halfANumber, kSlot), 28), 0U);
  EXPECT_EQ(U32(BytesOf(*halfANumber, kSlot), 16), 0xB5U);
  const auto named = of(0x05);
  EXPECT_EQ(U32(BytesOf(*named, kSlot), 16), 2U) << "unknown type";
  EXPECT_EQ(Text(BytesOf(*named, kSlot), 80), u"S1");
}

TEST(SmbiosPointingDevice, IsOneForEveryStructure) {
  // A track point and a touch pad, PS/2, with 3 and 2 buttons; and a record of its header alone.
  const auto snapshot = SnapshotOfStructures({WithStrings({21, 7, 21, 0, 5, 4, 3}, {}),
                                              WithStrings({21, 7, 22, 0, 7, 4, 2}, {}),
                                              WithStrings({21, 4, 23, 0}, {})});
  EXPECT_EQ(Oids(snapshot->Children(2, 208)),
            std::vector<uint32_t>({kPointingDevice, kPointingDevice + 1, kPointingDevice + 2}));
  EXPECT_EQ(U8(BytesOf(*snapshot, kPointingDevice), 10), 1) << "how it fares isn't told";
}

}  // namespace
}  // namespace tqcim::testing
