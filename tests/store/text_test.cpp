#include "store/text.h"

#include <gtest/gtest.h>

namespace tqcim::store {
namespace {

TEST(Text, EveryLengthOfUtf8IsConverted) {
  EXPECT_EQ(Utf16FromUtf8("A\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"), u"A\u00E4\u20AC\xD83D\xDE00");
  EXPECT_EQ(Utf8FromUtf16(u"A\u00E4\u20AC\xD83D\xDE00"), "A\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80");
  EXPECT_EQ(Utf16FromUtf8(""), u"");
  EXPECT_TRUE(IsUtf8("A\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"));
  EXPECT_TRUE(IsUtf8(""));
}

TEST(Text, MalformedUtf8IsRefused) {
  const char* const malformed[] = {
      "\x80",              // a continuation alone
      "\xC3",              // cut off
      "\xC3 ",             // no continuation
      "\xC0\x80",          // NUL in two bytes
      "\xC1\xBF",          // overlong in two bytes
      "\xE0\x9F\xBF",      // overlong in three
      "\xF0\x8F\xBF\xBF",  // overlong in four
      "\xED\xA0\x80",      // a high surrogate
      "\xED\xBF\xBF",      // a low surrogate
      "\xF4\x90\x80\x80",  // past U+10FFFF
      "\xF5\x80\x80\x80",  // a lead that begins nothing
      "\xFF",
  };
  for (const char* text : malformed) {
    EXPECT_FALSE(IsUtf8(text)) << text;
    EXPECT_EQ(Utf16FromUtf8(text), std::nullopt) << text;
  }
}

TEST(Text, TheLastOfEachLengthIsConverted) {
  EXPECT_EQ(Utf16FromUtf8("\x7F\xDF\xBF\xEF\xBF\xBF\xF4\x8F\xBF\xBF"),
            u"\x7F\u07FF\uFFFF\xDBFF\xDFFF");
}

TEST(Text, UnpairedSurrogatesBecomeReplacementCharacters) {
  EXPECT_EQ(Utf8FromUtf16(u"\xD83Dx"), "\xEF\xBF\xBDx");
  EXPECT_EQ(Utf8FromUtf16(u"x\xDE00"), "x\xEF\xBF\xBD");
  EXPECT_EQ(Utf8FromUtf16(u"\xD83D"), "\xEF\xBF\xBD");
}

TEST(Text, QuotedIsShortAsciiOnOneLine) {
  EXPECT_EQ(Quoted("tape"), R"("tape")");
  EXPECT_EQ(Quoted("a\n\"\xC3\xA4\xFF"), R"("a\n\"\u00e4\ufffd")");
  EXPECT_EQ(Quoted(std::string(60, 'x')), '"' + std::string(60, 'x') + '"');
  EXPECT_EQ(Quoted(std::string(61, 'x')), '"' + std::string(60, 'x') + "...\"");
}

}  // namespace
}  // namespace tqcim::store
