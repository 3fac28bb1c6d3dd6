#include "core/object_path.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/recorded_put.h"

namespace tqcim::testing {
namespace {

TEST(ObjectPath, FillsInTextsAndNumbers) {
  EXPECT_EQ("VORN_X.Name=\"a\",ID=\"-12\",Text=\"b\"",
            Printable(FormatObjectPath(OLESTR("VORN_X.Name=\"%s\",ID=\"%d\",Text=\"%s\""),
                                       {OLESTR("a"), -12, OLESTR("b")})
                          .text));
  EXPECT_EQ("plain", Printable(FormatObjectPath(OLESTR("plain"), {}).text));
}

TEST(ObjectPath, ANullTextIsNothing) {
  EXPECT_EQ(
      "[]",
      Printable(FormatObjectPath(OLESTR("[%s]"), {static_cast<const OLECHAR*>(nullptr)}).text));
}

TEST(ObjectPath, IsCutAt255Characters) {
  const std::basic_string<OLECHAR> longText(300, OLESTR('x'));
  const ObjectPath path = FormatObjectPath(OLESTR("%s!"), {longText.c_str()});
  EXPECT_EQ(std::string(255, 'x'), Printable(path.text));
}

TEST(ObjectPath, Of255CharactersIsWhole) {
  const std::basic_string<OLECHAR> text(254, OLESTR('x'));
  const ObjectPath path = FormatObjectPath(OLESTR("%s!"), {text.c_str()});
  EXPECT_EQ(std::string(254, 'x') + "!", Printable(path.text));
}

}  // namespace
}  // namespace tqcim::testing
