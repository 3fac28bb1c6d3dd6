/// The program with its libraries in the test's own folder.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/library_files.h"
#include "tests/tools/tool_test.h"

namespace tqcim::testing {

class InstallationTest : public ToolTest {
 protected:
  /// Copies the program and the libraries, without the provider module.
  void InstallWithoutProvider() const {
    std::filesystem::copy(Program(), Folder().Path());
    CopyModules(Program().parent_path(), Folder().Path());
    std::filesystem::remove(Folder().Path() / TQCIM_PROVIDER_NAME);
  }

  /// Puts a module of the tests' folder in the place of the provider module.
  void InstallProvider(const char* module) const {
    std::filesystem::copy(Program().parent_path() / module, Folder().Path() / TQCIM_PROVIDER_NAME);
  }

  ToolRun RunInstalled(const std::vector<std::string>& arguments) const {
    return RunProgram(Folder().Path() / TQCIM_PROGRAM_NAME, arguments);
  }
};

}  // namespace tqcim::testing
