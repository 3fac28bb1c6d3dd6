/// Tests of the command-line program as its users meet it: arguments in, two streams and an exit
/// status out.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "store/process.h"
#include "tests/support/environment.h"
#include "tests/support/temporary_folder.h"
#include "tests/tools/child_process.h"

namespace tqcim::testing {

struct ToolRun {
  int status;
  std::string output;
  std::string error;
};

class ToolTest : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const char* name : {"TQCIM_SOURCE", "COLUMNS", "NO_COLOR"}) SetEnvironment(name, nullptr);
  }
  void TearDown() override { SetUp(); }

  /// The program in the test's own folder.
  static std::filesystem::path Program() { return store::LibraryFolder() / TQCIM_PROGRAM_NAME; }

  ToolRun Run(const std::vector<std::string>& arguments) const {
    return RunProgram(Program(), arguments);
  }
  ToolRun RunProgram(const std::filesystem::path& program,
                     const std::vector<std::string>& arguments) const {
    const std::filesystem::path output = folder_.Path() / "output";
    const std::filesystem::path error = folder_.Path() / "error";
    const int status = RunChild(program, arguments, output, error);
    return {status, ContentsOf(output), ContentsOf(error)};
  }

  /// A file of the test's own, by the name under which the program finds it.
  std::string Write(const char* name, std::string_view contents) const {
    const std::u8string path = folder_.Write(name, contents).u8string();
    return std::string(path.begin(), path.end());
  }

  const TemporaryFolder& Folder() const { return folder_; }

 private:
  TemporaryFolder folder_;
};

}  // namespace tqcim::testing
