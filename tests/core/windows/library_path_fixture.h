/// Programs that look for the three libraries, run with an environment and a registry of the test's
/// own.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include "tests/core/windows/shared_path_value.h"
#include "tests/support/environment.h"
#include "tests/support/temporary_folder.h"
#include "tests/tools/child_process.h"

namespace tqcim::testing {

struct ChildRun {
  int status;
  std::string output;
  std::string error;
};

/// At first nothing tells of the libraries' directory, and PATH is C:\old.
class LibraryPathFixture : public ::testing::Test {
 protected:
  LibraryPathFixture() {
    for (size_t i = 0; i < kNames.size(); ++i) {
      if (const char* value = std::getenv(kNames[i])) before_[i] = value;
      SetEnvironment(kNames[i], nullptr);
    }
    SetEnvironment("PATH", "C:\\old");
  }
  ~LibraryPathFixture() override {
    for (size_t i = 0; i < kNames.size(); ++i) {
      SetEnvironment(kNames[i], before_[i] ? before_[i]->c_str() : nullptr);
    }
  }
  void SetUp() override {
    if (SharedPathValue::KeyExists()) GTEST_SKIP() << "the registry's key holds others' values";
  }

  ChildRun Run(const std::filesystem::path& program,
               const std::vector<std::string>& arguments) const {
    const std::filesystem::path output = folder.Path() / "output";
    const std::filesystem::path error = folder.Path() / "error";
    const int status = RunChild(program, arguments, output, error);
    return {status, TextOf(output), TextOf(error)};
  }

  const TemporaryFolder folder;
  const SharedPathValue registry;

 private:
  static constexpr std::array<const char*, 4> kNames = {
      "PATH", "SKLIBPATH", "SKLIBPATH_ADDED_TO_PATH", "TQCIM_TEST_FOLDER"};

  /// The file with the line ends of the C library.
  static std::string TextOf(const std::filesystem::path& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  std::array<std::optional<std::string>, kNames.size()> before_;
};

}  // namespace tqcim::testing
