#include "store/windows/driver_facts.h"

#include <charconv>

#include "store/windows/wide_text.h"

namespace tqcim::store {
namespace {

/// A text of a key below `system`; empty where there is none.
std::wstring RegistryText(HKEY system, const std::wstring& key, const wchar_t* name) {
  const auto read = [&](wchar_t* text, DWORD& size) {
    return RegGetValueW(system, key.c_str(), name, RRF_RT_REG_SZ, nullptr, text, &size);
  };
  DWORD size = 0;
  if (read(nullptr, size) != ERROR_SUCCESS) return {};
  std::wstring text(size / sizeof(wchar_t), L'\0');
  if (read(text.data(), size) != ERROR_SUCCESS) return {};
  return text.c_str();
}

/// Texts of device keys begin with where their translation stands: "@oem3.inf,%maker%;Maker".
std::string WithoutReference(const std::wstring& text) {
  return Utf8(text.starts_with(L'@') ? text.substr(text.rfind(L';') + 1) : text);
}

/// The location of a PCI device, "@System32\drivers\pci.sys,#65536;PCI bus %1, device %2, function
/// %3;(59,0,1)": the numbers at the end, whatever the language before them.
std::optional<PciLocation> PciLocationOf(const std::string& location) {
  const size_t open = location.rfind('(');
  if (open == std::string::npos || !location.ends_with(')')) return std::nullopt;
  const char* at = location.data() + open;
  const char* const end = location.data() + location.size() - 1;
  uint8_t numbers[3] = {};
  for (uint8_t& number : numbers) {
    const auto [rest, error] = std::from_chars(at + 1, end, number);
    if (error != std::errc() || (rest != end && *rest != ',')) return std::nullopt;
    at = rest;
  }
  if (at != end) return std::nullopt;
  return PciLocation{numbers[0], numbers[1], numbers[2]};
}

}  // namespace

DriverFacts ReadDriverFacts(HKEY system, const std::wstring& interfaceGuid) {
  // The setup class of network adapters, GUID_DEVCLASS_NET.
  const std::wstring network = L"Control\\Network\\{4D36E972-E325-11CE-BFC1-08002BE10318}\\";
  const std::wstring instance =
      RegistryText(system, network + interfaceGuid + L"\\Connection", L"PnpInstanceID");
  if (instance.empty()) return {};
  const std::wstring device = L"Enum\\" + instance;
  DriverFacts facts;
  facts.vendor = WithoutReference(RegistryText(system, device, L"Mfg"));
  facts.productName = WithoutReference(RegistryText(system, device, L"DeviceDesc"));
  facts.service = Utf8(RegistryText(system, device, L"Service"));
  if (instance.starts_with(L"PCI\\")) {
    facts.pci = PciLocationOf(Utf8(RegistryText(system, device, L"LocationInformation")));
  }
  const std::wstring driver = RegistryText(system, device, L"Driver");
  if (!driver.empty()) {
    facts.driverVersion =
        Utf8(RegistryText(system, L"Control\\Class\\" + driver, L"DriverVersion"));
  }
  return facts;
}

}  // namespace tqcim::store
