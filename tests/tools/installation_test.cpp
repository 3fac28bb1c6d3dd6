// The program in a folder of its own: what it needs beside it, and the configuration there.
#include <gtest/gtest.h>

#include <string>

#include "tests/tools/store_files.h"
#include "tests/tools/tool_test.h"

namespace tqcim::testing {
namespace {

namespace fs = std::filesystem;

class Installation : public ToolTest {
 protected:
  /// Copies the program and the libraries, with or without the provider module.
  void Install(bool with_provider) const {
    fs::copy(Program(), Folder().Path());
    for (const auto& entry : fs::directory_iterator(Program().parent_path())) {
      const std::string extension = entry.path().extension().string();
      const std::string name = entry.path().stem().string();
      const bool library = extension == ".so" || extension == ".dll";
      const bool provider = name.ends_with("tqcim64");
      const bool needed = provider ? with_provider : name.find("tq") != std::string::npos;
      if (library && needed) fs::copy(entry.path(), Folder().Path());
    }
  }

  ToolRun RunInstalled(const std::vector<std::string>& arguments) const {
    const fs::path output = Folder().Path() / "output";
    const fs::path error = Folder().Path() / "error";
    const int status = RunChild(Folder().Path() / TQCIM_PROGRAM_NAME, arguments, output, error);
    return {status, ContentsOf(output), ContentsOf(error)};
  }
};

TEST_F(Installation, WithoutTheProviderModuleIsAProviderFailure) {
  Install(false);
  for (const auto& arguments : {std::vector<std::string>{"classes"},
                                {"list", "VORN_System"},
                                {"get", "VORN_System.Name=\"x\""}}) {
    const ToolRun run = RunInstalled(arguments);
    EXPECT_EQ(run.status, 4);
    EXPECT_EQ(run.output, "");
    EXPECT_TRUE(run.error.starts_with("tqcim: the provider module cannot be loaded: "))
        << run.error;
    EXPECT_EQ(run.error.find('\n'), run.error.size() - 1) << run.error;
  }
}

TEST_F(Installation, ServesTheSourceOfItsConfiguration) {
  Install(true);
  Write("tqcim.json", R"({"source": "store-file:machine.json"})");
  Write("machine.json", StoreFile(kMemory));
  const ToolRun run = RunInstalled({"classes", "--format", "csv"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.error, "");
  EXPECT_NE(run.output.find("\r\nCIM_PhysicalMemory,3,Error\r\n"), std::string::npos) << run.output;
  EXPECT_TRUE(
      RunInstalled({"list", "VORN_System"})
          .output.starts_with("VORN_System: 1 instance, from the store file machine.json\n"));
}

TEST_F(Installation, PutsTheUsersChoiceBeforeItsConfiguration) {
  Install(true);
  Write("tqcim.json", R"({"source": "store-file:absent.json"})");
  const std::string file = Write("machine.json", StoreFile(kMemory));
  EXPECT_EQ(RunInstalled({"classes"}).status, 3);
  EXPECT_EQ(RunInstalled({"classes", "--store", file}).status, 0);
  SetEnvironment("TQCIM_SOURCE", ("store-file:" + file).c_str());
  EXPECT_EQ(RunInstalled({"classes"}).status, 0);
}

TEST_F(Installation, TellsTheLineOfABadConfiguration) {
  Install(true);
  Write("tqcim.json", "{\n  \"sauce\": \"firmware\"\n}\n");
  const ToolRun run = RunInstalled({"classes"});
  EXPECT_EQ(run.status, 3);
  EXPECT_EQ(run.output, "");
  EXPECT_NE(run.error.find("tqcim.json:2: "), std::string::npos) << run.error;
  EXPECT_EQ(run.error.find('\n'), run.error.size() - 1) << run.error;
}

}  // namespace
}  // namespace tqcim::testing
