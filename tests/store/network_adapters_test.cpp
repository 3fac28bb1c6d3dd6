#include "store/network_adapters.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>

#include "platform/layouts/chassis.h"
#include "platform/layouts/system.h"
#include "platform/libraries.h"
#include "store/files.h"
#include "store/firmware_table.h"
#include "store/store_control.h"
#include "store/store_file.h"
#include "tests/store/raw_bytes.h"
#include "tests/store/smbios_bytes.h"
#include "tests/support/temporary_folder.h"

namespace tqcim::store {
namespace {

using testing::BytesOf;
using testing::Oids;
using testing::Text;
using testing::U16;
using testing::U32;
using testing::U8;

constexpr uint32_t kFirst = 96 * 65536 + 1;

std::unique_ptr<Snapshot> MachineWith(std::vector<NetworkAdapter> adapters) {
  SnapshotBuilder builder;
  AddNetworkAdapters(std::move(adapters), builder);
  builder.Add(1, layout::system::kLayout, Status::kOk, {});
  builder.Add(2, layout::chassis::kLayout, Status::kOk, {1});
  return builder.Build();
}

NetworkAdapter Named(std::string name) {
  NetworkAdapter adapter;
  adapter.name = std::move(name);
  return adapter;
}

NetworkAdapter WholeAdapter() {
  NetworkAdapter adapter = Named("eth0");
  adapter.pci = PciLocation{0x3B, 0x1F, 7};
  adapter.link = LinkState::kUp;
  adapter.description = "Quadrel QN-210 #1";
  adapter.vendor = "Quadrel";
  adapter.productName = "QN-210";
  adapter.driver = "qn210";
  adapter.driverVersion = "12.18.9";
  adapter.currentMac = {0x00, 0x00, 0x5E, 0x00, 0x53, 0xAF};
  adapter.permanentMac = {0x00, 0x00, 0x5E, 0x00, 0x53, 0x10};
  adapter.ipv4 = {"192.0.2.22", "255.255.255.0", "192.0.2.1", "192.0.2.2"};
  adapter.ipv6 = {"2001:db8::22", "ffff:ffff:ffff:ffff::", "fe80::1", "fe80::2"};
  return adapter;
}

/// The offsets of the texts of an adapter.
constexpr size_t kTexts[] = {172, 176, 180, 192, 200, 208, 212, 216, 220, 224, 228};

TEST(NetworkAdapters, FillTheirObjects) {
  const auto machine = MachineWith({WholeAdapter()});
  ASSERT_EQ(Oids(machine->Children(2, 96)), std::vector<uint32_t>({kFirst}));
  const std::byte* adapter = BytesOf(*machine, kFirst);
  EXPECT_EQ(U16(adapter, 8), 96);
  EXPECT_EQ(U8(adapter, 10), 2) << "ok";
  EXPECT_EQ(U8(adapter, 16), 0x3B);
  EXPECT_EQ(U8(adapter, 17), 0x1F);
  EXPECT_EQ(U8(adapter, 18), 7);
  EXPECT_EQ(U32(adapter, 24), 1U) << "up";
  EXPECT_EQ(Text(adapter, 172), u"Quadrel QN-210 #1");
  EXPECT_EQ(Text(adapter, 176), u"Quadrel");
  EXPECT_EQ(Text(adapter, 180), u"QN-210");
  EXPECT_EQ(Text(adapter, 192), u"12.18.9");
  EXPECT_EQ(Text(adapter, 200), u"qn210");
  EXPECT_EQ(Text(adapter, 208), u"00:00:5E:00:53:AF");
  EXPECT_EQ(Text(adapter, 212), u"00:00:5E:00:53:10");
  EXPECT_EQ(Text(adapter, 216), u"192.0.2.22");
  EXPECT_EQ(Text(adapter, 220), u"255.255.255.0");
  EXPECT_EQ(Text(adapter, 224), u"192.0.2.2");
  EXPECT_EQ(Text(adapter, 228), u"192.0.2.1");
}

TEST(NetworkAdapters, WhatIsNotToldIsNotThere) {
  const auto machine = MachineWith({Named("eth0")});
  const std::byte* adapter = BytesOf(*machine, kFirst);
  EXPECT_EQ(U8(adapter, 10), 1) << "unknown";
  EXPECT_EQ(U8(adapter, 16), 0);
  EXPECT_EQ(U32(adapter, 24), 0U);
  // No system tells of offloads in the codes of these fields, nor of partitions.
  for (size_t offset = 140; offset < 166; offset += 2) EXPECT_EQ(U16(adapter, offset), 0) << offset;
  for (const size_t offset : kTexts) EXPECT_EQ(U32(adapter, offset), 0U) << offset;
}

TEST(NetworkAdapters, AMachineMayHaveNone) {
  EXPECT_EQ(Oids(MachineWith({})->Children(2, 96)), std::vector<uint32_t>());
}

TEST(NetworkAdapters, AreOrderedByThePlaceOnTheBusAndThenByName) {
  std::vector<NetworkAdapter> adapters;
  const std::pair<const char*, std::optional<PciLocation>> places[] = {
      {"usb1", std::nullopt},      {"e", PciLocation{59, 0, 1}}, {"d", PciLocation{59, 0, 0}},
      {"usb0", std::nullopt},      {"f", PciLocation{60, 0, 0}}, {"b", PciLocation{2, 0, 0}},
      {"c", PciLocation{2, 0, 0}}, {"a", PciLocation{0, 0, 0}},  {"g", PciLocation{60, 1, 0}},
  };
  for (const auto& [name, pci] : places) {
    adapters.push_back(Named(name));
    adapters.back().description = name;
    adapters.back().pci = pci;
  }
  const auto machine = MachineWith(adapters);
  std::vector<std::u16string> names;
  uint32_t position = 0;
  for (const uint32_t oid : Oids(machine->Children(2, 96))) {
    EXPECT_EQ(oid, kFirst + position++);
    names.push_back(Text(BytesOf(*machine, oid), 172));
  }
  EXPECT_EQ(names, (std::vector<std::u16string>{u"a", u"b", u"c", u"d", u"e", u"f", u"g", u"usb0",
                                                u"usb1"}));
}

TEST(NetworkAdapters, AreFineWhetherTheLinkIsUpOrDown) {
  const struct {
    LinkState link;
    uint32_t code;
    uint8_t status;
  } cases[] = {
      {LinkState::kUp, 1, 2},
      {LinkState::kDown, 2, 2},
      {LinkState::kTesting, 3, 2},
      {LinkState::kUnknown, 4, 1},
      {LinkState::kDormant, 5, 2},
      {LinkState::kNotPresent, 6, 1},
      {LinkState::kLowerLayerDown, 7, 2},
  };
  for (const auto& c : cases) {
    NetworkAdapter adapter = WholeAdapter();
    adapter.link = c.link;
    const auto machine = MachineWith({adapter});
    EXPECT_EQ(U32(BytesOf(*machine, kFirst), 24), c.code);
    EXPECT_EQ(U8(BytesOf(*machine, kFirst), 10), c.status) << c.code;
  }
}

TEST(NetworkAdapters, TheConfigurationIsThatOfIpv6WhereThereIsNoIpv4) {
  NetworkAdapter adapter = WholeAdapter();
  adapter.ipv4 = {"", "", "192.0.2.1", "192.0.2.2"};
  const auto machine = MachineWith({adapter});
  const std::byte* object = BytesOf(*machine, kFirst);
  EXPECT_EQ(Text(object, 216), u"2001:db8::22");
  EXPECT_EQ(Text(object, 220), u"ffff:ffff:ffff:ffff::");
  EXPECT_EQ(Text(object, 224), u"fe80::2");
  EXPECT_EQ(Text(object, 228), u"fe80::1");
}

TEST(NetworkAdapters, AddressesOfOtherLengthsAreShownWhole) {
  NetworkAdapter adapter = Named("ib0");
  adapter.currentMac = {0x80, 0x00, 0x02, 0x08, 0xFE, 0x80, 0, 0,    0,    0,
                        0,    0,    0xE4, 0x1D, 0x2D, 3,    0, 0x0A, 0xBC, 0xDE};
  adapter.permanentMac = {0x42};
  const auto machine = MachineWith({adapter});
  EXPECT_EQ(Text(BytesOf(*machine, kFirst), 208),
            u"80:00:02:08:FE:80:00:00:00:00:00:00:E4:1D:2D:03:00:0A:BC:DE");
  EXPECT_EQ(Text(BytesOf(*machine, kFirst), 212), u"42");
}

TEST(NetworkAdapters, AnAddressOfZerosIsNone) {
  NetworkAdapter adapter = Named("eth0");
  adapter.currentMac = {0, 0, 0, 0, 0, 0};
  adapter.permanentMac = std::vector<uint8_t>(21, 1);
  const auto machine = MachineWith({adapter});
  EXPECT_EQ(U32(BytesOf(*machine, kFirst), 208), 0U);
  EXPECT_EQ(U32(BytesOf(*machine, kFirst), 212), 0U) << "longer than any address";
}

TEST(NetworkAdapters, OddTextsAreLeftOutAndTheAdapterStays) {
  NetworkAdapter adapter = WholeAdapter();
  adapter.name = "eth\xFF";
  adapter.description = "eth\xFF";
  adapter.vendor = std::string("Quad\0rel", 8);
  adapter.productName = std::string(300, 'x');
  adapter.driver = "\xED\xA0\x80";
  const auto machine = MachineWith({adapter});
  const std::byte* object = BytesOf(*machine, kFirst);
  EXPECT_EQ(U32(object, 172), 0U);
  EXPECT_EQ(U32(object, 176), 0U);
  EXPECT_EQ(Text(object, 180), std::u16string(300, u'x')) << "the store knows no longest text";
  EXPECT_EQ(U32(object, 200), 0U);
  EXPECT_EQ(Text(object, 212), u"00:00:5E:00:53:10");
}

TEST(NetworkAdapters, StandBesideWhatAFirmwareTableTells) {
  const testing::TemporaryFolder folder;
  const testing::ByteVector table = testing::Joined(
      {testing::WithStrings({1, 6, 1, 0, 1, 2}, {"Vorn", "Tessera"}), testing::kEndOfTable});
  const auto length = static_cast<uint16_t>(table.size());
  const auto dump = folder.Write("64.bin", testing::TextOf(testing::Dump64(table)));
  const auto bare = folder.Write("DMI", testing::TextOf(table));
  folder.Write("smbios_entry_point", testing::TextOf(testing::EntryPoint64(length)));
  for (const auto& path : {dump, bare}) {
    SnapshotBuilder builder;
    AddNetworkAdapters({WholeAdapter(), Named("usb0")}, builder);
    const auto machine = LoadFirmwareTable(path, std::move(builder));
    EXPECT_EQ(Text(BytesOf(*machine, 32 * 65536 + 1), 40), u"Tessera");
    EXPECT_EQ(Oids(machine->Children(2, 96)), (std::vector<uint32_t>{kFirst, kFirst + 1}));
    EXPECT_EQ(Text(BytesOf(*machine, kFirst), 216), u"192.0.2.22");
  }
}

/// The text that a field of an object of the object library points to; empty where there is none.
std::string LibraryText(const void* object, size_t field) {
  char* text = SMILDOGetByOffsetUTF8Str(const_cast<void*>(object), U32(object, field));
  const std::string copy = text == nullptr ? "" : text;
  SMILFreeGeneric(text);
  return copy;
}

/// The addresses of the adapters that the object library serves now.
std::vector<std::string> ServedMacs() {
  std::vector<std::string> macs;
  uint32_t chassis = 2;
  void* list = SMILListChildOIDByType(&chassis, 96);
  for (uint32_t oid : Oids(list)) {
    void* object = SMILGetObjByOID(&oid);
    macs.push_back(LibraryText(object, 208));
    SMILFreeGeneric(object);
  }
  SMILFreeGeneric(list);
  return macs;
}

bool HasSixByteMac(const std::vector<std::string>& macs) {
  static const std::regex pattern("[0-9A-F]{2}(:[0-9A-F]{2}){5}");
  return std::any_of(macs.begin(), macs.end(),
                     [](const std::string& mac) { return std::regex_match(mac, pattern); });
}

class RunningMachine : public ::testing::Test {
 protected:
  void SetUp() override {
    adapters_ = ReadNetworkAdapters();
    if (adapters_.empty()) GTEST_SKIP() << "this machine shows no network adapter";
  }
  void TearDown() override { TQStoreOpen("sample", nullptr, 0); }

  std::vector<NetworkAdapter> adapters_;
};

TEST_F(RunningMachine, ItsAdaptersComeBackFromAStoreFileThroughTheObjectLibrary) {
  const testing::TemporaryFolder folder;
  const auto file = folder.Write("machine.json", FormatStoreFile(*MachineWith(adapters_)));
  char message[256];
  ASSERT_EQ(TQStoreOpen(("store-file:" + store::TextOf(file)).c_str(), message, sizeof message), 0)
      << message;
  EXPECT_EQ(ServedMacs().size(), adapters_.size());
  EXPECT_TRUE(HasSixByteMac(ServedMacs()));
}

TEST_F(RunningMachine, ItsAdaptersAreThereBesideItsFirmwareTable) {
  char message[256];
  if (TQStoreOpen("firmware", message, sizeof message) != 0) GTEST_SKIP() << message;
  EXPECT_EQ(ServedMacs().size(), adapters_.size());
  EXPECT_TRUE(HasSixByteMac(ServedMacs()));
}

}  // namespace
}  // namespace tqcim::store
