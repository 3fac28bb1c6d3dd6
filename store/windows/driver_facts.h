/// What the Windows registry tells of the device and the driver of a network interface.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "store/network_adapters.h"

namespace tqcim::store {

/// Texts are UTF-8, empty where the registry doesn't tell.
struct DriverFacts {
  std::optional<PciLocation> pci;
  std::string vendor;
  std::string productName;
  std::string service;
  std::string driverVersion;
};

/// The facts of the interface with this GUID, braces included. `system` is the key that stands for
/// HKEY_LOCAL_MACHINE\SYSTEM\CurrentControlSet.
DriverFacts ReadDriverFacts(HKEY system, const std::wstring& interfaceGuid);

}  // namespace tqcim::store
