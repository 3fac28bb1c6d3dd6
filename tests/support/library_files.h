/// The provider module and its libraries as files.
#pragma once

#include <filesystem>
#include <string>

namespace tqcim::testing {

/// Copies the modules of a folder, the provider's own too, over those of another.
inline void CopyModules(const std::filesystem::path& from, const std::filesystem::path& to) {
  for (const auto& entry : std::filesystem::directory_iterator(from)) {
    const std::string extension = entry.path().extension().string();
    const std::string name = entry.path().stem().string();
    const bool isModule = (extension == ".so" || extension == ".dll") && name.ends_with("64") &&
                          name.find("tq") != std::string::npos;
    if (!isModule) continue;
    std::filesystem::copy_file(entry.path(), to / entry.path().filename(),
                               std::filesystem::copy_options::overwrite_existing);
  }
}

}  // namespace tqcim::testing
