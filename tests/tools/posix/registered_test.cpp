// Where there is no registry, there is no registered provider.
#include "tests/tools/tool_test.h"

namespace tqcim::testing {
namespace {

using RegisteredProvider = ToolTest;

TEST_F(RegisteredProvider, IsAMistakeWithoutARegistry) {
  const ToolRun run = Run({"--registered", "list", "CIM_Fan"});
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.error,
            "tqcim: --registered: COM registration exists on Windows only (see tqcim list "
            "--help)\n");
}

}  // namespace
}  // namespace tqcim::testing
