// Paths and texts that once were read as something else than what stands there.
#include <gtest/gtest.h>

#include "host/mof_parser.h"
#include "host/object_path.h"

namespace tqcim::host {
namespace {

/// "POSITION: reason" for a path that is refused.
std::string PathErrorOf(std::string_view text) {
  try {
    ParseObjectPath(text);
  } catch (const PathError& error) {
    return std::to_string(error.position()) + ": " + error.what();
  }
  return "no error";
}

TEST(OddObjectPath, ANamespaceThatWouldReadAsAClassWithKeysIsRefused) {
  const std::string reason = ": a namespace can't have this character in its name";
  EXPECT_EQ("8" + reason, PathErrorOf("\\\\HOST\\a=1:C"));
  EXPECT_EQ("2" + reason, PathErrorOf("\\a.b:C"));
  EXPECT_EQ("10" + reason, PathErrorOf("//./root/a'b:C"));
  EXPECT_EQ("10" + reason, PathErrorOf("\\\\.\\root\\a\"b\\c"));
  EXPECT_EQ("7" + reason, PathErrorOf("\\root\\a b:C"));
  EXPECT_EQ("a.b=c", ParseObjectPath("\\\\a.b=c\\root:C").server) << "a server may";
}

TEST(OddObjectPath, ANumberHasOneSign) {
  const std::string reason = "4: a number of at most 64 bits should stand here";
  EXPECT_EQ(reason, PathErrorOf("C.k=+-5"));
  EXPECT_EQ(reason, PathErrorOf("C.k=++5"));
  EXPECT_EQ(reason, PathErrorOf("C.k=-+5"));
  EXPECT_EQ(reason, PathErrorOf("C.k=+"));
}

TEST(OddMof, AWordLongerThanAnyNameIsRefusedInAShortSentence) {
  const auto error = [](const std::string& text) -> std::string {
    try {
      MofDocument document;
      ParseMof({"x.mof", text}, document);
    } catch (const MofError& refusal) {
      return refusal.what();
    }
    return "no error";
  };
  const std::string reason = "a word of more than 255 characters";
  EXPECT_EQ("no error", error("class " + std::string(255, 'A') + " {};"));
  EXPECT_EQ("x.mof:1:7: " + reason, error("class " + std::string(256, 'A') + " {};"));
  EXPECT_EQ("x.mof:1:22: " + reason, error("class A { real32 P = 1." + std::string(300, '0')));
  EXPECT_EQ("x.mof:1:21: " + reason, error("class A { uint8 P = " + std::string(5000, '1')));
}

}  // namespace
}  // namespace tqcim::host
