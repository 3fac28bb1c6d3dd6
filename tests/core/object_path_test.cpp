#include "core/object_path.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/recorded_put.h"

namespace tqcim::testing {
namespace {

std::string TextOf(const ObjectPath& path) {
  return Printable(std::basic_string<OLECHAR>(path.View()).c_str());
}

TEST(ObjectPath, FillsInTextsAndNumbers) {
  EXPECT_EQ("VORN_X.Name=\"a\",ID=\"-12\",Text=\"b\"",
            TextOf(FormatObjectPath(OLESTR("VORN_X.Name=\"%s\",ID=\"%d\",Text=\"%s\""),
                                    {OLESTR("a"), -12, OLESTR("b")})));
  EXPECT_EQ("plain", TextOf(FormatObjectPath(OLESTR("plain"), {})));
  EXPECT_EQ("-2147483648", TextOf(FormatObjectPath(OLESTR("%d"), {INT32_MIN})));
}

TEST(ObjectPath, ANullTextIsNothing) {
  EXPECT_EQ("[]", TextOf(FormatObjectPath(OLESTR("[%s]"), {static_cast<const OLECHAR*>(nullptr)})));
}

TEST(ObjectPath, IsCutAt255Characters) {
  const std::basic_string<OLECHAR> longText(300, OLESTR('x'));
  EXPECT_EQ(std::string(255, 'x'), TextOf(FormatObjectPath(OLESTR("%s!"), {longText.c_str()})));
  const std::basic_string<OLECHAR> text(252, OLESTR('x'));
  EXPECT_EQ(std::string(252, 'x') + "123",
            TextOf(FormatObjectPath(OLESTR("%s%d!"), {text.c_str(), 12345})));
  EXPECT_EQ(std::string(252, 'x') + "abc",
            TextOf(FormatObjectPath(OLESTR("%sabcd"), {text.c_str()})));
}

TEST(ObjectPath, Of255CharactersIsWhole) {
  const std::basic_string<OLECHAR> text(254, OLESTR('x'));
  EXPECT_EQ(std::string(254, 'x') + "!", TextOf(FormatObjectPath(OLESTR("%s!"), {text.c_str()})));
}

}  // namespace
}  // namespace tqcim::testing
