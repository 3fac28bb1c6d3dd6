// What variants of this platform refuse.
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

TEST(Variant, TypesThatThisRuntimeDoesNotOwnAreRefused) {
  for (const int type : {VT_DISPATCH, VT_VARIANT, VT_DECIMAL}) {
    VARIANT value;
    VariantInit(&value);
    V_VT(&value) = static_cast<VARTYPE>(type);
    EXPECT_EQ(DISP_E_BADVARTYPE, VariantClear(&value)) << type;
  }
}

}  // namespace
