#include "store/process.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace tqcim::store {
namespace {

TEST(Process, AnEnvironmentTextThatIsNoUnicodeIsReadWithReplacementCharacters) {
  ASSERT_TRUE(SetEnvironmentVariableW(L"TQCIM_ODD_TEXT", L"a\xD800z\u00E4"));
  EXPECT_EQ(EnvironmentText("TQCIM_ODD_TEXT"), "a\xEF\xBF\xBDz\xC3\xA4");
  ASSERT_TRUE(SetEnvironmentVariableW(L"TQCIM_ODD_TEXT", nullptr));
  EXPECT_EQ(EnvironmentText("TQCIM_ODD_TEXT"), std::nullopt);
}

}  // namespace
}  // namespace tqcim::store
