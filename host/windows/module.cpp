#include "host/module.h"

#include "host/management_host.h"

namespace tqcim::host {
namespace {

std::string PathText(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

[[noreturn]] void Refuse(const std::filesystem::path& file, const std::string& what) {
  throw HostError(HostError::Kind::kModule,
                  "the provider module cannot be loaded: " + PathText(file) + ": " + what +
                      " (Windows error " + std::to_string(GetLastError()) + ")");
}

FARPROC Function(HMODULE module, const std::filesystem::path& file, const char* name) {
  const FARPROC function = GetProcAddress(module, name);
  if (function) return function;
  FreeLibrary(module);
  Refuse(file, std::string("it has no function ") + name);
}

}  // namespace

const char* const kModuleName = "tqcim64.dll";
const bool kHasComRegistry = true;

std::filesystem::path ProgramFolder() {
  std::wstring name(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
    if (length < name.size()) {
      name.resize(length);
      return std::filesystem::path(name).parent_path();
    }
    name.resize(name.size() * 2);
  }
}

Module::Module(const std::filesystem::path& file) {
  const HMODULE module = LoadLibraryExW(std::filesystem::absolute(file).c_str(), nullptr,
                                        LOAD_WITH_ALTERED_SEARCH_PATH);
  if (!module) Refuse(file, "the file is missing or is no module");
  handle_ = module;
  get_class_object_ = reinterpret_cast<GetClassObjectFunction>(
      reinterpret_cast<void*>(Function(module, file, "DllGetClassObject")));
  can_unload_now_ = reinterpret_cast<CanUnloadNowFunction>(
      reinterpret_cast<void*>(Function(module, file, "DllCanUnloadNow")));
}

Module::~Module() {
  if (can_unload_now_() == S_OK) FreeLibrary(static_cast<HMODULE>(handle_));
}

}  // namespace tqcim::host
