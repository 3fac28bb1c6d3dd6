/// A folder of MOF files that a test makes and that goes with it.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace tqcim::host {

class SchemaFolder {
 public:
  SchemaFolder() {
    const ::testing::TestInfo& test = *::testing::UnitTest::GetInstance()->current_test_info();
    path_ = std::filesystem::temp_directory_path() /
            (std::string("tqcim-") + test.test_suite_name() + "-" + test.name());
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_);
  }
  ~SchemaFolder() { std::filesystem::remove_all(path_); }
  SchemaFolder(const SchemaFolder&) = delete;
  SchemaFolder& operator=(const SchemaFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  void Write(const char* name, std::string_view text) const {
    std::ofstream(path_ / name, std::ios::binary) << text;
  }

 private:
  std::filesystem::path path_;
};

}  // namespace tqcim::host
