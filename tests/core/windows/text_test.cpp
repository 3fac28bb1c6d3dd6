#include "core/text.h"

#include "tests/support/handler_test.h"
#include "tests/support/recorded_put.h"

namespace tqcim::testing {
namespace {

using AnsiCodePageTest = BalancedTest;

TEST_F(AnsiCodePageTest, Utf8TextsOfTheStoreAreDecodedWithTheAnsiCodePage) {
  if (GetACP() != 1252) GTEST_SKIP() << "written for code page 1252, this is " << GetACP();
  EXPECT_EQ("caf\\u00C3\\u00A9", Printable(NarrowToBstr("caf\xC3\xA9").get()));
  EXPECT_STREQ("caf\xE9", BstrToNarrow(OLESTR("caf\xE9")).get());
}

}  // namespace
}  // namespace tqcim::testing
