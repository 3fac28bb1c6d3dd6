#include "core/text.h"

#include "tests/support/handler_test.h"
#include "tests/support/recorded_put.h"

namespace tqcim::testing {
namespace {

using TextTest = BalancedTest;

TEST_F(TextTest, NarrowBecomesWide) {
  EXPECT_EQ("03/15/2012", Printable(NarrowToBstr("03/15/2012").get()));
}

TEST_F(TextTest, AnEmptyNarrowTextIsAnEmptyTextAndNotNull) {
  const Bstr text = NarrowToBstr("");
  ASSERT_NE(nullptr, text.get());
  EXPECT_EQ(0u, SysStringLen(text.get()));
}

TEST_F(TextTest, NullNarrowTextIsNull) {
  EXPECT_EQ(nullptr, NarrowToBstr(nullptr).get());
}

TEST_F(TextTest, NarrowTextsOfEveryLengthBecomeWide) {
  for (const UINT length : {126u, 127u, 128u, 129u, 5000u}) {
    const Bstr text = NarrowToBstr((std::string(length - 1, 'x') + "y").c_str());
    ASSERT_EQ(length, SysStringLen(text.get()));
    EXPECT_EQ(OLECHAR{'x'}, text.get()[length - 2]);
    EXPECT_EQ(OLECHAR{'y'}, text.get()[length - 1]);
    EXPECT_EQ(OLECHAR{}, text.get()[length]);
  }
}

TEST_F(TextTest, WideBecomesNarrow) {
  const Bstr name(OLESTR("CIM_Processor"));
  EXPECT_STREQ("CIM_Processor", BstrToNarrow(name.get()).get());
  EXPECT_STREQ("", BstrToNarrow(OLESTR("")).get());
}

TEST_F(TextTest, NullWideTextIsNull) {
  EXPECT_EQ(nullptr, BstrToNarrow(nullptr));
}

TEST_F(TextTest, EqualTellsCaseApart) {
  EXPECT_TRUE(Equal(OLESTR("Tag"), OLESTR("Tag")));
  EXPECT_TRUE(Equal(OLESTR(""), OLESTR("")));
  EXPECT_FALSE(Equal(OLESTR("Tag"), OLESTR("tag")));
  EXPECT_FALSE(Equal(OLESTR("Tag"), OLESTR("Ta")));
  EXPECT_FALSE(Equal(OLESTR("Tag"), OLESTR("Tags")));
  EXPECT_FALSE(Equal(OLESTR(""), OLESTR("T")));
}

TEST_F(TextTest, EqualIgnoringCaseIgnoresThatOfLatinLettersOnly) {
  EXPECT_TRUE(EqualIgnoringCase(OLESTR("DeviceID"), OLESTR("dEVICEid")));
  EXPECT_TRUE(EqualIgnoringCase(OLESTR("azAZ09_"), OLESTR("AZaz09_")));
  EXPECT_TRUE(EqualIgnoringCase(OLESTR(""), OLESTR("")));
  EXPECT_FALSE(EqualIgnoringCase(OLESTR("DeviceID"), OLESTR("DeviceI")));
  EXPECT_FALSE(EqualIgnoringCase(OLESTR("DeviceI"), OLESTR("DeviceID")));
  // The neighbours of A and Z are as far from those of a and z.
  EXPECT_FALSE(EqualIgnoringCase(OLESTR("@"), OLESTR("`")));
  EXPECT_FALSE(EqualIgnoringCase(OLESTR("["), OLESTR("{")));
  EXPECT_FALSE(EqualIgnoringCase(OLESTR("\xC9"), OLESTR("\xE9")));
}

TEST_F(TextTest, NullEqualsNothing) {
  EXPECT_FALSE(Equal(nullptr, nullptr));
  EXPECT_FALSE(Equal(nullptr, OLESTR("")));
  EXPECT_FALSE(Equal(OLESTR(""), nullptr));
  EXPECT_FALSE(EqualIgnoringCase(nullptr, nullptr));
  EXPECT_FALSE(EqualIgnoringCase(nullptr, OLESTR("")));
  EXPECT_FALSE(EqualIgnoringCase(OLESTR(""), nullptr));
}

struct DecimalRow {
  const char* narrow;
  const OLECHAR* wide;
  int32_t number;
};
#define DECIMAL_ROW(text, number) \
  { text, OLESTR(text), number }
constexpr DecimalRow kDecimals[] = {
    DECIMAL_ROW("0", 0),
    DECIMAL_ROW("01", 1),
    DECIMAL_ROW("42", 42),
    DECIMAL_ROW("+7", 7),
    DECIMAL_ROW("-7", -7),
    DECIMAL_ROW(" \t\n\v\f\r12", 12),
    DECIMAL_ROW("12abc", 12),
    DECIMAL_ROW("3.9", 3),
    DECIMAL_ROW("0x10", 0),
    DECIMAL_ROW("2147483647", 2147483647),
    DECIMAL_ROW("2147483648", -2147483647 - 1),
    DECIMAL_ROW("4294967297", 1),
    DECIMAL_ROW("", 0),
    DECIMAL_ROW("abc", 0),
    DECIMAL_ROW("-", 0),
    DECIMAL_ROW("- 5", 0),
    DECIMAL_ROW("+-5", 0),
};

TEST_F(TextTest, ScansTheDecimalNumberThatATextBeginsWith) {
  for (const DecimalRow& row : kDecimals) {
    EXPECT_EQ(row.number, ScanDecimal(row.narrow)) << row.narrow;
    EXPECT_EQ(row.number, ScanDecimal(row.wide)) << row.narrow;
  }
}

TEST_F(TextTest, NullHoldsNoNumber) {
  EXPECT_EQ(0, ScanDecimal(static_cast<const char*>(nullptr)));
  EXPECT_EQ(0, ScanDecimal(static_cast<const OLECHAR*>(nullptr)));
}

}  // namespace
}  // namespace tqcim::testing
