#include <gtest/gtest.h>

#include <string>

#include "platform/wmi.h"
#include "tests/platform/counted_object.h"

namespace {

using tqcim::testing::CountedObject;
using Text = std::basic_string<OLECHAR>;

TEST(Variant, StartsEmpty) {
  VARIANT value;
  V_VT(&value) = VT_BSTR;
  VariantInit(&value);
  EXPECT_EQ(VT_EMPTY, V_VT(&value));
}

TEST(Variant, ClearingFreesTheTextAndEmpties) {
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_BSTR;
  V_BSTR(&value) = SysAllocString(OLESTR("OK"));
  EXPECT_EQ(S_OK, VariantClear(&value));
  EXPECT_EQ(VT_EMPTY, V_VT(&value));
  EXPECT_EQ(S_OK, VariantClear(&value));
}

TEST(Variant, ClearingReleasesTheObject) {
  CountedObject object;
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_UNKNOWN;
  V_UNKNOWN(&value) = &object;
  object.AddRef();
  EXPECT_EQ(S_OK, VariantClear(&value));
  EXPECT_EQ(0u, object.References());
}

TEST(Variant, ClearingLeavesWhatIsOnlyReferredTo) {
  BSTR text = SysAllocString(OLESTR("kept"));
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_BSTR | VT_BYREF;
  V_BYREF(&value) = &text;
  EXPECT_EQ(S_OK, VariantClear(&value));
  EXPECT_EQ(VT_EMPTY, V_VT(&value));
  EXPECT_EQ(OLESTR("kept"), Text(text));
  SysFreeString(text);
}

TEST(Variant, AReferenceToAnArrayIsCopiedAndClearedAsAReference) {
  SAFEARRAY* array = SafeArrayCreateVector(VT_I2, 0, 1);
  VARIANT source;
  VariantInit(&source);
  V_VT(&source) = VT_ARRAY | VT_I2 | VT_BYREF;
  V_BYREF(&source) = &array;
  VARIANT copy;
  VariantInit(&copy);
  EXPECT_EQ(S_OK, VariantCopy(&copy, &source));
  EXPECT_EQ(VT_ARRAY | VT_I2 | VT_BYREF, V_VT(&copy));
  EXPECT_EQ(&array, V_BYREF(&copy));
  EXPECT_EQ(S_OK, VariantClear(&copy));
  EXPECT_EQ(S_OK, VariantClear(&source));
  EXPECT_EQ(1u, SafeArrayGetDim(array));
  EXPECT_EQ(S_OK, SafeArrayDestroy(array));
}

TEST(Variant, TypesThatNoVariantHasAreRefused) {
  for (const int type : {15, 24, 0x0FFF, 0x1000 | VT_BSTR, 0x8000 | VT_BSTR, VT_EMPTY | VT_ARRAY,
                         VT_NULL | VT_BYREF}) {
    VARIANT value;
    VariantInit(&value);
    V_VT(&value) = static_cast<VARTYPE>(type);
    EXPECT_EQ(DISP_E_BADVARTYPE, VariantClear(&value)) << type;
    EXPECT_EQ(type, V_VT(&value));
    VARIANT copy;
    VariantInit(&copy);
    EXPECT_EQ(DISP_E_BADVARTYPE, VariantCopy(&copy, &value)) << type;
    EXPECT_EQ(VT_EMPTY, V_VT(&copy));
  }
}

TEST(Variant, CopyHasATextOfItsOwn) {
  VARIANT source;
  VariantInit(&source);
  V_VT(&source) = VT_BSTR;
  V_BSTR(&source) = SysAllocStringLen(OLESTR("a\0b"), 3);
  VARIANT copy;
  VariantInit(&copy);
  ASSERT_EQ(S_OK, VariantCopy(&copy, &source));
  EXPECT_EQ(VT_BSTR, V_VT(&copy));
  EXPECT_NE(V_BSTR(&source), V_BSTR(&copy));
  VariantClear(&source);
  EXPECT_EQ(Text(OLESTR("a\0b"), 3), Text(V_BSTR(&copy), SysStringLen(V_BSTR(&copy))));
  VariantClear(&copy);
}

TEST(Variant, CopyOfNoTextIsNoText) {
  VARIANT source;
  VariantInit(&source);
  V_VT(&source) = VT_BSTR;
  V_BSTR(&source) = nullptr;
  VARIANT copy;
  VariantInit(&copy);
  ASSERT_EQ(S_OK, VariantCopy(&copy, &source));
  EXPECT_EQ(VT_BSTR, V_VT(&copy));
  EXPECT_EQ(0u, SysStringLen(V_BSTR(&copy)));
  VariantClear(&copy);
}

TEST(Variant, CopyHasAnArrayOfItsOwn) {
  VARIANT source;
  VariantInit(&source);
  V_VT(&source) = VT_ARRAY | VT_UI1;
  V_ARRAY(&source) = SafeArrayCreateVector(VT_UI1, 0, 1);
  LONG index = 0;
  BYTE element = 42;
  ASSERT_EQ(S_OK, SafeArrayPutElement(V_ARRAY(&source), &index, &element));
  VARIANT copy;
  VariantInit(&copy);
  ASSERT_EQ(S_OK, VariantCopy(&copy, &source));
  VariantClear(&source);
  element = 0;
  ASSERT_EQ(S_OK, SafeArrayGetElement(V_ARRAY(&copy), &index, &element));
  EXPECT_EQ(42, element);
  VariantClear(&copy);
}

TEST(Variant, CopySharesTheObject) {
  CountedObject object;
  VARIANT source;
  VariantInit(&source);
  V_VT(&source) = VT_UNKNOWN;
  V_UNKNOWN(&source) = &object;
  VARIANT copy;
  VariantInit(&copy);
  ASSERT_EQ(S_OK, VariantCopy(&copy, &source));
  EXPECT_EQ(&object, V_UNKNOWN(&copy));
  EXPECT_EQ(1u, object.References());
  VariantClear(&copy);
  EXPECT_EQ(0u, object.References());
}

TEST(Variant, CopyingFreesWhatTheDestinationHeld) {
  CountedObject object;
  object.AddRef();
  VARIANT destination;
  VariantInit(&destination);
  V_VT(&destination) = VT_UNKNOWN;
  V_UNKNOWN(&destination) = &object;
  VARIANT source;
  VariantInit(&source);
  V_VT(&source) = VT_UI8;
  V_UI8(&source) = 0xFEDCBA9876543210u;
  ASSERT_EQ(S_OK, VariantCopy(&destination, &source));
  EXPECT_EQ(0u, object.References());
  EXPECT_EQ(VT_UI8, V_VT(&destination));
  EXPECT_EQ(0xFEDCBA9876543210u, V_UI8(&destination));
}

TEST(Variant, CopyingOntoItselfChangesNothing) {
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_BSTR;
  V_BSTR(&value) = SysAllocString(OLESTR("same"));
  BSTR text = V_BSTR(&value);
  EXPECT_EQ(S_OK, VariantCopy(&value, &value));
  EXPECT_EQ(VT_BSTR, V_VT(&value));
  EXPECT_EQ(text, V_BSTR(&value));
  VariantClear(&value);
}

}  // namespace
