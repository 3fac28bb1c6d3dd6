#include "core/com.h"

#include "tests/support/fake_class.h"
#include "tests/support/handler_test.h"
#include "tests/support/recorded_put.h"

namespace tqcim::testing {
namespace {

using ComTest = BalancedTest;

void ExpectVariant(VARTYPE type, const std::string& value, const Variant& variant) {
  EXPECT_EQ(type, V_VT(&*variant));
  EXPECT_EQ(value, ValueText(*variant));
}

TEST_F(ComTest, VariantsHaveTheTypeOfTheirMaker) {
  ExpectVariant(VT_BSTR, "wide", Variant::Text(OLESTR("wide")));
  ExpectVariant(VT_BSTR, "", Variant::Text(OLESTR("")));
  ExpectVariant(VT_BSTR, "narrow", Variant::Text("narrow"));
  ExpectVariant(VT_BSTR, "owned", Variant::Text(Bstr(OLESTR("owned"))));
  ExpectVariant(VT_I4, "-5", Variant::Int32(int32_t{-5}));
  ExpectVariant(VT_I4, "-1", Variant::Int32(uint32_t{0xFFFFFFFF}));
  ExpectVariant(VT_UI1, "255", Variant::Uint8(255));
  ExpectVariant(VT_I2, "-2", Variant::Int16(-2));
}

TEST_F(ComTest, ANullTextIsANullString) {
  ExpectVariant(VT_BSTR, "<null>", Variant::Text(static_cast<const OLECHAR*>(nullptr)));
  ExpectVariant(VT_BSTR, "<null>", Variant::Text(static_cast<const char*>(nullptr)));
}

TEST_F(ComTest, BooleansCarryTheValueAsItIs) {
  ExpectVariant(VT_BOOL, "1", Variant::Bool(1));
  ExpectVariant(VT_BOOL, "0", Variant::Bool(0));
  ExpectVariant(VT_BOOL, "-1", Variant::Bool(VARIANT_TRUE));
}

TEST_F(ComTest, ArraysOfNumbersAndTexts) {
  ExpectVariant(VT_ARRAY | VT_I4, "{1,-2,3}",
                Variant::Int32Array(std::initializer_list<int32_t>{1, -2, 3}));
  ExpectVariant(VT_ARRAY | VT_I2, "{-1}", Variant::Int16Array(std::initializer_list<int16_t>{-1}));
  ExpectVariant(VT_ARRAY | VT_BSTR, "{a,,c}",
                Variant::TextArray(
                    std::initializer_list<const OLECHAR*>{OLESTR("a"), OLESTR(""), OLESTR("c")}));
  ExpectVariant(VT_ARRAY | VT_I4, "{}", Variant::Int32Array({}));
}

TEST_F(ComTest, OnlyATextVariantHasAText) {
  EXPECT_EQ("a", Printable(Variant::Text(OLESTR("a")).text()));
  EXPECT_EQ(nullptr, Variant::Int32(1).text());
  EXPECT_EQ(nullptr, Variant().text());
}

TEST_F(ComTest, AMovedVariantHasNothingLeft) {
  Variant source = Variant::Text(OLESTR("a"));
  const Variant target = std::move(source);
  EXPECT_EQ("a", Printable(target.text()));
  EXPECT_EQ(VT_EMPTY, V_VT(source.get()));
  Variant assigned = Variant::Text(OLESTR("b"));
  assigned = Variant::Int32(1);
  ExpectVariant(VT_I4, "1", assigned);
}

TEST_F(ComTest, BstrOwnsItsText) {
  EXPECT_EQ(nullptr, Bstr().get());
  EXPECT_EQ(nullptr, Bstr(nullptr).get());
  Bstr text(OLESTR("a"));
  Bstr moved = std::move(text);
  EXPECT_EQ(nullptr, text.get());
  BSTR released = moved.release();
  EXPECT_EQ(nullptr, moved.get());
  const Bstr adopted = Bstr::Adopt(released);
  EXPECT_EQ("a", Printable(adopted.get()));
}

TEST_F(ComTest, ComReleasesItsReferenceOnce) {
  FakeClass object;
  {
    object.AddRef();
    Com<IWbemClassObject> owner(&object);
    Com<IWbemClassObject> moved = std::move(owner);
    EXPECT_FALSE(owner);
    EXPECT_EQ(1, object.References());
    EXPECT_EQ(&object, moved.get());
  }
  EXPECT_EQ(0, object.References());
}

TEST_F(ComTest, AnEarlyReleaseTellsTheReferencesThatAreLeft) {
  FakeClass object;
  object.AddRef();
  object.AddRef();
  Com<IWbemClassObject> owner(&object);
  EXPECT_EQ(1u, owner.Release());
  EXPECT_EQ(0u, owner.Release());
  EXPECT_FALSE(owner);
  object.Release();
}

TEST_F(ComTest, ADetachedReferenceIsTheCallers) {
  FakeClass object;
  {
    object.AddRef();
    Com<IWbemClassObject> owner(&object);
    EXPECT_EQ(&object, owner.Detach());
  }
  EXPECT_EQ(1, object.References());
  object.Release();
}

}  // namespace
}  // namespace tqcim::testing
