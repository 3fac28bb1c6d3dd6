// Whatever keeps `health` from a verdict is UNKNOWN, exit status 3: monitoring systems would take
// another number for a verdict.
#include <gtest/gtest.h>

#include "tests/tools/installation.h"
#include "tests/tools/store_files.h"

namespace tqcim::testing {
namespace {

constexpr int kUnknown = 3;

using HealthFailures = InstallationTest;

TEST_F(HealthFailures, OfTheCommandLineAreTheFirstLineOfTheOutput) {
  const std::pair<std::vector<std::string>, const char*> calls[] = {
      {{"health", "--nope"}, "UNKNOWN: --nope is not expected after tqcim health"},
      {{"health", "VORN_System"}, "UNKNOWN: VORN_System is not expected after tqcim health"},
      {{"health", "--store"}, "UNKNOWN: --store: 1 required FILE missing"},
      {{"health", "--format", "csv"},
       "UNKNOWN: --format: there is no format csv, only table and json"},
      {{"health", "--store", "a.json", "--firmware"}, "UNKNOWN: --store excludes --firmware"},
  };
  for (const auto& [arguments, sentence] : calls) {
    const ToolRun run = Run(arguments);
    EXPECT_EQ(run.status, kUnknown);
    EXPECT_EQ(run.output, std::string(sentence) + " (see tqcim health --help)\n");
    EXPECT_EQ(run.error, "");
  }
}

TEST_F(HealthFailures, OfASourceAreTheFirstLineOfTheOutput) {
  const ToolRun absent = Run({"health", "--store", "absent.json"});
  EXPECT_EQ(absent.status, kUnknown);
  EXPECT_EQ(absent.output, "UNKNOWN: absent.json: no such file\n");
  EXPECT_EQ(absent.error, "");
  const std::string dump = Write("dump.bin", std::string(64, '\xA5'));
  const ToolRun damaged = Run({"health", "--firmware-table", dump});
  EXPECT_EQ(damaged.status, kUnknown);
  EXPECT_TRUE(damaged.output.starts_with("UNKNOWN: " + dump + ": ")) << damaged.output;
  EXPECT_EQ(damaged.error, "");
}

TEST_F(HealthFailures, InJsonAreOnStandardErrorAlone) {
  for (const auto& arguments :
       {std::vector<std::string>{"health", "--format", "json", "--store", "absent.json"},
        {"health", "--format", "json", "--nope"},
        {"health", "--format=json", "--store"},
        {"health", "--store", "--format", "json"},
        {"health", "--format", "json", "--format", "json"}}) {
    const ToolRun run = Run(arguments);
    EXPECT_EQ(run.status, kUnknown);
    EXPECT_EQ(run.output, "");
    EXPECT_TRUE(run.error.starts_with("tqcim: ")) << run.error;
    EXPECT_EQ(run.error.find('\n'), run.error.size() - 1) << run.error;
  }
}

TEST_F(HealthFailures, NeverReachTheTerminalAsACommand) {
  const ToolRun run = Run({"health", "\x1B[31m\n"});
  EXPECT_EQ(run.status, kUnknown);
  EXPECT_TRUE(run.output.starts_with("UNKNOWN: \\x1B[31m\\x0A is not expected")) << run.output;
}

TEST_F(HealthFailures, OfTheProviderModuleAreTold) {
  InstallWithoutProvider();
  const ToolRun run = RunInstalled({"health"});
  EXPECT_EQ(run.status, kUnknown);
  EXPECT_TRUE(run.output.starts_with("UNKNOWN: the provider module cannot be loaded: "))
      << run.output;
  EXPECT_EQ(run.error, "");
}

TEST_F(HealthFailures, OfOneClassAreTold) {
  InstallWithoutProvider();
  InstallProvider(FAILING_PROVIDER_NAME);
  const ToolRun run = RunInstalled({"health", "--store", Write("store.json", StoreFile(""))});
  EXPECT_EQ(run.status, kUnknown);
  EXPECT_EQ(run.output, "UNKNOWN: CIM_FRU: the provider answered WBEM_E_FAILED (0x80041001)\n");
  EXPECT_EQ(run.error, "");
}

}  // namespace
}  // namespace tqcim::testing
