#include "store/process.h"

#include <windows.h>

#include "store/windows/wide_text.h"

namespace tqcim::store {

std::filesystem::path LibraryFolder() {
  HMODULE module = nullptr;
  constexpr DWORD kFlags =
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  if (!GetModuleHandleExW(kFlags, reinterpret_cast<const wchar_t*>(&LibraryFolder), &module)) {
    return {};
  }
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return std::filesystem::path(path).parent_path();
    }
    path.resize(2 * path.size());
  }
}

bool HasFile(const std::filesystem::path& folder, const char* name) {
  std::wstring path = folder.native();
  path += L'\\';
  path.append(name, name + std::char_traits<char>::length(name));
  return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

File OpenToRead(const std::filesystem::path& path) {
  return File(_wfopen(path.c_str(), L"rb"));
}

File OpenToWrite(const std::filesystem::path& path) {
  return File(_wfopen(path.c_str(), L"wb"));
}

std::optional<std::string> EnvironmentText(const char* name) {
  const std::wstring wideName(name, name + std::char_traits<char>::length(name));
  std::wstring value(GetEnvironmentVariableW(wideName.c_str(), nullptr, 0), L'\0');
  if (value.empty()) return std::nullopt;
  value.resize(
      GetEnvironmentVariableW(wideName.c_str(), value.data(), static_cast<DWORD>(value.size())));
  if (value.empty()) return std::nullopt;
  return Utf8(value);
}

}  // namespace tqcim::store
