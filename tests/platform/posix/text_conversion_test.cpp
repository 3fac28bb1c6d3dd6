// Where this platform's conversions are more definite than the other's.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "platform/wmi.h"
#include "tests/platform/text_conversion_test.h"

namespace {

TEST(TextConversion, TheAnsiCodePageIsUtf8) {
  EXPECT_EQ(u"\u00E9\U0001F600", Widen(CP_ACP, "\xC3\xA9\xF0\x9F\x98\x80"));
  char narrow[8];
  EXPECT_EQ(6, WideCharToMultiByte(CP_ACP, 0, u"\u00E9\U0001F600", 3, narrow, 8, nullptr, nullptr));
  EXPECT_EQ("\xC3\xA9\xF0\x9F\x98\x80", std::string_view(narrow, 6));
}

// Unicode 15.0, section 3.9, tables 3-8 to 3-11.
TEST(TextConversion, EachMaximalSubpartIsReplacedOnce) {
  EXPECT_EQ(u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA",
            Widen(CP_UTF8, "\xC0\xAF\xE0\x80\xBF\xF0\x81\x82\x41"));
  EXPECT_EQ(u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA",
            Widen(CP_UTF8, "\xED\xA0\x80\xED\xBF\xBF\xED\xAF\x41"));
  EXPECT_EQ(u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA\uFFFD\uFFFDB",
            Widen(CP_UTF8, "\xF4\x91\x92\x93\xFF\x41\x80\xBF\x42"));
  EXPECT_EQ(u"\uFFFD\uFFFD\uFFFD\uFFFDA", Widen(CP_UTF8, "\xE1\x80\xE2\xF0\x91\x92\xF1\xBF\x41"));
}

// Unicode 15.0, section 3.9, table 3-7.
TEST(TextConversion, ASecondByteBeyondTheBoundsOfItsLeadIsNoPartOfTheCharacter) {
  constexpr const char* kBelow[] = {"\xC2\x7F", "\xDF\x7F", "\xE1\x7F", "\xEC\x7F", "\xED\x7F",
                                    "\xEE\x7F", "\xEF\x7F", "\xF1\x7F", "\xF3\x7F", "\xF4\x7F"};
  for (const char* text : kBelow) EXPECT_EQ(u"\uFFFD\x7F", Widen(CP_UTF8, text)) << text;
  constexpr const char* kOthers[] = {"\xC2\xC0", "\xDF\xC0", "\xE0\x9F", "\xE0\xC0", "\xE1\xC0",
                                     "\xEC\xC0", "\xED\xA0", "\xEE\xC0", "\xEF\xC0", "\xF0\x8F",
                                     "\xF0\xC0", "\xF1\xC0", "\xF3\xC0", "\xF4\x90"};
  for (const char* text : kOthers) EXPECT_EQ(u"\uFFFD\uFFFD", Widen(CP_UTF8, text)) << text;
}

TEST(TextConversion, ATextThatEndsTooSoonIsReplaced) {
  EXPECT_EQ(u"\uFFFD", Widen(CP_UTF8, "\xE2\x82"));
  EXPECT_EQ(u"\uFFFD", Widen(CP_UTF8, "\xF0\x9F\x98"));
  EXPECT_EQ(u"\uFFFD", Widen(CP_UTF8, "\xC3"));
  EXPECT_EQ(u"\uFFFD", Widen(CP_UTF8, std::string_view("\xE2\x82\xAC", 2)))
      << "what follows the text is no part of it";
}

TEST(TextConversion, HalfACharacterIsTooLittleRoom) {
  OLECHAR wide[2];
  EXPECT_EQ(0, MultiByteToWideChar(CP_UTF8, 0, "\xF0\x9F\x98\x80", 4, wide, 1));
}

TEST(TextConversion, FlagsAndDefaultCharactersAreRefused) {
  OLECHAR wide[4];
  EXPECT_EQ(0, MultiByteToWideChar(CP_ACP, 8, "fan", -1, wide, 4));
  char narrow[4];
  BOOL used = FALSE;
  EXPECT_EQ(0, WideCharToMultiByte(CP_ACP, 0, u"fan", -1, narrow, 4, "?", nullptr));
  EXPECT_EQ(0, WideCharToMultiByte(CP_ACP, 0, u"fan", -1, narrow, 4, nullptr, &used));
}

}  // namespace
