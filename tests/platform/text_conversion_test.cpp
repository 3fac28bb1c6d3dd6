#include "tests/platform/text_conversion_test.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

using TextView = std::basic_string_view<OLECHAR>;

std::string Narrow(UINT codePage, TextView wide) {
  char narrow[64];
  const int length = WideCharToMultiByte(codePage, 0, wide.data(), static_cast<int>(wide.size()),
                                         narrow, 64, nullptr, nullptr);
  return std::string(narrow, static_cast<size_t>(length));
}

struct Pair {
  std::string_view narrow;
  TextView wide;
};

constexpr Pair kPairs[] = {
    {"Chassis 1", OLESTR("Chassis 1")},
    {"\x7F", OLESTR("\x7F")},
    {"\xC2\x80", OLESTR("\x80")},
    {"\xC3\xA9", OLESTR("\xE9")},
    {"\xDF\xBF", OLESTR("\x7FF")},
    {"\xE0\xA0\x80", OLESTR("\x800")},
    {"\xE0\xBF\xBF", OLESTR("\xFFF")},
    {"\xE1\x80\x80", OLESTR("\x1000")},
    {"\xE2\x82\xAC", OLESTR("\x20AC")},
    {"\xEC\xBF\xBF", OLESTR("\xCFFF")},
    {"\xED\x80\x80", OLESTR("\xD000")},
    {"\xED\x9F\xBF", OLESTR("\xD7FF")},
    {"\xEE\x80\x80", OLESTR("\xE000")},
    {"\xEF\xBF\xBF", OLESTR("\xFFFF")},
    {"\xF0\x90\x80\x80", OLESTR("\xD800\xDC00")},
    {"\xF0\x9F\x98\x80", OLESTR("\xD83D\xDE00")},
    {"\xF0\xBF\xBF\xBF", OLESTR("\xD8BF\xDFFF")},
    {"\xF1\x80\x80\x80", OLESTR("\xD8C0\xDC00")},
    {"\xF3\xBF\xBF\xBF", OLESTR("\xDBBF\xDFFF")},
    {"\xF4\x80\x80\x80", OLESTR("\xDBC0\xDC00")},
    {"\xF4\x8F\xBF\xBF", OLESTR("\xDBFF\xDFFF")},
};

TEST(TextConversion, Utf8BecomesUtf16) {
  for (const Pair& pair : kPairs) EXPECT_EQ(pair.wide, Widen(CP_UTF8, pair.narrow)) << pair.narrow;
}

TEST(TextConversion, Utf16BecomesUtf8) {
  for (const Pair& pair : kPairs) EXPECT_EQ(pair.narrow, Narrow(CP_UTF8, pair.wide));
}

TEST(TextConversion, WhatIsNotUtf8BecomesTheReplacementCharacter) {
  EXPECT_EQ(OLESTR("\xFFFD"), Widen(CP_UTF8, "\x80"));
  EXPECT_EQ(OLESTR("a\xFFFDz"), Widen(CP_UTF8, "a\xFFz"));
  EXPECT_EQ(OLESTR("\xFFFD\xFFFD"), Widen(CP_UTF8, "\xC0\x80"));
  EXPECT_EQ(OLESTR("\xFFFDz"), Widen(CP_UTF8, "\xC3z"));
  EXPECT_EQ(OLESTR("\xFFFDz"), Widen(CP_UTF8, "\xE2\x82z"));
  EXPECT_EQ(OLESTR("\xFFFDz"), Widen(CP_UTF8, "\xF0\x9F\x98z"));
  EXPECT_EQ(OLESTR("\xFFFD\xE9"), Widen(CP_UTF8, "\xE2\xC3\xA9"));
}

TEST(TextConversion, ALoneSurrogateBecomesTheReplacementCharacter) {
  EXPECT_EQ("\xEF\xBF\xBD", Narrow(CP_UTF8, TextView(OLESTR("\xD83D"), 1)));
  EXPECT_EQ("\xEF\xBF\xBD", Narrow(CP_UTF8, TextView(OLESTR("\xDE00"), 1)));
  EXPECT_EQ("\xEF\xBF\xBD", Narrow(CP_UTF8, TextView(OLESTR("\xD83D\xDE00"), 1)))
      << "what follows the text is no part of it";
  EXPECT_EQ("\xEF\xBF\xBDz", Narrow(CP_UTF8, TextView(OLESTR("\xD83Dz"), 2)));
  EXPECT_EQ("\xEF\xBF\xBD\xF0\x9F\x98\x80",
            Narrow(CP_UTF8, TextView(OLESTR("\xD83D\xD83D\xDE00"), 3)));
  EXPECT_EQ("\xEF\xBF\xBD\xEF\xBF\xBD", Narrow(CP_UTF8, TextView(OLESTR("\xDE00\xD83D"), 2)));
}

TEST(TextConversion, TheAnsiCodePageHoldsAscii) {
  EXPECT_EQ(OLESTR("Shelf-7 {x}"), Widen(CP_ACP, "Shelf-7 {x}"));
  EXPECT_EQ("CIM_Processor", Narrow(CP_ACP, OLESTR("CIM_Processor")));
}

TEST(TextConversion, WithoutALengthTheTerminatorIsConvertedToo) {
  OLECHAR wide[8];
  EXPECT_EQ(4, MultiByteToWideChar(CP_UTF8, 0, "fan", -1, wide, 8));
  EXPECT_EQ(OLESTR("fan"), std::basic_string<OLECHAR>(wide));
  char narrow[8];
  EXPECT_EQ(4, WideCharToMultiByte(CP_UTF8, 0, OLESTR("fan"), -1, narrow, 8, nullptr, nullptr));
  EXPECT_STREQ("fan", narrow);
}

TEST(TextConversion, WithALengthNoTerminatorIsWritten) {
  OLECHAR wide[4] = {OLESTR('?'), OLESTR('?'), OLESTR('?'), OLESTR('?')};
  EXPECT_EQ(2, MultiByteToWideChar(CP_ACP, 0, "fans", 2, wide, 4));
  EXPECT_EQ(OLESTR('a'), wide[1]);
  EXPECT_EQ(OLESTR('?'), wide[2]);
}

TEST(TextConversion, WithoutRoomTheNeededLengthIsTold) {
  EXPECT_EQ(3, MultiByteToWideChar(CP_UTF8, 0, "\xF0\x9F\x98\x80", -1, nullptr, 0));
  EXPECT_EQ(
      5, WideCharToMultiByte(CP_UTF8, 0, OLESTR("\xD83D\xDE00"), -1, nullptr, 0, nullptr, nullptr));
}

TEST(TextConversion, TooLittleRoomGivesZero) {
  OLECHAR wide[2];
  EXPECT_EQ(0, MultiByteToWideChar(CP_UTF8, 0, "fan", -1, wide, 2));
  char narrow[3];
  EXPECT_EQ(0, WideCharToMultiByte(CP_UTF8, 0, OLESTR("fan"), -1, narrow, 3, nullptr, nullptr));
  EXPECT_EQ(0, WideCharToMultiByte(CP_UTF8, 0, OLESTR("\x20AC"), 1, narrow, 2, nullptr, nullptr));
}

TEST(TextConversion, NothingIsWrittenBeyondTheRoom) {
  OLECHAR wide[8];
  for (OLECHAR& unit : wide) unit = OLESTR('?');
  EXPECT_EQ(0, MultiByteToWideChar(CP_UTF8, 0, "\xC3\xA9 sensor", -1, wide, 3));
  EXPECT_EQ(OLESTR("?????"), TextView(wide + 3, 5));
  char narrow[8];
  for (char& unit : narrow) unit = '?';
  EXPECT_EQ(
      0, WideCharToMultiByte(CP_UTF8, 0, OLESTR("\xE9 sensor"), -1, narrow, 3, nullptr, nullptr));
  EXPECT_EQ("?????", std::string_view(narrow + 3, 5));
}

TEST(TextConversion, WrongArgumentsGiveZero) {
  OLECHAR wide[4];
  char narrow[4];
  EXPECT_EQ(0, MultiByteToWideChar(CP_UTF8, 0, nullptr, -1, wide, 4));
  EXPECT_EQ(0, MultiByteToWideChar(CP_UTF8, 0, "fan", 0, wide, 4));
  EXPECT_EQ(0, MultiByteToWideChar(12345, 0, "fan", -1, wide, 4));
  EXPECT_EQ(0, MultiByteToWideChar(CP_UTF8, 0, "fan", -1, wide, -1));
  EXPECT_EQ(0, WideCharToMultiByte(CP_UTF8, 0, nullptr, -1, narrow, 4, nullptr, nullptr));
  EXPECT_EQ(0, WideCharToMultiByte(CP_UTF8, 0, OLESTR("fan"), 0, narrow, 4, nullptr, nullptr));
  EXPECT_EQ(0, WideCharToMultiByte(CP_UTF8, 0, OLESTR("fan"), -1, nullptr, 4, nullptr, nullptr));
}

}  // namespace
