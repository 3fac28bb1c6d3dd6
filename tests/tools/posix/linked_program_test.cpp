// The program behind a link in a folder of commands, as packages install it.
#include <gtest/gtest.h>

#include "tests/tools/installation.h"
#include "tests/tools/store_files.h"

namespace tqcim::testing {
namespace {

using LinkedProgram = InstallationTest;

TEST_F(LinkedProgram, FindsItsModulesAndItsConfigurationWhereItLies) {
  InstallWithoutProvider();
  InstallProvider(TQCIM_PROVIDER_NAME);
  Write("tqcim.json", R"({"source": "store-file:machine.json"})");
  Write("machine.json", StoreFile(kMemory));
  const TemporaryFolder commands;
  const std::filesystem::path link = commands.Path() / "health-of-this-server";
  std::filesystem::create_symlink(Folder().Path() / TQCIM_PROGRAM_NAME, link);
  const auto output = commands.Path() / "output";
  EXPECT_EQ(0, RunChild(link, {"list", "VORN_System"}, output, commands.Path() / "error"));
  EXPECT_TRUE(
      ContentsOf(output).starts_with("VORN_System: 1 instance, from the store file machine.json\n"))
      << ContentsOf(output);
}

using LinkedConfiguration = InstallationTest;

TEST_F(LinkedConfiguration, WhoseFileIsGoneIsNoneThatLetsTheSampleAnswer) {
  InstallWithoutProvider();
  InstallProvider(TQCIM_PROVIDER_NAME);
  const std::filesystem::path link = Folder().Path() / "tqcim.json";
  std::filesystem::create_symlink("gone.json", link);
  const ToolRun run = RunInstalled({"health"});
  EXPECT_EQ(run.status, 3);
  EXPECT_EQ(run.output, "UNKNOWN: " + link.string() + ": no such file\n");
}

}  // namespace
}  // namespace tqcim::testing
