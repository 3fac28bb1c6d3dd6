#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "platform/wmi.h"

namespace {

using Text = std::basic_string<OLECHAR>;

/// Puts two values into an array of the type and expects to read the same two.
template <typename Value>
void ExpectRoundTrip(VARTYPE type, Value first, Value second) {
  SAFEARRAY* array = SafeArrayCreateVector(type, 0, 2);
  ASSERT_NE(nullptr, array) << type;
  EXPECT_EQ(sizeof(Value), array->cbElements) << type;
  VARTYPE actual = VT_EMPTY;
  EXPECT_EQ(S_OK, SafeArrayGetVartype(array, &actual));
  EXPECT_EQ(type, actual);
  LONG index = 0;
  EXPECT_EQ(S_OK, SafeArrayPutElement(array, &index, &first));
  index = 1;
  EXPECT_EQ(S_OK, SafeArrayPutElement(array, &index, &second));
  void* data = nullptr;
  EXPECT_EQ(S_OK, SafeArrayAccessData(array, &data));
  EXPECT_EQ(first, static_cast<Value*>(data)[0]);
  EXPECT_EQ(second, static_cast<Value*>(data)[1]);
  EXPECT_EQ(S_OK, SafeArrayUnaccessData(array));
  Value read{};
  EXPECT_EQ(S_OK, SafeArrayGetElement(array, &index, &read));
  EXPECT_EQ(second, read);
  EXPECT_EQ(S_OK, SafeArrayDestroy(array));
}

TEST(SafeArray, KeepsElementsOfEveryType) {
  ExpectRoundTrip<CHAR>(VT_I1, -128, 127);
  ExpectRoundTrip<BYTE>(VT_UI1, 0, 255);
  ExpectRoundTrip<SHORT>(VT_I2, -32768, 32767);
  ExpectRoundTrip<USHORT>(VT_UI2, 1, 65535);
  ExpectRoundTrip<LONG>(VT_I4, std::numeric_limits<LONG>::min(), 7);
  ExpectRoundTrip<ULONG>(VT_UI4, 1, 0xFFFFFFFFu);
  ExpectRoundTrip<LONGLONG>(VT_I8, -1, 1);
  ExpectRoundTrip<ULONGLONG>(VT_UI8, 0xFEDCBA9876543210u, 1);
  ExpectRoundTrip<INT>(VT_INT, -1, 1);
  ExpectRoundTrip<UINT>(VT_UINT, 1, 0xFFFFFFFFu);
  ExpectRoundTrip<VARIANT_BOOL>(VT_BOOL, VARIANT_TRUE, 1);
  ExpectRoundTrip<FLOAT>(VT_R4, 0.5f, -2.0f);
  ExpectRoundTrip<DOUBLE>(VT_R8, 0.1, -1e300);
  ExpectRoundTrip<DATE>(VT_DATE, 42077.5, 0.0);
  ExpectRoundTrip<SCODE>(VT_ERROR, E_FAIL, S_OK);
}

TEST(SafeArray, ElementsStartAsZero) {
  SAFEARRAY* array = SafeArrayCreateVector(VT_UI4, 0, 3);
  LONG index = 2;
  ULONG element = 9;
  EXPECT_EQ(S_OK, SafeArrayGetElement(array, &index, &element));
  EXPECT_EQ(0u, element);
  SafeArrayDestroy(array);
}

TEST(SafeArray, BoundsAreInclusive) {
  SAFEARRAY* array = SafeArrayCreateVector(VT_UI2, 5, 3);
  LONG lower = 0;
  LONG upper = 0;
  EXPECT_EQ(1u, SafeArrayGetDim(array));
  EXPECT_EQ(S_OK, SafeArrayGetLBound(array, 1, &lower));
  EXPECT_EQ(S_OK, SafeArrayGetUBound(array, 1, &upper));
  EXPECT_EQ(5, lower);
  EXPECT_EQ(7, upper);
  USHORT element = 1;
  for (LONG index : {4, 8, -1}) {
    EXPECT_EQ(DISP_E_BADINDEX, SafeArrayPutElement(array, &index, &element)) << index;
    EXPECT_EQ(DISP_E_BADINDEX, SafeArrayGetElement(array, &index, &element)) << index;
  }
  for (LONG index : {5, 7}) {
    EXPECT_EQ(S_OK, SafeArrayPutElement(array, &index, &element)) << index;
  }
  SafeArrayDestroy(array);
}

TEST(SafeArray, DimensionsCountFromOne) {
  SAFEARRAY* array = SafeArrayCreateVector(VT_UI2, 0, 1);
  LONG bound;
  EXPECT_EQ(DISP_E_BADINDEX, SafeArrayGetLBound(array, 0, &bound));
  EXPECT_EQ(DISP_E_BADINDEX, SafeArrayGetUBound(array, 2, &bound));
  SafeArrayDestroy(array);
}

TEST(SafeArray, AnEmptyArrayEndsBeforeItBegins) {
  SAFEARRAY* array = SafeArrayCreateVector(VT_BSTR, 0, 0);
  ASSERT_NE(nullptr, array);
  LONG upper = 0;
  EXPECT_EQ(S_OK, SafeArrayGetUBound(array, 1, &upper));
  EXPECT_EQ(-1, upper);
  SAFEARRAY* copy = nullptr;
  EXPECT_EQ(S_OK, SafeArrayCopy(array, &copy));
  EXPECT_EQ(S_OK, SafeArrayDestroy(copy));
  EXPECT_EQ(S_OK, SafeArrayDestroy(array));
}

TEST(SafeArray, CreatedFromBoundsKnowsThem) {
  SAFEARRAYBOUND bound = {2, -1};
  SAFEARRAY* array = SafeArrayCreate(VT_I4, 1, &bound);
  ASSERT_NE(nullptr, array);
  LONG lower = 0;
  LONG upper = 0;
  SafeArrayGetLBound(array, 1, &lower);
  SafeArrayGetUBound(array, 1, &upper);
  EXPECT_EQ(-1, lower);
  EXPECT_EQ(0, upper);
  SafeArrayDestroy(array);
}

TEST(SafeArray, TypesThatNoElementHasGiveNull) {
  EXPECT_EQ(nullptr, SafeArrayCreateVector(VT_EMPTY, 0, 1));
  EXPECT_EQ(nullptr, SafeArrayCreateVector(VT_NULL, 0, 1));
  EXPECT_EQ(nullptr, SafeArrayCreateVector(VT_ARRAY | VT_I2, 0, 1));
}

TEST(SafeArray, OwnsCopiesOfItsTexts) {
  SAFEARRAY* array = SafeArrayCreateVector(VT_BSTR, 0, 2);
  EXPECT_TRUE(array->fFeatures & FADF_BSTR);
  LONG index = 0;
  BSTR text = SysAllocStringLen(OLESTR("a\0b"), 3);
  EXPECT_EQ(S_OK, SafeArrayPutElement(array, &index, text));
  SysFreeString(text);
  BSTR read = nullptr;
  EXPECT_EQ(S_OK, SafeArrayGetElement(array, &index, &read));
  EXPECT_EQ(Text(OLESTR("a\0b"), 3), Text(read, SysStringLen(read)));
  SysFreeString(read);
  text = SysAllocString(OLESTR("second"));
  EXPECT_EQ(S_OK, SafeArrayPutElement(array, &index, text));
  SysFreeString(text);
  void* data = nullptr;
  ASSERT_EQ(S_OK, SafeArrayAccessData(array, &data));
  EXPECT_EQ(OLESTR("second"), Text(static_cast<BSTR*>(data)[0]));
  EXPECT_EQ(nullptr, static_cast<BSTR*>(data)[1]);
  SafeArrayUnaccessData(array);
  EXPECT_EQ(S_OK, SafeArrayDestroy(array));
}

TEST(SafeArray, CopyIsIndependent) {
  SAFEARRAY* array = SafeArrayCreateVector(VT_BSTR, 3, 2);
  LONG index = 3;
  BSTR text = SysAllocString(OLESTR("shared"));
  SafeArrayPutElement(array, &index, text);
  SysFreeString(text);
  SAFEARRAY* copy = nullptr;
  ASSERT_EQ(S_OK, SafeArrayCopy(array, &copy));
  SafeArrayDestroy(array);
  VARTYPE type = VT_EMPTY;
  EXPECT_EQ(S_OK, SafeArrayGetVartype(copy, &type));
  EXPECT_EQ(VT_BSTR, type);
  LONG lower = 0;
  SafeArrayGetLBound(copy, 1, &lower);
  EXPECT_EQ(3, lower);
  BSTR read = nullptr;
  EXPECT_EQ(S_OK, SafeArrayGetElement(copy, &index, &read));
  EXPECT_EQ(OLESTR("shared"), Text(read));
  SysFreeString(read);
  SafeArrayDestroy(copy);
}

TEST(SafeArray, LocksNest) {
  SAFEARRAY* array = SafeArrayCreateVector(VT_UI1, 0, 1);
  void* data;
  EXPECT_EQ(S_OK, SafeArrayAccessData(array, &data));
  EXPECT_EQ(S_OK, SafeArrayAccessData(array, &data));
  EXPECT_EQ(S_OK, SafeArrayUnaccessData(array));
  EXPECT_EQ(DISP_E_ARRAYISLOCKED, SafeArrayDestroy(array));
  EXPECT_EQ(S_OK, SafeArrayUnaccessData(array));
  EXPECT_EQ(E_UNEXPECTED, SafeArrayUnaccessData(array));
  EXPECT_EQ(S_OK, SafeArrayDestroy(array));
}

TEST(SafeArray, NullIsRefused) {
  LONG number = 0;
  VARTYPE type;
  void* data;
  EXPECT_EQ(S_OK, SafeArrayDestroy(nullptr));
  EXPECT_EQ(0u, SafeArrayGetDim(nullptr));
  EXPECT_EQ(E_INVALIDARG, SafeArrayGetVartype(nullptr, &type));
  EXPECT_EQ(E_INVALIDARG, SafeArrayGetLBound(nullptr, 1, &number));
  EXPECT_EQ(E_INVALIDARG, SafeArrayGetUBound(nullptr, 1, &number));
  EXPECT_EQ(E_INVALIDARG, SafeArrayGetElement(nullptr, &number, &number));
  EXPECT_EQ(E_INVALIDARG, SafeArrayPutElement(nullptr, &number, &number));
  EXPECT_EQ(E_INVALIDARG, SafeArrayAccessData(nullptr, &data));
  EXPECT_EQ(E_INVALIDARG, SafeArrayUnaccessData(nullptr));
  EXPECT_EQ(E_INVALIDARG, SafeArrayCopy(nullptr, nullptr));
}

TEST(SafeArray, NowhereToReadFromOrToWriteToIsRefused) {
  SAFEARRAY* array = SafeArrayCreateVector(VT_I4, 0, 1);
  LONG number = 0;
  EXPECT_EQ(E_INVALIDARG, SafeArrayGetVartype(array, nullptr));
  EXPECT_EQ(E_INVALIDARG, SafeArrayGetLBound(array, 1, nullptr));
  EXPECT_EQ(E_INVALIDARG, SafeArrayGetUBound(array, 1, nullptr));
  EXPECT_EQ(E_INVALIDARG, SafeArrayGetElement(array, nullptr, &number));
  EXPECT_EQ(E_INVALIDARG, SafeArrayGetElement(array, &number, nullptr));
  EXPECT_EQ(E_INVALIDARG, SafeArrayPutElement(array, nullptr, &number));
  EXPECT_EQ(E_INVALIDARG, SafeArrayAccessData(array, nullptr));
  EXPECT_EQ(E_INVALIDARG, SafeArrayCopy(array, nullptr));
  EXPECT_EQ(S_OK, SafeArrayDestroy(array));
}

}  // namespace
