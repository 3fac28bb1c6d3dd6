#include "store/process.h"

#include <dlfcn.h>
#include <link.h>
#include <unistd.h>

#include <cstdlib>

namespace tqcim::store {

std::filesystem::path LibraryFolder() {
  Dl_info info{};
  link_map* map = nullptr;
  if (dladdr1(reinterpret_cast<const void*>(&LibraryFolder), &info, reinterpret_cast<void**>(&map),
              RTLD_DL_LINKMAP) == 0) {
    return {};
  }
  // The program itself has no name there, and the one under which it was started need not be a
  // path.
  const bool isProgram = *map->l_name == '\0';
  std::error_code unreadable;
  return std::filesystem::canonical(isProgram ? "/proc/self/exe" : map->l_name, unreadable)
      .parent_path();
}

bool HasFile(const std::filesystem::path& folder, const char* name) {
  std::string path;
  path.reserve(folder.native().size() + 1 + std::char_traits<char>::length(name));
  path.append(folder.native()).append("/").append(name);
  return access(path.c_str(), F_OK) == 0;
}

File OpenToRead(const std::filesystem::path& path) {
  return File(std::fopen(path.c_str(), "rb"));
}

File OpenToWrite(const std::filesystem::path& path) {
  return File(std::fopen(path.c_str(), "wb"));
}

std::optional<std::string> EnvironmentText(const char* name) {
  const char* value = std::getenv(name);
  if (value == nullptr || *value == '\0') return std::nullopt;
  return value;
}

}  // namespace tqcim::store
