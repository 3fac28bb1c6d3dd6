/// The program with its libraries in the test's own folder.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tests/tools/tool_test.h"

namespace tqcim::testing {

class InstallationTest : public ToolTest {
 protected:
  /// Copies the program and the libraries, without the provider module.
  void InstallWithoutProvider() const {
    namespace fs = std::filesystem;
    fs::copy(Program(), Folder().Path());
    for (const auto& entry : fs::directory_iterator(Program().parent_path())) {
      const std::string extension = entry.path().extension().string();
      const std::string name = entry.path().stem().string();
      const bool library = extension == ".so" || extension == ".dll";
      const bool needed =
          name.find("tq") != std::string::npos && entry.path().filename() != TQCIM_PROVIDER_NAME;
      if (library && needed) fs::copy(entry.path(), Folder().Path());
    }
  }

  /// Puts a module of the tests' folder in the place of the provider module.
  void InstallProvider(const char* module) const {
    std::filesystem::copy(Program().parent_path() / module, Folder().Path() / TQCIM_PROVIDER_NAME);
  }

  ToolRun RunInstalled(const std::vector<std::string>& arguments) const {
    const std::filesystem::path output = Folder().Path() / "output";
    const std::filesystem::path error = Folder().Path() / "error";
    const int status = RunChild(Folder().Path() / TQCIM_PROGRAM_NAME, arguments, output, error);
    return {status, ContentsOf(output), ContentsOf(error)};
  }
};

}  // namespace tqcim::testing
