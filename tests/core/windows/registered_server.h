/// What the machine's registry says of the provider's class.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace tqcim::testing {

inline const std::string kClsidKey =
    "SOFTWARE\\CLASSES\\CLSID\\{5E3A9C17-4B2D-41F0-9A6E-2C7D81B0E4F3}";
inline const std::string kServerKey = kClsidKey + "\\InprocServer32";

/// A value as it stands in the registry: its type, and all of its bytes.
struct RegistryValue {
  DWORD type;
  std::string bytes;

  bool operator==(const RegistryValue&) const = default;
};

inline RegistryValue Text(const std::string& text) {
  return {REG_SZ, text + '\0'};
}

/// Nothing where there is no such key or value; a null name is the default value.
inline std::optional<RegistryValue> ReadValue(const std::string& keyPath, const char* name) {
  HKEY key;
  if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, keyPath.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  DWORD type = 0;
  char bytes[512];
  DWORD size = sizeof bytes;
  const LSTATUS read =
      RegQueryValueExA(key, name, nullptr, &type, reinterpret_cast<BYTE*>(bytes), &size);
  RegCloseKey(key);
  if (read != ERROR_SUCCESS) return std::nullopt;
  return RegistryValue{type, std::string(bytes, size)};
}

inline bool Exists(const std::string& keyPath) {
  HKEY key;
  if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, keyPath.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) {
    return false;
  }
  RegCloseKey(key);
  return true;
}

inline constexpr const char* kAnotherServer = "another module is registered here";

/// Whether another installation's module is registered, which tests leave alone.
inline bool AnotherServerIsRegistered(const std::string& module) {
  return Exists(kClsidKey) && ReadValue(kServerKey, nullptr) != Text(module);
}

}  // namespace tqcim::testing
