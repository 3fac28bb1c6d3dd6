#include "core/variant.h"

#include "tests/support/fault.h"
#include "tests/support/handler_test.h"
#include "tests/support/recorded_put.h"

namespace tqcim::testing {
namespace {

using VariantTest = BalancedTest;

void ExpectVariant(VARTYPE type, const std::string& value, const Variant& variant) {
  EXPECT_EQ(type, V_VT(&*variant));
  EXPECT_EQ(value, ValueText(*variant));
}

TEST_F(VariantTest, VariantsHaveTheTypeOfTheirMaker) {
  ExpectVariant(VT_BSTR, "wide", Variant::Text(OLESTR("wide")));
  ExpectVariant(VT_BSTR, "", Variant::Text(OLESTR("")));
  ExpectVariant(VT_BSTR, "narrow", Variant::Text("narrow"));
  ExpectVariant(VT_BSTR, "owned", Variant::Text(Bstr(OLESTR("owned"))));
  ExpectVariant(VT_I4, "-5", Variant::Int32(int32_t{-5}));
  ExpectVariant(VT_I4, "-1", Variant::Int32(uint32_t{0xFFFFFFFF}));
  ExpectVariant(VT_UI1, "255", Variant::Uint8(255));
  ExpectVariant(VT_I2, "-2", Variant::Int16(-2));
}

TEST_F(VariantTest, ANullTextIsANullString) {
  ExpectVariant(VT_BSTR, "<null>", Variant::Text(static_cast<const OLECHAR*>(nullptr)));
  ExpectVariant(VT_BSTR, "<null>", Variant::Text(static_cast<const char*>(nullptr)));
}

TEST_F(VariantTest, BooleansCarryTheValueAsItIs) {
  ExpectVariant(VT_BOOL, "1", Variant::Bool(1));
  ExpectVariant(VT_BOOL, "0", Variant::Bool(0));
  ExpectVariant(VT_BOOL, "-1", Variant::Bool(VARIANT_TRUE));
}

TEST_F(VariantTest, ArraysOfNumbersAndTexts) {
  ExpectVariant(VT_ARRAY | VT_I4, "{1,-2,3}",
                Variant::Int32Array(std::initializer_list<int32_t>{1, -2, 3}));
  ExpectVariant(VT_ARRAY | VT_I2, "{-1}", Variant::Int16Array(std::initializer_list<int16_t>{-1}));
  ExpectVariant(VT_ARRAY | VT_BSTR, "{a,,c}",
                Variant::TextArray(
                    std::initializer_list<const OLECHAR*>{OLESTR("a"), OLESTR(""), OLESTR("c")}));
  ExpectVariant(VT_ARRAY | VT_I4, "{}", Variant::Int32Array({}));
}

TEST_F(VariantTest, AnArrayThatFindsNoMemoryIsEmpty) {
  constexpr int32_t kValues[] = {1, 2};
  const Fault noMemory({FaultKind::kAllocations, 0});
  EXPECT_EQ(VT_EMPTY, V_VT(&*Variant::Int32Array(kValues)));
}

TEST_F(VariantTest, OnlyATextVariantHasAText) {
  EXPECT_EQ("a", Printable(Variant::Text(OLESTR("a")).text()));
  EXPECT_EQ(nullptr, Variant::Int32(1).text());
  EXPECT_EQ(nullptr, Variant().text());
}

TEST_F(VariantTest, AMovedVariantHasNothingLeft) {
  Variant source = Variant::Text(OLESTR("a"));
  const Variant target = std::move(source);
  EXPECT_EQ("a", Printable(target.text()));
  EXPECT_EQ(VT_EMPTY, V_VT(source.get()));
  Variant assigned = Variant::Text(OLESTR("b"));
  assigned = Variant::Int32(1);
  ExpectVariant(VT_I4, "1", assigned);
}

}  // namespace
}  // namespace tqcim::testing
