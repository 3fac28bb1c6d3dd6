#include "core/text.h"

#include "tests/support/handler_test.h"
#include "tests/support/recorded_put.h"

namespace tqcim::testing {
namespace {

using AnsiCodePageTest = BalancedTest;

TEST_F(AnsiCodePageTest, TheAnsiCodePageIsUtf8) {
  EXPECT_EQ("caf\\u00E9", Printable(NarrowToBstr("caf\xC3\xA9").get()));
  EXPECT_STREQ("caf\xC3\xA9", BstrToNarrow(OLESTR("caf\xE9")).get());
}

}  // namespace
}  // namespace tqcim::testing
