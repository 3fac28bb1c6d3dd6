#include <gtest/gtest.h>

#include <sstream>

#include "tests/tools/tool_test.h"

namespace tqcim::testing {
namespace {

struct HelpCall {
  const char* name;
  std::vector<std::string> arguments;
  const char* usage;
};

class Help : public ToolTest, public ::testing::WithParamInterface<HelpCall> {};

TEST_P(Help, TellsUsageAndExamplesInEightyColumns) {
  const ToolRun run = Run(GetParam().arguments);
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.error, "");
  EXPECT_NE(run.output.find(GetParam().usage), std::string::npos) << run.output;
  EXPECT_NE(run.output.find("\nExamples:\n  tqcim "), std::string::npos) << run.output;
  std::istringstream lines(run.output);
  for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 80U) << line;
}

INSTANTIATE_TEST_SUITE_P(
    All, Help,
    ::testing::Values(
        HelpCall{"Program", {"--help"}, "\nUsage: tqcim [OPTIONS] SUBCOMMAND\n"},
        HelpCall{"ShortOption", {"-h"}, "\nUsage: tqcim [OPTIONS] SUBCOMMAND\n"},
        HelpCall{"Classes", {"classes", "--help"}, "\nUsage: tqcim classes [OPTIONS]\n"},
        HelpCall{"List", {"list", "--help"}, "\nUsage: tqcim list [OPTIONS] CLASS\n"},
        HelpCall{"Get", {"get", "--help"}, "\nUsage: tqcim get [OPTIONS] PATH\n"},
        HelpCall{"Health", {"health", "--help"}, "\nUsage: tqcim health [OPTIONS]\n"},
        HelpCall{"Export", {"export", "--help"}, "\nUsage: tqcim export [OPTIONS]\n"},
        HelpCall{"Store", {"store", "--help"}, "\nUsage: tqcim store [OPTIONS] SUBCOMMAND\n"},
        HelpCall{
            "Convert", {"store", "convert", "--help"}, "\nUsage: tqcim store convert [OPTIONS]\n"},
        HelpCall{
            "Check", {"store", "check", "--help"}, "\nUsage: tqcim store check [OPTIONS] FILE\n"}),
    [](const auto& test) { return test.param.name; });

using ProgramHelp = ToolTest;

TEST_F(ProgramHelp, ListsEveryExitStatus) {
  EXPECT_NE(
      Run({"--help"})
          .output.find(
              "\nExit status (tqcim health has its own):\n"
              "  0  fine\n"
              "  1  there is no such class or instance\n"
              "  2  the command line or an object path on it is not valid\n"
              "  3  a store file, firmware table or other source can't be read or is damaged\n"
              "  4  the provider can't be loaded or answered with an error\n"
              "  5  the output can't be written\n"),
      std::string::npos);
}

TEST_F(ProgramHelp, VersionIsOneLine) {
  const ToolRun run = Run({"--version"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.output, "tqcim 0.1.0\n");
  EXPECT_EQ(run.error, "");
}

}  // namespace
}  // namespace tqcim::testing
