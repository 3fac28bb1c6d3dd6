// What the registry tells of a network adapter, from a key of the test's own.
#include "store/windows/driver_facts.h"

#include <gtest/gtest.h>

namespace tqcim::store {
namespace {

const wchar_t kGuid[] = L"{0F0E0D0C-0000-4000-8000-000000000001}";
const std::wstring kConnection =
    std::wstring(L"Control\\Network\\{4D36E972-E325-11CE-BFC1-08002BE10318}\\") + kGuid +
    L"\\Connection";
const wchar_t kInstance[] = L"PCI\\VEN_1AF4&DEV_1041\\3&1&18";
const wchar_t kDevice[] = L"Enum\\PCI\\VEN_1AF4&DEV_1041\\3&1&18";
const wchar_t kDriver[] = L"{4d36e972-e325-11ce-bfc1-08002be10318}\\0007";

/// A key below HKEY_CURRENT_USER that goes with the test.
class DriverFactsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    RegDeleteTreeW(HKEY_CURRENT_USER, kPath);
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, kPath, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                              &key_, nullptr),
              ERROR_SUCCESS);
    Set(kConnection, L"PnpInstanceID", kInstance);
    Set(kDevice, L"Mfg", L"@oem3.inf,%maker%;Quadrel");
    Set(kDevice, L"DeviceDesc", L"@oem3.inf,%qn.device%;QN-210 Adapter");
    Set(kDevice, L"Service", L"qn210");
    Set(kDevice, L"LocationInformation",
        L"@System32\\drivers\\pci.sys,#65536;PCI bus %1, device %2, function %3;(59,31,7)");
    Set(kDevice, L"Driver", kDriver);
    Set(std::wstring(L"Control\\Class\\") + kDriver, L"DriverVersion", L"12.18.9.23");
  }
  void TearDown() override {
    RegCloseKey(key_);
    RegDeleteTreeW(HKEY_CURRENT_USER, kPath);
  }

  void Set(const std::wstring& key, const wchar_t* name, const std::wstring& text) const {
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    ASSERT_EQ(RegSetKeyValueW(key_, key.c_str(), name, REG_SZ, text.c_str(), size), ERROR_SUCCESS);
  }
  DriverFacts Read() const { return ReadDriverFacts(key_, kGuid); }

  static constexpr const wchar_t* kPath = L"Software\\tqcim-test-network";
  HKEY key_ = nullptr;
};

TEST_F(DriverFactsTest, AreFoundByTheGuidOfTheInterface) {
  const DriverFacts facts = Read();
  EXPECT_EQ(facts.pci, (PciLocation{59, 31, 7}));
  EXPECT_EQ(facts.vendor, "Quadrel");
  EXPECT_EQ(facts.productName, "QN-210 Adapter");
  EXPECT_EQ(facts.service, "qn210");
  EXPECT_EQ(facts.driverVersion, "12.18.9.23");
}

TEST_F(DriverFactsTest, AreNoneForAnInterfaceThatTheRegistryDoesNotKnow) {
  const DriverFacts facts = ReadDriverFacts(key_, L"{0F0E0D0C-0000-4000-8000-000000000002}");
  EXPECT_EQ(facts.pci, std::nullopt);
  EXPECT_EQ(facts.vendor, "");
  EXPECT_EQ(ReadDriverFacts(nullptr, kGuid).vendor, "");
}

TEST_F(DriverFactsTest, TextsMayBePlainAndInAnyLanguage) {
  Set(kDevice, L"Mfg", L"Qu\u00E4drel; Inc.");
  Set(kDevice, L"LocationInformation", L"PCI-Bus 1, Ger\u00E4t 0, Funktion 2 (1,0,2)");
  EXPECT_EQ(Read().vendor,
            "Qu\xC3\xA4"
            "drel; Inc.");
  EXPECT_EQ(Read().pci, (PciLocation{1, 0, 2}));
}

TEST_F(DriverFactsTest, AnOddLocationIsNone) {
  for (const wchar_t* location : {L"", L"(", L"()", L"(1,2)", L"(1,2,3", L"(1,2,3,4)", L"(1,2,256)",
                                  L"(1,2,-3)", L"(1;2;3)", L"PCI bus 1, device 2, function 3"}) {
    Set(kDevice, L"LocationInformation", location);
    EXPECT_EQ(Read().pci, std::nullopt);
  }
}

TEST_F(DriverFactsTest, OnlyAPciDeviceHasAPlaceThere) {
  Set(kConnection, L"PnpInstanceID", L"USB\\VID_1AF4\\1");
  Set(L"Enum\\USB\\VID_1AF4\\1", L"LocationInformation", L"(1,2,3)");
  Set(L"Enum\\USB\\VID_1AF4\\1", L"Service", L"usbqn");
  EXPECT_EQ(Read().pci, std::nullopt);
  EXPECT_EQ(Read().service, "usbqn");
  EXPECT_EQ(Read().driverVersion, "");
}

TEST_F(DriverFactsTest, AValueOfAnotherKindIsNone) {
  const DWORD number = 7;
  RegSetKeyValueW(key_, kDevice, L"Mfg", REG_DWORD, &number, sizeof number);
  EXPECT_EQ(Read().vendor, "");
  EXPECT_EQ(Read().service, "qn210");
}

}  // namespace
}  // namespace tqcim::store
