#include <gtest/gtest.h>

#include <string>

#include "platform/wmi.h"

namespace {

using Text = std::basic_string<OLECHAR>;

TEST(Bstr, CopiesAZeroTerminatedText) {
  OLECHAR source[] = OLESTR("Fan 1");
  BSTR text = SysAllocString(source);
  source[0] = OLESTR('?');
  EXPECT_EQ(OLESTR("Fan 1"), Text(text));
  EXPECT_EQ(5u, SysStringLen(text));
  EXPECT_EQ(10u, SysStringByteLen(text));
  SysFreeString(text);
}

TEST(Bstr, NullTextGivesNull) {
  EXPECT_EQ(nullptr, SysAllocString(nullptr));
  EXPECT_EQ(0u, SysStringLen(nullptr));
  EXPECT_EQ(0u, SysStringByteLen(nullptr));
  SysFreeString(nullptr);
}

TEST(Bstr, EmptyTextIsATextOfItsOwn) {
  BSTR text = SysAllocString(OLESTR(""));
  ASSERT_NE(nullptr, text);
  EXPECT_EQ(0u, SysStringLen(text));
  EXPECT_EQ(0, text[0]);
  SysFreeString(text);
}

TEST(Bstr, HoldsZeroCharacters) {
  BSTR text = SysAllocStringLen(OLESTR("a\0b"), 3);
  EXPECT_EQ(3u, SysStringLen(text));
  EXPECT_EQ(Text(OLESTR("a\0b"), 3), Text(text, 3));
  EXPECT_EQ(0, text[3]);
  SysFreeString(text);
}

TEST(Bstr, TakesPartOfAText) {
  BSTR text = SysAllocStringLen(OLESTR("Processor 2"), 9);
  EXPECT_EQ(OLESTR("Processor"), Text(text));
  SysFreeString(text);
}

TEST(Bstr, WithoutContentsIsRoomToWriteIn) {
  BSTR text = SysAllocStringLen(nullptr, 2);
  EXPECT_EQ(2u, SysStringLen(text));
  EXPECT_EQ(0, text[2]);
  text[0] = OLESTR('o');
  text[1] = OLESTR('k');
  EXPECT_EQ(OLESTR("ok"), Text(text));
  SysFreeString(text);
}

TEST(Bstr, LengthInBytesMayBeOdd) {
  BSTR text = SysAllocStringByteLen("abc", 3);
  EXPECT_EQ(3u, SysStringByteLen(text));
  EXPECT_EQ(1u, SysStringLen(text));
  EXPECT_EQ(std::string("abc"), reinterpret_cast<const char*>(text));
  SysFreeString(text);
}

TEST(Bstr, LengthsTakeMoreThan16Bits) {
  BSTR text = SysAllocStringLen(nullptr, 40'000);
  EXPECT_EQ(40'000u, SysStringLen(text));
  EXPECT_EQ(80'000u, SysStringByteLen(text));
  SysFreeString(text);
}

TEST(Bstr, ALengthThatNoTextCanHaveGivesNull) {
  EXPECT_EQ(nullptr, SysAllocStringLen(nullptr, 0xFFFFFFFFu));
  EXPECT_EQ(nullptr, SysAllocStringLen(nullptr, 0x80000000u));
}

}  // namespace
