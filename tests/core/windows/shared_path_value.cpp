#include "tests/core/windows/shared_path_value.h"

#include <array>

namespace tqcim::testing {
namespace {

constexpr const char* kValue = "SKLIBPATH";
/// The key and those above it, from the innermost.
constexpr std::array<const char*, 3> kKeys = {
    "SOFTWARE\\Vorn Computer Corporation\\Steadmark\\Shared",
    "SOFTWARE\\Vorn Computer Corporation\\Steadmark", "SOFTWARE\\Vorn Computer Corporation"};

bool IsEmpty(HKEY key) {
  DWORD subkeys = 0;
  DWORD values = 0;
  RegQueryInfoKeyA(key, nullptr, nullptr, nullptr, &subkeys, nullptr, nullptr, &values, nullptr,
                   nullptr, nullptr, nullptr);
  return subkeys == 0 && values == 0;
}

void DeleteWhereEmpty(const char* path) {
  HKEY key;
  if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, path, 0, KEY_READ, &key) != ERROR_SUCCESS) return;
  const bool empty = IsEmpty(key);
  RegCloseKey(key);
  if (empty) RegDeleteKeyA(HKEY_LOCAL_MACHINE, path);
}

void DeleteValue() {
  RegDeleteKeyValueA(HKEY_LOCAL_MACHINE, kKeys[0], kValue);
  for (const char* path : kKeys) DeleteWhereEmpty(path);
}

}  // namespace

SharedPathValue::SharedPathValue() {
  char bytes[4096];
  DWORD size = sizeof bytes;
  DWORD type = 0;
  HKEY key;
  if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, kKeys[0], 0, KEY_READ, &key) != ERROR_SUCCESS) return;
  if (RegQueryValueExA(key, kValue, nullptr, &type, reinterpret_cast<BYTE*>(bytes), &size) ==
      ERROR_SUCCESS) {
    before_ = Value{type, std::string(bytes, size)};
  }
  RegCloseKey(key);
  DeleteValue();
}

SharedPathValue::~SharedPathValue() {
  DeleteValue();
  if (before_) Set(before_->type, before_->bytes);
}

void SharedPathValue::Set(DWORD type, const std::string& bytes) const {
  RegSetKeyValueA(HKEY_LOCAL_MACHINE, kKeys[0], kValue, type, bytes.data(),
                  static_cast<DWORD>(bytes.size()));
}

void SharedPathValue::SetKeyOnly() const {
  HKEY key;
  RegCreateKeyA(HKEY_LOCAL_MACHINE, kKeys[0], &key);
  RegCloseKey(key);
}

bool SharedPathValue::KeyExists() {
  HKEY key;
  if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, kKeys[0], 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
  RegCloseKey(key);
  return true;
}

}  // namespace tqcim::testing
