// What variants and arrays of this platform refuse.
#include <gtest/gtest.h>

#include "platform/wmi.h"

namespace {

TEST(Variant, ALockedArrayCannotBeClearedNorReplaced) {
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_ARRAY | VT_I2;
  V_ARRAY(&value) = SafeArrayCreateVector(VT_I2, 0, 1);
  void* data;
  ASSERT_EQ(S_OK, SafeArrayAccessData(V_ARRAY(&value), &data));
  EXPECT_EQ(DISP_E_ARRAYISLOCKED, VariantClear(&value));
  EXPECT_EQ(VT_ARRAY | VT_I2, V_VT(&value));
  VARIANT empty;
  VariantInit(&empty);
  EXPECT_EQ(DISP_E_ARRAYISLOCKED, VariantCopy(&value, &empty));
  EXPECT_EQ(VT_ARRAY | VT_I2, V_VT(&value));
  SafeArrayUnaccessData(V_ARRAY(&value));
  EXPECT_EQ(S_OK, VariantClear(&value));
}

TEST(SafeArray, HasOneDimensionWithBounds) {
  SAFEARRAYBOUND bounds[] = {{1, 0}, {1, 0}};
  EXPECT_EQ(nullptr, SafeArrayCreate(VT_I4, 2, bounds));
  EXPECT_EQ(nullptr, SafeArrayCreate(VT_I4, 0, bounds));
  EXPECT_EQ(nullptr, SafeArrayCreate(VT_I4, 1, nullptr));
}

TEST(SafeArray, ANumberFromNowhereIsRefused) {
  SAFEARRAY* array = SafeArrayCreateVector(VT_I4, 0, 1);
  LONG index = 0;
  EXPECT_EQ(E_INVALIDARG, SafeArrayPutElement(array, &index, nullptr));
  EXPECT_EQ(S_OK, SafeArrayDestroy(array));
}

TEST(Variant, TypesThatThisRuntimeDoesNotOwnAreRefused) {
  for (const int type : {VT_DISPATCH, VT_VARIANT, VT_DECIMAL}) {
    VARIANT value;
    VariantInit(&value);
    V_VT(&value) = static_cast<VARTYPE>(type);
    EXPECT_EQ(DISP_E_BADVARTYPE, VariantClear(&value)) << type;
  }
}

}  // namespace
