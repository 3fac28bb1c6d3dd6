// Whatever is wrong with what the program is given, it says so in one sentence on standard error,
// writes nothing to standard output, and ends with the documented status.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/tools/tool_test.h"

namespace tqcim::testing {
namespace {

constexpr int kNotFound = 1;
constexpr int kUsage = 2;
constexpr int kBadInput = 3;

using BadInput = ToolTest;

/// One line that begins with the program's name.
::testing::AssertionResult IsOneSentence(const std::string& text) {
  const auto lines = std::count(text.begin(), text.end(), '\n');
  if (text.starts_with("tqcim: ") && lines == 1 && text.ends_with('\n')) {
    return ::testing::AssertionSuccess();
  }
  return ::testing::AssertionFailure() << "standard error was:\n" << text;
}

TEST_F(BadInput, AnUnknownClassBringsTheNearestNames) {
  const ToolRun run = Run({"list", "vorn_chasis"});
  EXPECT_EQ(run.status, kNotFound);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.error,
            "tqcim: there is no class 'vorn_chasis' with instances; did you mean VORN_Chassis?\n");
}

TEST_F(BadInput, PartOfAClassNameBringsTheNamesThatHaveIt) {
  const ToolRun run = Run({"list", "physicalmem"});
  EXPECT_EQ(run.status, kNotFound);
  EXPECT_EQ(run.error,
            "tqcim: there is no class 'physicalmem' with instances; did you mean "
            "CIM_PhysicalMemory?\n");
}

TEST_F(BadInput, AClassUnlikeAnyOtherBringsTheCommandThatShowsAll) {
  const ToolRun run = Run({"list", "Unicorn"});
  EXPECT_EQ(run.status, kNotFound);
  EXPECT_EQ(run.error,
            "tqcim: there is no class 'Unicorn' with instances; tqcim classes shows them all\n");
}

TEST_F(BadInput, AClassThatOnlyOthersDeriveFromHasNoInstances) {
  const ToolRun run = Run({"list", "CIM_ManagedSystemElement"});
  EXPECT_EQ(run.status, kNotFound);
  EXPECT_EQ(run.output, "");
  EXPECT_TRUE(IsOneSentence(run.error));
}

TEST_F(BadInput, APathOfNoInstanceIsNotFound) {
  const ToolRun run = Run({"get", "CIM_Processor.DeviceID=\"77\""});
  EXPECT_EQ(run.status, kNotFound);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.error, "tqcim: no instance is named by 'CIM_Processor.DeviceID=\"77\"'\n");
}

TEST_F(BadInput, APathOfAnUnknownClassBringsTheNearestNames) {
  const ToolRun run = Run({"get", "CIM_Procesor.DeviceID=\"0\""});
  EXPECT_EQ(run.status, kNotFound);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(
      run.error,
      "tqcim: there is no class 'CIM_Procesor' with instances; did you mean CIM_Processor?\n");
}

TEST_F(BadInput, APathThatDoesNotParseIsToldWithItsPlace) {
  const ToolRun run = Run({"get", "CIM_Processor.DeviceID=\"0"});
  EXPECT_EQ(run.status, kUsage);
  EXPECT_EQ(run.output, "");
  EXPECT_TRUE(IsOneSentence(run.error));
  EXPECT_NE(run.error.find("'CIM_Processor.DeviceID=\"0', character 24: "), std::string::npos)
      << run.error;
}

TEST_F(BadInput, APathWithoutKeysNamesNoInstance) {
  for (const char* path : {"CIM_Processor", "\\\\.\\root\\cimv2\\vorn", ""}) {
    const ToolRun run = Run({"get", path});
    EXPECT_EQ(run.status, kUsage) << path;
    EXPECT_EQ(run.output, "");
    EXPECT_TRUE(IsOneSentence(run.error));
  }
}

TEST_F(BadInput, APathThatLeadsElsewhereIsRefused) {
  const ToolRun run = Run({"get", "\\\\.\\root\\cimv2:CIM_Processor.DeviceID=\"0\""});
  EXPECT_EQ(run.status, kUsage);
  EXPECT_EQ(run.output, "");
  EXPECT_TRUE(IsOneSentence(run.error));
}

TEST_F(BadInput, AStoreFileThatIsNotThereIsNamed) {
  for (const char* command : {"classes", "list", "get", "check"}) {
    std::vector<std::string> arguments = {command};
    if (arguments[0] == "list") arguments = {"list", "VORN_System", "--store", "ab\u00E7ent.json"};
    if (arguments[0] == "get") arguments = {"get", "A.B=1", "--store", "ab\u00E7ent.json"};
    if (arguments[0] == "classes") arguments = {"classes", "--store", "ab\u00E7ent.json"};
    if (arguments[0] == "check") arguments = {"store", "check", "ab\u00E7ent.json"};
    const ToolRun run = Run(arguments);
    EXPECT_EQ(run.status, kBadInput) << command;
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.error, "tqcim: ab\u00E7ent.json: no such file\n");
  }
}

TEST_F(BadInput, ADamagedStoreFileIsNamedWithItsLine) {
  const std::string file = Write("damaged.json",
                                 "{\n"
                                 "  \"format\": \"tqcim-store\",\n"
                                 "  \"version\": 1,\n"
                                 "  \"objects\": [\n"
                                 "    {\"oid\": 1, \"type\": \"system\", \"colour\": \"red\"}\n"
                                 "  ]\n"
                                 "}\n");
  const ToolRun run = Run({"list", "VORN_System", "--store", file});
  EXPECT_EQ(run.status, kBadInput);
  EXPECT_EQ(run.output, "");
  EXPECT_TRUE(IsOneSentence(run.error));
  EXPECT_TRUE(run.error.starts_with("tqcim: " + file + ":5: ")) << run.error;
  EXPECT_NE(run.error.find("colour"), std::string::npos) << run.error;
}

TEST_F(BadInput, ADamagedFirmwareTableIsNamed) {
  const std::string file = Write("dump.bin", std::string(64, '\xA5'));
  for (const auto& command : {std::vector<std::string>{"list", "VORN_System"}, {"classes"}}) {
    std::vector<std::string> arguments = command;
    arguments.insert(arguments.end(), {"--firmware-table", file});
    const ToolRun run = Run(arguments);
    EXPECT_EQ(run.status, kBadInput);
    EXPECT_EQ(run.output, "");
    EXPECT_TRUE(IsOneSentence(run.error));
    EXPECT_TRUE(run.error.starts_with("tqcim: " + file + ": ")) << run.error;
  }
}

TEST_F(BadInput, ABadChoiceInTheEnvironmentIsToldInsteadOfShowingTheSample) {
  SetEnvironment("TQCIM_SOURCE", "store-file:absent.json");
  const ToolRun run = Run({"classes"});
  EXPECT_EQ(run.status, kBadInput);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.error, "tqcim: absent.json: no such file (chosen by TQCIM_SOURCE or tqcim.json)\n");
}

TEST_F(BadInput, WhatAnArgumentHoldsNeverReachesTheTerminalAsACommand) {
  const ToolRun run = Run({"list", "\x1B[31m\u009B\n"});
  EXPECT_EQ(run.status, kNotFound);
  EXPECT_EQ(run.error,
            "tqcim: there is no class '\\x1B[31m\\x9B\\x0A' with instances; tqcim classes shows "
            "them all\n");
}

struct CommandLine {
  const char* name;
  std::vector<std::string> arguments;
  const char* error;
};

class BadCommandLine : public ToolTest, public ::testing::WithParamInterface<CommandLine> {};

TEST_P(BadCommandLine, IsAUsageError) {
  const ToolRun run = Run(GetParam().arguments);
  EXPECT_EQ(run.status, kUsage);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.error, GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(
    All, BadCommandLine,
    ::testing::Values(
        CommandLine{"NoCommand", {}, "tqcim: A subcommand is required (see tqcim --help)\n"},
        CommandLine{"UnknownCommand",
                    {"lists"},
                    "tqcim: lists is not expected after tqcim (see tqcim --help)\n"},
        CommandLine{"UnknownOption",
                    {"list", "VORN_System", "--nope"},
                    "tqcim: --nope is not expected after tqcim list (see tqcim list --help)\n"},
        CommandLine{"NoClass", {"list"}, "tqcim: CLASS is required (see tqcim list --help)\n"},
        CommandLine{"TwoClasses",
                    {"list", "VORN_System", "VORN_Chassis"},
                    "tqcim: VORN_Chassis is not expected after tqcim list (see tqcim list "
                    "--help)\n"},
        CommandLine{"UnknownFormat",
                    {"list", "VORN_System", "--format", "xml"},
                    "tqcim: --format: there is no format xml, only table, json and csv (see tqcim "
                    "list --help)\n"},
        CommandLine{"EmptySource",
                    {"classes", "--store", ""},
                    "tqcim: --store: names no file (see tqcim classes --help)\n"},
        CommandLine{"EmptyOutput",
                    {"export", "-o", ""},
                    "tqcim: --output: names no file (see tqcim export --help)\n"},
        CommandLine{"FlagWithAValue",
                    {"classes", "--firmware=false"},
                    "tqcim: firmware was given a disallowed flag override (see tqcim classes "
                    "--help)\n"},
        CommandLine{"TwoSources",
                    {"classes", "--store", "a.json", "--firmware"},
                    "tqcim: --store excludes --firmware (see tqcim classes --help)\n"},
        CommandLine{"NoStoreCommand",
                    {"store"},
                    "tqcim: A subcommand is required (see tqcim store --help)\n"},
        CommandLine{"NoTableToConvert",
                    {"store", "convert", "-o", "a.json"},
                    "tqcim: --firmware-table or --firmware is required (see tqcim store convert "
                    "--help)\n"},
        CommandLine{"NoFileToConvertTo",
                    {"store", "convert", "--firmware-table", "a.bin"},
                    "tqcim: --output is required (see tqcim store convert --help)\n"}),
    [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace tqcim::testing
