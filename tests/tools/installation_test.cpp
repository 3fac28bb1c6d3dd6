// The program in a folder of its own: what it needs beside it, and the configuration there.
#include <gtest/gtest.h>

#include <string>

#include "tests/tools/installation.h"
#include "tests/tools/store_files.h"

namespace tqcim::testing {
namespace {

using Installation = InstallationTest;

TEST_F(Installation, WithoutTheProviderModuleIsAProviderFailure) {
  InstallWithoutProvider();
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
  InstallWithoutProvider();
  InstallProvider(TQCIM_PROVIDER_NAME);
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
  InstallWithoutProvider();
  InstallProvider(TQCIM_PROVIDER_NAME);
  Write("tqcim.json", R"({"source": "store-file:absent.json"})");
  const std::string file = Write("machine.json", StoreFile(kMemory));
  EXPECT_EQ(RunInstalled({"classes"}).status, 3);
  EXPECT_EQ(RunInstalled({"classes", "--store", file}).status, 0);
  SetEnvironment("TQCIM_SOURCE", ("store-file:" + file).c_str());
  EXPECT_EQ(RunInstalled({"classes"}).status, 0);
}

TEST_F(Installation, TellsTheLineOfABadConfiguration) {
  InstallWithoutProvider();
  InstallProvider(TQCIM_PROVIDER_NAME);
  Write("tqcim.json", "{\n  \"sauce\": \"firmware\"\n}\n");
  const ToolRun run = RunInstalled({"classes"});
  EXPECT_EQ(run.status, 3);
  EXPECT_EQ(run.output, "");
  EXPECT_NE(run.error.find("tqcim.json:2: "), std::string::npos) << run.error;
  EXPECT_EQ(run.error.find('\n'), run.error.size() - 1) << run.error;
}

}  // namespace
}  // namespace tqcim::testing
