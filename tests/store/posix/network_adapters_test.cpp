// Network adapters in folders like those of Linux.
#include "store/posix/network_adapters.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "store/process.h"
#include "tests/support/temporary_folder.h"

namespace tqcim::store {
namespace {

namespace fs = std::filesystem;

using Mac = std::vector<uint8_t>;

/// An invented /sys and /proc.
class LinuxFolders : public ::testing::Test {
 protected:
  LinuxFolders() {
    fs::create_directories(folder_.Path() / "sys/class/net");
    fs::create_directories(folder_.Path() / "proc/net");
  }

  void Write(const fs::path& file, std::string_view contents) const {
    fs::create_directories((folder_.Path() / file).parent_path());
    folder_.Write(file, contents);
  }
  void Link(const fs::path& link, const fs::path& target) const {
    fs::create_directories((folder_.Path() / link).parent_path());
    fs::create_symlink(target, folder_.Path() / link);
  }

  /// An interface of the device that stands at `device` below sys/devices, with its class link.
  fs::path AddInterface(const std::string& device, const std::string& name) const {
    const fs::path interface = fs::path("sys/devices") / device / "net" / name;
    fs::create_directories(folder_.Path() / interface);
    Link(interface / "device", "../..");
    Link(fs::path("sys/class/net") / name, fs::path("../../devices") / device / "net" / name);
    return interface;
  }
  /// One without a device.
  fs::path AddVirtualInterface(const std::string& name) const {
    const fs::path interface = fs::path("sys/devices/virtual/net") / name;
    fs::create_directories(folder_.Path() / interface);
    Link(fs::path("sys/class/net") / name, fs::path("../../devices/virtual/net") / name);
    return interface;
  }

  std::vector<NetworkAdapter> Read() const {
    auto adapters = ReadNetworkAdapters(folder_.Path() / "sys", folder_.Path() / "proc", facts_);
    std::sort(adapters.begin(), adapters.end(),
              [](const auto& a, const auto& b) { return a.name < b.name; });
    return adapters;
  }
  NetworkAdapter ReadOne() const {
    const auto adapters = Read();
    EXPECT_EQ(adapters.size(), 1U);
    return adapters.empty() ? NetworkAdapter{} : adapters[0];
  }

  testing::TemporaryFolder folder_;
  InterfaceFactsByName facts_;
};

TEST_F(LinuxFolders, AnAdapterIsReadFromItsFiles) {
  const auto eth = AddInterface("pci0000:3a/0000:3a:02.0/0000:3b:1f.7", "ens1f7");
  Write(eth / "address", "00:00:5e:00:53:af\n");
  Write(eth / "addr_assign_type", "0\n");
  Write(eth / "operstate", "up\n");
  Write(eth / "ifalias", "uplink \xC3\xA4\n");
  Link("sys/devices/pci0000:3a/0000:3a:02.0/0000:3b:1f.7/driver", "../../../../bus/drivers/qn210");
  Link("sys/bus/drivers/qn210/module", "../../../module/qn210");
  Write("sys/module/qn210/version", "12.18.9-k\n");
  facts_["ens1f7"] = {{"192.0.2.22", "255.255.255.0", "", ""},
                      {"2001:db8::22", "ffff:ffff:ffff:ffff::", "", ""},
                      {}};
  Write("proc/net/route",
        "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT\n"
        "ens1f7\t000200C0\t00000000\t0001\t0\t0\t0\t00FFFFFF\t0\t0\t0\n"
        "ens1f7\t00000000\t090200C0\t0003\t0\t0\t200\t00000000\t0\t0\t0\n"
        "ens1f7\t00000000\t010200C0\t0003\t0\t0\t100\t00000000\t0\t0\t0\n"
        "other\t00000000\t080200C0\t0003\t0\t0\t0\t00000000\t0\t0\t0\n");
  Write("proc/net/ipv6_route",
        "20010db8000000000000000000000000 40 00000000000000000000000000000000 00 "
        "00000000000000000000000000000000 00000100 00000001 00000000 00000001   ens1f7\n"
        "00000000000000000000000000000000 00 00000000000000000000000000000000 00 "
        "fe800000000000000000000000000001 00000400 00000002 00000000 00000003   ens1f7\n"
        "00000000000000000000000000000000 00 00000000000000000000000000000000 00 "
        "00000000000000000000000000000000 ffffffff 00000001 00000000 00200200       lo\n");
  const NetworkAdapter adapter = ReadOne();
  EXPECT_EQ(adapter.name, "ens1f7");
  EXPECT_EQ(adapter.pci, (PciLocation{0x3B, 0x1F, 7}));
  EXPECT_EQ(adapter.link, LinkState::kUp);
  EXPECT_EQ(adapter.description, "ens1f7 (uplink \xC3\xA4)");
  EXPECT_EQ(adapter.driver, "qn210");
  EXPECT_EQ(adapter.driverVersion, "12.18.9-k");
  EXPECT_EQ(adapter.currentMac, (Mac{0x00, 0x00, 0x5E, 0x00, 0x53, 0xAF}));
  EXPECT_EQ(adapter.permanentMac, adapter.currentMac);
  EXPECT_EQ(adapter.ipv4, (IpConfiguration{"192.0.2.22", "255.255.255.0", "192.0.2.1", ""}));
  EXPECT_EQ(adapter.ipv6,
            (IpConfiguration{"2001:db8::22", "ffff:ffff:ffff:ffff::", "fe80::1", ""}));
}

TEST_F(LinuxFolders, OnlyWhatHasADeviceIsAnAdapter) {
  for (const char* name : {"lo", "bond0", "br0", "veth1", "eth0.7"}) AddVirtualInterface(name);
  Write("sys/class/net/bonding_masters", "bond0\n");
  const std::string physical = "pci0000:00/0000:00:03.0";
  const std::string function = "pci0000:00/0000:00:03.1";
  AddInterface(physical, "eth0");
  AddInterface(function, "eth0v0");
  Link(fs::path("sys/devices") / function / "physfn", "../0000:00:03.0");
  EXPECT_EQ(ReadOne().name, "eth0") << "the virtual function is the physical one's";
}

TEST_F(LinuxFolders, AVirtioAdapterStandsWhereItsPciDeviceDoes) {
  AddInterface("pci0000:00/0000:00:03.0/virtio2", "eth0");
  EXPECT_EQ(ReadOne().pci, (PciLocation{0, 3, 0}));
}

TEST_F(LinuxFolders, AnAdapterOnAnotherBusHasNoPlaceOnPci) {
  AddInterface("pci0000:00/0000:00:14.0/usb1/1-1/1-1:1.0", "usb0");
  AddInterface("platform/0000:zz:00.0", "eth7");
  AddInterface("platform/30be0000.ethernet", "eth8");
  for (const NetworkAdapter& adapter : Read()) EXPECT_EQ(adapter.pci, std::nullopt) << adapter.name;
  EXPECT_EQ(Read().size(), 3U);
}

TEST_F(LinuxFolders, DomainsOfPciMayHaveLongNumbers) {
  AddInterface("pci10000:00/10000:01:00.1", "eth0");
  EXPECT_EQ(ReadOne().pci, (PciLocation{1, 0, 1}));
}

TEST_F(LinuxFolders, AnAdapterWithoutAnyFileIsThere) {
  AddInterface("pci0000:00/0000:00:03.0", "eth0");
  const NetworkAdapter adapter = ReadOne();
  EXPECT_EQ(adapter.description, "eth0");
  EXPECT_EQ(adapter.link, LinkState::kNotTold);
  EXPECT_EQ(adapter.driver, "");
  EXPECT_EQ(adapter.driverVersion, "");
  EXPECT_EQ(adapter.currentMac, Mac());
  EXPECT_EQ(adapter.permanentMac, Mac());
  EXPECT_EQ(adapter.ipv4, IpConfiguration());
  EXPECT_EQ(adapter.ipv6, IpConfiguration());
}

TEST_F(LinuxFolders, AnAddressIsPairsOfDigitsOrNothing) {
  const auto eth = AddInterface("pci0000:00/0000:00:03.0", "eth0");
  const std::pair<const char*, Mac> cases[] = {
      {"00:00:5e:00:53:10\n", {0, 0, 0x5E, 0, 0x53, 0x10}},
      {"00:00:5E:00:53:10", {0, 0, 0x5E, 0, 0x53, 0x10}},
      {"80:00:02:08:fe:80:00:00:00:00:00:00:e4:1d:2d:03:00:0a:bc:de\n",
       {0x80, 0, 2, 8, 0xFE, 0x80, 0, 0, 0, 0, 0, 0, 0xE4, 0x1D, 0x2D, 3, 0, 0x0A, 0xBC, 0xDE}},
      {"", {}},
      {"\n", {}},
      {"garbage\n", {}},
      {"00:00:5e:00:53:1\n", {}},
      {"00:00:5e:00:53:\n", {}},
      {"00-00-5e-00-53-10\n", {}},
      {"00:00:5e:00:53:g0\n", {}},
      {"00:00:5e:00:53:-1\n", {}},
      {"0000:5e:00:53:10\n", {}},
  };
  for (const auto& [contents, mac] : cases) {
    Write(eth / "address", contents);
    EXPECT_EQ(ReadOne().currentMac, mac) << contents;
  }
}

TEST_F(LinuxFolders, ThePermanentAddressIsTheKernelsOrOneThatWasNeverChanged) {
  const auto eth = AddInterface("pci0000:00/0000:00:03.0", "eth0");
  Write(eth / "address", "00:00:5e:00:53:10\n");
  Write(eth / "addr_assign_type", "3\n");
  EXPECT_EQ(ReadOne().permanentMac, Mac()) << "set by the administrator or a bond";
  facts_["eth0"].permanentMac = {0, 0, 0x5E, 0, 0x53, 0x99};
  EXPECT_EQ(ReadOne().permanentMac, (Mac{0, 0, 0x5E, 0, 0x53, 0x99}));
  EXPECT_EQ(ReadOne().currentMac, (Mac{0, 0, 0x5E, 0, 0x53, 0x10}));
}

TEST_F(LinuxFolders, EveryStateOfTheLinkIsKnown) {
  const auto eth = AddInterface("pci0000:00/0000:00:03.0", "eth0");
  const std::pair<const char*, int> states[] = {
      {"up", 1},      {"down", 2},       {"testing", 3},        {"unknown", 4},
      {"dormant", 5}, {"notpresent", 6}, {"lowerlayerdown", 7}, {"sideways", 0}};
  for (const auto& [text, code] : states) {
    Write(eth / "operstate", text);
    EXPECT_EQ(static_cast<int>(ReadOne().link), code) << text;
  }
}

TEST_F(LinuxFolders, AMemberHasTheAddressesOfItsBond) {
  const auto eth = AddInterface("pci0000:00/0000:00:03.0", "eth0");
  AddVirtualInterface("bond0");
  Link(eth / "master", "../../../../virtual/net/bond0");
  facts_["eth0"] = {{}, {}, {0, 0, 0x5E, 0, 0x53, 0x99}};
  facts_["bond0"] = {{"192.0.2.22", "255.255.255.0", "", ""}, {}, {0, 0, 0x5E, 0, 0x53, 0x11}};
  Write("proc/net/route", "header\nbond0 00000000 010200C0 0003 0 0 0 00000000 0 0 0\n");
  const NetworkAdapter adapter = ReadOne();
  EXPECT_EQ(adapter.ipv4, (IpConfiguration{"192.0.2.22", "255.255.255.0", "192.0.2.1", ""}));
  EXPECT_EQ(adapter.permanentMac, (Mac{0, 0, 0x5E, 0, 0x53, 0x99}));
}

TEST_F(LinuxFolders, AMemberOfAVrfKeepsItsOwnAddresses) {
  const auto eth = AddInterface("pci0000:00/0000:00:03.0", "eth0");
  AddVirtualInterface("vrf0");
  Link(eth / "master", "../../../../virtual/net/vrf0");
  facts_["vrf0"] = {{"127.0.0.1", "255.0.0.0", "", ""}, {}, {}};
  const IpConfiguration ipv4 = {"192.0.2.22", "255.255.255.0", "", ""};
  const IpConfiguration ipv6 = {"2001:db8::22", "ffff:ffff:ffff:ffff::", "", ""};
  facts_["eth0"] = {ipv4, {}, {}};
  EXPECT_EQ(ReadOne().ipv4, ipv4);
  facts_["eth0"] = {{}, ipv6, {}};
  EXPECT_EQ(ReadOne().ipv4, IpConfiguration());
  EXPECT_EQ(ReadOne().ipv6, ipv6);
}

TEST_F(LinuxFolders, OddRoutesAreNone) {
  AddInterface("pci0000:00/0000:00:03.0", "eth0");
  Write("proc/net/route",
        "eth0\n\n"
        "eth0 00000000 xyz 0003 0 0 0 00000000 0 0 0\n"
        "eth0 00000000 010200C0 0002 0 0 0 00000000 0 0 0\n"  // not up
        "eth0 00000000 010200C0 0001 0 0 0 00000000 0 0 0\n"  // no gateway
        "eth0 00000000 010200C0 0003 0 0 0 000000FF 0 0 0\n"  // not the default
        "eth0 0000000A 010200C0 0003 0 0 0 00000000 0 0 0\n"  // neither
        "eth0 00000000 010200C0 0003 0 0 0");
  Write(
      "proc/net/ipv6_route",
      "eth0\n"
      "00000000000000000000000000000000 00 00 00 fe80 00000400 0 0 00000003 eth0\n"
      "00000000000000000000000000000000 00 00 00 fe80000000000000000000000000000x 0 0 0 03 eth0\n");
  EXPECT_EQ(ReadOne().ipv4.gateway, "");
  EXPECT_EQ(ReadOne().ipv6.gateway, "");
}

TEST_F(LinuxFolders, FilesThatAreFoldersOrPipesAreNotRead) {
  const auto eth = AddInterface("pci0000:00/0000:00:03.0", "eth0");
  fs::create_directories(folder_.Path() / eth / "address");
  fs::create_directories(folder_.Path() / "proc/net/route");
  ASSERT_EQ(mkfifo((folder_.Path() / eth / "operstate").c_str(), 0600), 0);
  EXPECT_EQ(ReadOne().currentMac, Mac());
  EXPECT_EQ(ReadOne().link, LinkState::kNotTold);
}

TEST_F(LinuxFolders, BrokenAndCircularLinksAreLeftOut) {
  Link("sys/class/net/gone", "../../devices/gone");
  Link("sys/class/net/circle", "circle");
  AddInterface("pci0000:00/0000:00:03.0", "eth0");
  EXPECT_EQ(ReadOne().name, "eth0");
}

TEST_F(LinuxFolders, NoInterfaceIsNoAdapter) {
  EXPECT_EQ(Read().size(), 0U);
  fs::remove_all(folder_.Path() / "sys");
  EXPECT_EQ(Read().size(), 0U) << "no folder at all";
}

/// What the kernel's own files say of a device of this machine.
TEST(LinuxAdapters, OfTheRunningMachineHaveTheKernelsAddresses) {
  const auto adapters = ReadNetworkAdapters();
  if (adapters.empty()) GTEST_SKIP() << "this machine shows no network adapter";
  for (const NetworkAdapter& adapter : adapters) {
    const fs::path folder = fs::path("/sys/class/net") / adapter.name;
    std::string text;
    for (const uint8_t byte : adapter.currentMac) {
      char pair[4];
      std::snprintf(pair, sizeof pair, text.empty() ? "%02x" : ":%02x", byte);
      text += pair;
    }
    EXPECT_EQ(text + "\n", testing::ContentsOf(folder / "address"));
    EXPECT_TRUE(fs::exists(folder / "device"));
  }
}

/// A recorded /sys of a server with two ports of one PCI device: one with a cable, one without.
TEST(LinuxAdapters, OfARealServerAreItsPorts) {
  const auto data = EnvironmentText("TQCIM_REAL_DATA");
  if (!data) GTEST_SKIP() << "TQCIM_REAL_DATA names no folder with recordings of real machines";
  const testing::TemporaryFolder folder;
  const fs::path archive = fs::path(*data) / "sysfs/supermicro-sys-4029gp-trt2.sysfs.tar.bz2";
  const std::string command = "tar -xjf '" + archive.string() + "' --strip-components=1 -C '" +
                              folder.Path().string() + "' 2>&1";
  if (std::system(command.c_str()) != 0) GTEST_SKIP() << "the recording can't be unpacked";
  auto adapters = ReadNetworkAdapters(folder.Path() / "sys", folder.Path() / "proc", {});
  ASSERT_EQ(adapters.size(), 2U);
  if (adapters[0].name > adapters[1].name) std::swap(adapters[0], adapters[1]);
  EXPECT_EQ(adapters[0].name, "enp96s0f0");
  EXPECT_EQ(adapters[0].pci, (PciLocation{0x60, 0, 0}));
  EXPECT_EQ(adapters[0].link, LinkState::kUp);
  EXPECT_EQ(adapters[0].permanentMac, (Mac{0xAC, 0x1F, 0x6B, 0x8A, 0x5F, 0xC8}));
  EXPECT_EQ(adapters[1].name, "enp96s0f1");
  EXPECT_EQ(adapters[1].pci, (PciLocation{0x60, 0, 1}));
  EXPECT_EQ(adapters[1].link, LinkState::kDown);
  EXPECT_EQ(adapters[1].permanentMac, (Mac{0xAC, 0x1F, 0x6B, 0x8A, 0x5F, 0xC9}));
}

}  // namespace
}  // namespace tqcim::store
