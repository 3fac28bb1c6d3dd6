// The switch in the INI files that hides the addresses of network ports: class, provider module,
// libraries and files as they are installed. The program stands in a folder of its own, where it
// puts copies of the modules, for the files are found beside them.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "host/management_host.h"
#include "host/module.h"
#include "tests/support/library_files.h"

namespace tqcim::host {
namespace {

namespace fs = std::filesystem;

constexpr const char* kMachine = R"({
  "format": "tqcim-store", "version": 1,
  "objects": [
    {"oid": 1, "type": "system", "status": "ok"},
    {"oid": 2, "type": "chassis", "status": "ok", "parents": [1]},
    {"oid": 10, "type": "networkAdapter", "status": "ok", "parents": [2],
     "fields": {"pciBus": 1, "ipAddress": "192.0.2.10", "subnetMask": "255.255.255.0",
                "dhcpServer": "192.0.2.1", "defaultGateway": "192.0.2.254"}},
    {"oid": 11, "type": "networkAdapter", "status": "ok", "parents": [2],
     "fields": {"pciBus": 2, "ipAddress": "192.0.2.11", "subnetMask": "255.255.255.0",
                "dhcpServer": "192.0.2.1", "defaultGateway": "192.0.2.254"}}
  ]
})";

const fs::path kFirst = "tqisst64.ini";
const fs::path kSecond = "tqisdy64.ini";

class NetworkPortIni : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    testing::CopyModules(ProgramFolder().parent_path(), ProgramFolder());
    Write("machine.json", kMachine);
    Write("tqcim.json", R"({"source": "store-file:machine.json", "iniFolder": "settings"})");
    host_ = ManagementHost::Open();
  }
  static void TearDownTestSuite() { host_.reset(); }

  void SetUp() override {
    fs::remove_all(ProgramFolder() / "settings");
    fs::create_directory(ProgramFolder() / "settings");
  }

  static void Write(const fs::path& name, std::string_view contents) {
    std::ofstream file(ProgramFolder() / name, std::ios::binary);
    file << contents;
    ASSERT_TRUE(file.flush().good()) << name;
  }
  static void WriteIni(const fs::path& name, const std::string& contents) {
    Write("settings" / name, contents);
  }
  /// Gives the switch this value in one of the files.
  static void SetSwitch(const fs::path& name, const std::string& value) {
    WriteIni(name, "[Network Information]\r\nnicipinfo.cimsnmp.disabled=" + value + "\r\n");
  }

  /// The addresses of the two ports, empty where they have none. `afterEach` is called when a port
  /// has been delivered.
  static std::vector<std::string> Addresses(const std::function<void()>& afterEach = [] {}) {
    std::vector<std::string> addresses;
    const Outcome outcome = host_->Enumerate("VORN_NetworkPort", [&](const Instance& port) {
      int present = 0;
      for (const char* name : {"IPAddress", "SubnetMask", "DHCPServer", "DefaultGateway"}) {
        present += port.Find(name)->put ? 1 : 0;
      }
      EXPECT_TRUE(present == 0 || present == 4) << "all are hidden, or none";
      const std::string* text = std::get_if<std::string>(&port.Find("IPAddress")->value);
      addresses.push_back(text == nullptr ? "" : *text);
      afterEach();
    });
    EXPECT_TRUE(outcome.ok()) << outcome.Text();
    return addresses;
  }

  inline static const std::vector<std::string> kShown = {"192.0.2.10", "192.0.2.11"};
  inline static const std::vector<std::string> kHidden = {"", ""};
  inline static std::unique_ptr<ManagementHost> host_;
};

TEST_F(NetworkPortIni, WithoutFilesTheAddressesAreShown) {
  EXPECT_EQ(Addresses(), kShown);
  fs::remove_all(ProgramFolder() / "settings");
  EXPECT_EQ(Addresses(), kShown) << "no folder either";
}

TEST_F(NetworkPortIni, TheFirstFileHides) {
  SetSwitch(kFirst, "1");
  EXPECT_EQ(Addresses(), kHidden);
  SetSwitch(kFirst, "65535");
  EXPECT_EQ(Addresses(), kHidden);
  SetSwitch(kFirst, "0");
  EXPECT_EQ(Addresses(), kShown);
}

TEST_F(NetworkPortIni, TheSecondFileOverridesTheFirst) {
  SetSwitch(kFirst, "1");
  SetSwitch(kSecond, "0");
  EXPECT_EQ(Addresses(), kShown);
  SetSwitch(kFirst, "0");
  SetSwitch(kSecond, "1");
  EXPECT_EQ(Addresses(), kHidden);
  fs::remove(ProgramFolder() / "settings" / kFirst);
  EXPECT_EQ(Addresses(), kHidden);
}

TEST_F(NetworkPortIni, ASecondFileThatDoesNotTellLeavesTheFirst) {
  SetSwitch(kFirst, "1");
  for (const char* contents :
       {"", "[Network Information]\n", "[Network Information]\nnicipinfo.disabled=0\n",
        "[Network]\nnicipinfo.cimsnmp.disabled=0\n", "nicipinfo.cimsnmp.disabled=0\n"}) {
    WriteIni(kSecond, contents);
    EXPECT_EQ(Addresses(), kHidden) << contents;
  }
}

TEST_F(NetworkPortIni, AValueThatIsNoSixteenBitNumberIsNotThere) {
  SetSwitch(kFirst, "1");
  for (const char* value : {"", "no", "0x0", "-0", "65536", "0 0"}) {
    SetSwitch(kSecond, value);
    EXPECT_EQ(Addresses(), kHidden) << value;
  }
  fs::remove(ProgramFolder() / "settings" / kSecond);
  for (const char* value : {"yes", "-1", "65536", "1;"}) {
    SetSwitch(kFirst, value);
    EXPECT_EQ(Addresses(), kShown) << value;
  }
}

TEST_F(NetworkPortIni, AFileThatCannotBeReadIsNotThere) {
  SetSwitch(kFirst, "1");
  fs::create_directory(ProgramFolder() / "settings" / kSecond);
  EXPECT_EQ(Addresses(), kHidden);
}

TEST_F(NetworkPortIni, OtherFilesDoNotCount) {
  SetSwitch("tqisst32.ini", "1");
  SetSwitch("tqisst64.ini.old", "1");
  EXPECT_EQ(Addresses(), kShown);
}

TEST_F(NetworkPortIni, TheFilesAreReadAgainForEveryPort) {
  EXPECT_EQ(Addresses([] { SetSwitch(kFirst, "1"); }),
            (std::vector<std::string>{"192.0.2.10", ""}));
  EXPECT_EQ(Addresses([] { SetSwitch(kSecond, "0"); }),
            (std::vector<std::string>{"", "192.0.2.11"}));
}

}  // namespace
}  // namespace tqcim::host
