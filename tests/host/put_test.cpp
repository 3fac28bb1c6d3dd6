// An instance takes a value only in the VARIANT type and the range of the declared type.
#include "host/results.h"
#include "tests/host/com_test.h"

namespace tqcim::host {
namespace {

class Put : public HostObjectsTest {
 protected:
  IWbemClassObject& instance() { return *instance_; }

  HRESULT Try(const OLECHAR* name, OwnedVariant value, CIMTYPE type = 0) {
    return instance_->Put(name, 0, &value, type);
  }
  Value Held(const char* name) { return InstanceBehind(instance_).Find(name)->value; }
  std::vector<std::string> Refused() { return InstanceBehind(instance_).refused_puts; }

  std::shared_ptr<const Schema> schema_ = SchemaFromText(R"(
      class T {
        sint8 S8; uint8 U8; sint16 S16; uint16 U16; sint32 S32; uint32 U32; sint64 S64; uint64 U64;
        real32 R32; real64 R64; boolean B; string S; datetime D; T ref Ref; char16 C16;
        uint32 U32s[]; uint16 U16s[]; sint16 S16s[]; string Ss[]; uint64 U64s[]; boolean Bs[];
      };)");
  Com<ClassObject> definition_ = ClassObject::Definition(schema_, *schema_->Find("T"));
  Com<IWbemClassObject> instance_ = Spawn(*definition_);
};

TEST_F(Put, TakesTheVariantTypeThatBelongsToTheDeclaredType) {
  EXPECT_EQ(S_OK, Try(OLESTR("S8"), I2(-128)));
  EXPECT_EQ(S_OK, Try(OLESTR("U8"), Ui1(255)));
  EXPECT_EQ(S_OK, Try(OLESTR("S16"), I2(-32768)));
  EXPECT_EQ(S_OK, Try(OLESTR("U16"), I4(65535)));
  EXPECT_EQ(S_OK, Try(OLESTR("S32"), I4(-1)));
  EXPECT_EQ(S_OK, Try(OLESTR("U32"), I4(-1)));
  EXPECT_EQ(S_OK, Try(OLESTR("S64"), Text(OLESTR("-9223372036854775808"))));
  EXPECT_EQ(S_OK, Try(OLESTR("U64"), Text(OLESTR("18446744073709551615"))));
  EXPECT_EQ(S_OK, Try(OLESTR("R32"), R4(1.5F)));
  EXPECT_EQ(S_OK, Try(OLESTR("R64"), R8(-0.25)));
  EXPECT_EQ(S_OK, Try(OLESTR("B"), Bool(-1)));
  EXPECT_EQ(S_OK, Try(OLESTR("S"), Text(OLESTR("text"))));
  EXPECT_EQ(S_OK, Try(OLESTR("D"), Text(OLESTR("20150314092653.000000+60."))));
  EXPECT_EQ(S_OK, Try(OLESTR("Ref"), Text(OLESTR("T.S=\"1\""))));
  EXPECT_EQ(S_OK, Try(OLESTR("C16"), I2(-1)));
  EXPECT_EQ(Value(int64_t{-128}), Held("S8"));
  EXPECT_EQ(Value(uint64_t{255}), Held("U8"));
  EXPECT_EQ(Value(int64_t{-32768}), Held("S16"));
  EXPECT_EQ(Value(uint64_t{65535}), Held("U16"));
  EXPECT_EQ(Value(int64_t{-1}), Held("S32"));
  EXPECT_EQ(Value(uint64_t{4294967295}), Held("U32"));
  EXPECT_EQ(Value(INT64_MIN), Held("S64"));
  EXPECT_EQ(Value(UINT64_MAX), Held("U64"));
  EXPECT_EQ(Value(1.5), Held("R32"));
  EXPECT_EQ(Value(-0.25), Held("R64"));
  EXPECT_EQ(Value(true), Held("B"));
  EXPECT_EQ(Value("text"), Held("S"));
  EXPECT_EQ(Value("20150314092653.000000+60."), Held("D"));
  EXPECT_EQ(Value("T.S=\"1\""), Held("Ref"));
  EXPECT_EQ(Value(uint64_t{65535}), Held("C16"));
  EXPECT_TRUE(Refused().empty());
}

TEST_F(Put, RefusesEveryOtherVariantType) {
  struct Pair {
    const OLECHAR* property;
    VARTYPE right;
  };
  const Pair pairs[] = {
      {OLESTR("S8"), VT_I2},    {OLESTR("U8"), VT_UI1},   {OLESTR("S16"), VT_I2},
      {OLESTR("U16"), VT_I4},   {OLESTR("S32"), VT_I4},   {OLESTR("U32"), VT_I4},
      {OLESTR("R32"), VT_R4},   {OLESTR("R64"), VT_R8},   {OLESTR("B"), VT_BOOL},
      {OLESTR("S"), VT_BSTR},   {OLESTR("D"), VT_BSTR},   {OLESTR("Ref"), VT_BSTR},
      {OLESTR("S64"), VT_BSTR}, {OLESTR("U64"), VT_BSTR}, {OLESTR("C16"), VT_I2}};
  const VARTYPE types[] = {VT_EMPTY, VT_I1, VT_UI1, VT_I2,   VT_UI2,  VT_I4,   VT_UI4, VT_I8,
                           VT_UI8,   VT_R4, VT_R8,  VT_BOOL, VT_BSTR, VT_DATE, VT_INT, VT_UINT};
  for (const Pair& pair : pairs) {
    for (const VARTYPE type : types) {
      if (type == pair.right) continue;
      EXPECT_EQ(kMismatch, Try(pair.property, OfType(type)))
          << ToUtf8(pair.property) << " with VARIANT type " << type;
    }
  }
}

TEST_F(Put, RefusesValuesOutsideOfTheDeclaredType) {
  EXPECT_EQ(kMismatch, Try(OLESTR("S8"), I2(128)));
  EXPECT_EQ(kMismatch, Try(OLESTR("S8"), I2(-129)));
  EXPECT_EQ(kMismatch, Try(OLESTR("U16"), I4(65536)));
  EXPECT_EQ(kMismatch, Try(OLESTR("U16"), I4(-1)));
  EXPECT_EQ(kMismatch, Try(OLESTR("U64"), Text(OLESTR("-1"))));
  EXPECT_EQ(kMismatch, Try(OLESTR("U64"), Text(OLESTR("18446744073709551616"))));
  EXPECT_EQ(kMismatch, Try(OLESTR("U64"), Text(OLESTR("12 "))));
  EXPECT_EQ(kMismatch, Try(OLESTR("U64"), Text(OLESTR(""))));
  EXPECT_EQ(kMismatch, Try(OLESTR("S64"), Text(OLESTR("9223372036854775808"))));
  EXPECT_EQ(kMismatch, Try(OLESTR("S64"), Text(OLESTR("1.0"))));
  EXPECT_EQ(Value(), Held("U64"));
}

TEST_F(Put, TakesArraysOfTheRightElements) {
  EXPECT_EQ(S_OK, Try(OLESTR("U32s"), ArrayOf<LONG>(VT_I4, {3, -1})));
  EXPECT_EQ(S_OK, Try(OLESTR("U16s"), ArrayOf<LONG>(VT_I4, {0, 65535})));
  EXPECT_EQ(S_OK, Try(OLESTR("S16s"), ArrayOf<SHORT>(VT_I2, {1, 0})));
  EXPECT_EQ(S_OK, Try(OLESTR("Ss"), ArrayOf<const OLECHAR*>(VT_BSTR, {OLESTR("a"), OLESTR("b")})));
  EXPECT_EQ(S_OK, Try(OLESTR("U64s"), ArrayOf<const OLECHAR*>(VT_BSTR, {OLESTR("5")})));
  EXPECT_EQ(S_OK, Try(OLESTR("Bs"), ArrayOf<VARIANT_BOOL>(VT_BOOL, {1, 0})));
  EXPECT_EQ(Value(Array{uint64_t{3}, uint64_t{4294967295}}), Held("U32s"));
  EXPECT_EQ(Value(Array{uint64_t{0}, uint64_t{65535}}), Held("U16s"));
  EXPECT_EQ(Value(Array{int64_t{1}, int64_t{0}}), Held("S16s"));
  EXPECT_EQ(Value(Array{"a", "b"}), Held("Ss"));
  EXPECT_EQ(Value(Array{uint64_t{5}}), Held("U64s"));
  EXPECT_EQ(Value(Array{true, false}), Held("Bs"));
  EXPECT_EQ(S_OK, Try(OLESTR("S16s"), ArrayOf<SHORT>(VT_I2, {})));
  EXPECT_EQ(Value(Array{}), Held("S16s"));
}

TEST_F(Put, RefusesArraysOfOtherElementsAndSingleValuesForArrays) {
  EXPECT_EQ(kMismatch, Try(OLESTR("U32s"), ArrayOf<SHORT>(VT_I2, {1})));
  EXPECT_EQ(kMismatch, Try(OLESTR("U16s"), ArrayOf<LONG>(VT_I4, {0, 65536})));
  EXPECT_EQ(kMismatch, Try(OLESTR("U32s"), I4(1)));
  EXPECT_EQ(kMismatch, Try(OLESTR("U32"), ArrayOf<LONG>(VT_I4, {1})));
  EXPECT_EQ(kMismatch, Try(OLESTR("Ss"), Text(OLESTR("a"))));
  EXPECT_EQ(kMismatch, Try(OLESTR("Ss"), OfType(VT_BSTR)));
  OwnedVariant lying = ArrayOf<SHORT>(VT_I2, {1, 2});
  V_VT(&lying) = VT_ARRAY | VT_I4;
  EXPECT_EQ(kMismatch, instance().Put(OLESTR("U32s"), 0, &lying, 0));
  EXPECT_EQ(kMismatch, Try(OLESTR("U32s"), OfType(VT_ARRAY | VT_I4)));
}

TEST_F(Put, ANonZeroCimTypeHasToBeTheDeclaredOne) {
  EXPECT_EQ(S_OK, Try(OLESTR("D"), Text(OLESTR("x")), 101));
  EXPECT_EQ(S_OK, Try(OLESTR("U64"), Text(OLESTR("1")), 21));
  EXPECT_EQ(S_OK, Try(OLESTR("U32s"), ArrayOf<LONG>(VT_I4, {1}), 0x2000 | 19));
  EXPECT_EQ(kMismatch, Try(OLESTR("S"), Text(OLESTR("x")), 101));
  EXPECT_EQ(kMismatch, Try(OLESTR("S"), Text(OLESTR("1")), 21));
  EXPECT_EQ(kMismatch, Try(OLESTR("U32s"), ArrayOf<LONG>(VT_I4, {1}), 19));
  EXPECT_EQ(kMismatch, Try(OLESTR("U64"), OfType(VT_NULL), 20));
}

TEST_F(Put, NullTakesAValueAway) {
  ASSERT_EQ(S_OK, Try(OLESTR("S"), Text(OLESTR("x"))));
  EXPECT_EQ(S_OK, Try(OLESTR("S"), OfType(VT_NULL)));
  EXPECT_EQ(Value(), Held("S"));
  ASSERT_EQ(S_OK, Try(OLESTR("S"), Text(OLESTR("x"))));
  EXPECT_EQ(S_OK, Try(OLESTR("S"), OfType(VT_BSTR)));
  EXPECT_EQ(Value(), Held("S"));
  ASSERT_EQ(S_OK, Try(OLESTR("U32"), I4(1)));
  EXPECT_EQ(S_OK, instance().Put(OLESTR("U32"), 0, nullptr, 0));
  EXPECT_EQ(Value(), Held("U32"));
  EXPECT_TRUE(Refused().empty());
}

TEST_F(Put, AnEmptyStringIsNotNull) {
  ASSERT_EQ(S_OK, Try(OLESTR("S"), Text(OLESTR(""))));
  EXPECT_EQ(Value(""), Held("S"));
}

TEST_F(Put, NamesAreCaseless) {
  EXPECT_EQ(S_OK, Try(OLESTR("s32"), I4(5)));
  EXPECT_EQ(Value(int64_t{5}), Held("S32"));
}

TEST_F(Put, AnUndeclaredPropertyIsNotFound) {
  EXPECT_EQ(kMissing, Try(OLESTR("Nothing"), I4(5)));
  EXPECT_EQ(kMissing, Try(OLESTR("__CLASS"), Text(OLESTR("T"))));
}

TEST_F(Put, BadArgumentsAreRefused) {
  OwnedVariant value = I4(1);
  EXPECT_EQ(kBadArgument, instance().Put(nullptr, 0, &value, 0));
  EXPECT_EQ(kBadArgument, instance().Put(OLESTR("S32"), 1, &value, 0));
}

TEST_F(Put, TheInstanceTellsWhatWasRefused) {
  Try(OLESTR("Nothing"), I4(1));
  Try(OLESTR("U16"), I4(-1));
  Try(OLESTR("u16"), I4(-1));
  Try(OLESTR("U32"), I4(1));
  EXPECT_EQ((std::vector<std::string>{"Nothing", "U16", "u16"}), Refused());
}

TEST_F(Put, ARefusedValueLeavesTheFormerOne) {
  ASSERT_EQ(S_OK, Try(OLESTR("U16"), I4(7)));
  EXPECT_EQ(kMismatch, Try(OLESTR("U16"), I4(-7)));
  EXPECT_EQ(Value(uint64_t{7}), Held("U16"));
}

TEST_F(Put, WhatWasPutIsRemembered) {
  Try(OLESTR("S"), Text(OLESTR("1")));
  Try(OLESTR("U8"), Ui1(1));
  Try(OLESTR("Nothing"), Ui1(1));
  Try(OLESTR("S"), Text(OLESTR("2")));
  Try(OLESTR("D"), OfType(VT_NULL));
  const Instance held = InstanceBehind(instance_);
  EXPECT_EQ(Value("2"), held.Find("S")->value);
  EXPECT_TRUE(held.Find("S")->put);
  EXPECT_TRUE(held.Find("D")->put);
  EXPECT_FALSE(held.Find("U16")->put);
}

TEST_F(Put, TextOutsideOfTheBasicPlaneSurvives) {
  ASSERT_EQ(S_OK, Try(OLESTR("S"), Text(OLESTR("\u00E9\u4E16\U0001F600"))));
  EXPECT_EQ(Value("\xC3\xA9\xE4\xB8\x96\xF0\x9F\x98\x80"), Held("S"));
}

}  // namespace
}  // namespace tqcim::host
