#include "store/process.h"

#include <dlfcn.h>

#include <cstdlib>

namespace tqcim::store {

std::filesystem::path LibraryFolder() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<const void*>(&LibraryFolder), &info) == 0) return {};
  return std::filesystem::absolute(info.dli_fname).parent_path();
}

std::optional<std::string> EnvironmentText(const char* name) {
  const char* value = std::getenv(name);
  if (value == nullptr || *value == '\0') return std::nullopt;
  return value;
}

}  // namespace tqcim::store
