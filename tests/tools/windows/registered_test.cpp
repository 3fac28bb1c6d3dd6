// The provider as it is registered with COM.
#include "tests/core/windows/registered_server.h"
#include "tests/core/windows/regsvr32.h"
#include "tests/tools/installation.h"

namespace tqcim::testing {
namespace {

class RegisteredProvider : public InstallationTest {
 protected:
  void SetUp() override {
    InstallationTest::SetUp();
    if (AnotherServerIsRegistered(module_)) GTEST_SKIP() << kAnotherServer;
  }
  void TearDown() override {
    if (Exists(kClsidKey)) RunRegsvr32({"/u", module_});
    InstallationTest::TearDown();
  }

  const std::string module_ = (store::LibraryFolder() / TQCIM_PROVIDER_NAME).string();
};

TEST_F(RegisteredProvider, AnswersAsTheFileDoes) {
  ASSERT_EQ(RunRegsvr32({module_}), 0);
  // No provider stands beside this program.
  InstallWithoutProvider();
  for (const std::vector<std::string>& command :
       {std::vector<std::string>{"list", "CIM_Fan", "--format", "json"},
        {"get", "CIM_Processor.DeviceID=\"1\"", "--format", "json"},
        {"classes"}}) {
    const ToolRun expected = Run(command);
    std::vector<std::string> arguments = {"--registered"};
    arguments.insert(arguments.end(), command.begin(), command.end());
    const ToolRun run = RunInstalled(arguments);
    EXPECT_EQ(run.output, expected.output);
    EXPECT_EQ(run.error, expected.error);
    EXPECT_EQ(run.status, 0) << command.front();
  }
}

TEST_F(RegisteredProvider, IsPreferredToTheFile) {
  ASSERT_EQ(RunRegsvr32({module_}), 0);
  InstallWithoutProvider();
  InstallProvider(FAILING_PROVIDER_NAME);
  const std::vector<std::string> arguments = {"list", "CIM_Fan", "--format", "json"};
  EXPECT_EQ(RunInstalled(arguments).output, "[]\n");
  EXPECT_EQ(RunInstalled({"--registered", "list", "CIM_Fan", "--format", "json"}).output,
            Run(arguments).output);
}

TEST_F(RegisteredProvider, IsMissedInOneSentence) {
  const ToolRun run = Run({"--registered", "list", "CIM_Fan"});
  EXPECT_EQ(run.status, 4);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.error,
            "tqcim: the provider module is not registered with COM, or can't be loaded from where "
            "it is registered: REGDB_E_CLASSNOTREG (0x80040154)\n");
}

}  // namespace
}  // namespace tqcim::testing
