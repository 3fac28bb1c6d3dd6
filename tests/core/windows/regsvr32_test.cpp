// Registration and its removal as an administrator does them.
#include "tests/core/windows/regsvr32.h"

#include <gtest/gtest.h>

#include "store/process.h"
#include "tests/core/windows/registered_server.h"

namespace tqcim::testing {
namespace {

class Regsvr32 : public ::testing::Test {
 protected:
  void SetUp() override {
    if (AnotherServerIsRegistered(module)) GTEST_SKIP() << kAnotherServer;
  }

  const std::string module = (store::LibraryFolder() / "tqcim64.dll").string();
};

TEST_F(Regsvr32, RegistersTheModuleAndRemovesBothKeys) {
  EXPECT_EQ(0, RunRegsvr32({module}));
  EXPECT_EQ(Text(""), ReadValue(kClsidKey, nullptr));
  EXPECT_EQ(Text(module), ReadValue(kServerKey, nullptr));
  EXPECT_EQ(Text("Both"), ReadValue(kServerKey, "ThreadingModel"));

  EXPECT_EQ(0, RunRegsvr32({"/u", module}));
  EXPECT_FALSE(Exists(kServerKey));
  EXPECT_FALSE(Exists(kClsidKey));
}

TEST_F(Regsvr32, MayBeRepeatedBothWays) {
  for (int i = 0; i < 2; ++i) EXPECT_EQ(0, RunRegsvr32({module}));
  EXPECT_EQ(Text(module), ReadValue(kServerKey, nullptr));
  for (int i = 0; i < 2; ++i) EXPECT_EQ(0, RunRegsvr32({"/u", module}));
  EXPECT_FALSE(Exists(kClsidKey));
}

}  // namespace
}  // namespace tqcim::testing
