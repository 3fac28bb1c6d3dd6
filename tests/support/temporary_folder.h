/// A folder of its own for a test's files.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

namespace tqcim::testing {

/// Made empty, removed with everything in it.
class TemporaryFolder {
 public:
  TemporaryFolder()
      : path_(std::filesystem::temp_directory_path() /
              ("tqcim-test-" + std::to_string(std::random_device()()))) {
    std::filesystem::create_directory(path_);
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }

  /// Writes a file of this folder and returns its path.
  std::filesystem::path Write(const std::filesystem::path& name, std::string_view contents) const {
    std::ofstream file(path_ / name, std::ios::binary);
    file.write(contents.data(), static_cast<std::streamsize>(contents.size()));
    return path_ / name;
  }

 private:
  std::filesystem::path path_;
};

/// The whole file; empty where it can't be read.
inline std::string ContentsOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace tqcim::testing
