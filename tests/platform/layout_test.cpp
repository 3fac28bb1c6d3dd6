// Sizes and offsets that objects of both platforms have in memory.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <type_traits>

#include "platform/wmi.h"

namespace {

TEST(Layout, BasicTypesHaveThePlatformsSizes) {
  EXPECT_EQ(1u, sizeof(BYTE));
  EXPECT_EQ(1u, sizeof(CHAR));
  EXPECT_EQ(1u, sizeof(boolean));
  EXPECT_EQ(2u, sizeof(WORD));
  EXPECT_EQ(2u, sizeof(SHORT));
  EXPECT_EQ(2u, sizeof(USHORT));
  EXPECT_EQ(2u, sizeof(VARIANT_BOOL));
  EXPECT_EQ(4u, sizeof(DWORD));
  EXPECT_EQ(4u, sizeof(LONG));
  EXPECT_EQ(4u, sizeof(ULONG));
  EXPECT_EQ(4u, sizeof(INT));
  EXPECT_EQ(4u, sizeof(UINT));
  EXPECT_EQ(4u, sizeof(BOOL));
  EXPECT_EQ(4u, sizeof(SCODE));
  EXPECT_EQ(4u, sizeof(FLOAT));
  EXPECT_EQ(8u, sizeof(DOUBLE));
  EXPECT_EQ(8u, sizeof(DATE));
  EXPECT_EQ(8u, sizeof(CY));
  EXPECT_EQ(8u, sizeof(LONGLONG));
  EXPECT_EQ(8u, sizeof(ULONGLONG));
  EXPECT_EQ(8u, sizeof(SIZE_T));
  EXPECT_TRUE(std::is_signed_v<LONG> && std::is_signed_v<VARIANT_BOOL>);
  EXPECT_TRUE(std::is_unsigned_v<ULONG> && std::is_unsigned_v<DWORD> && std::is_unsigned_v<WORD>);
}

TEST(Layout, WideTextIsUtf16) {
  EXPECT_EQ(2u, sizeof(WCHAR));
  EXPECT_EQ(2u, sizeof(OLECHAR));
  EXPECT_TRUE((std::is_same_v<WCHAR, OLECHAR>));
  EXPECT_TRUE((std::is_same_v<BSTR, OLECHAR*>));
  EXPECT_TRUE((std::is_same_v<LPCWSTR, const OLECHAR*>));
  EXPECT_EQ(3u * 2u, sizeof(OLESTR("\U0001F600")));
}

TEST(Layout, GuidIsSixteenBytes) {
  EXPECT_EQ(16u, sizeof(GUID));
  EXPECT_EQ(4u, alignof(GUID));
  EXPECT_EQ(0u, offsetof(GUID, Data1));
  EXPECT_EQ(4u, offsetof(GUID, Data2));
  EXPECT_EQ(6u, offsetof(GUID, Data3));
  EXPECT_EQ(8u, offsetof(GUID, Data4));
}

TEST(Layout, VariantHoldsItsValueAtEight) {
  EXPECT_EQ(24u, sizeof(VARIANT));
  EXPECT_EQ(8u, alignof(VARIANT));
  EXPECT_EQ(0u, offsetof(VARIANT, vt));
  EXPECT_EQ(2u, offsetof(VARIANT, wReserved1));
  EXPECT_EQ(6u, offsetof(VARIANT, wReserved3));
  EXPECT_EQ(8u, offsetof(VARIANT, lVal));
  EXPECT_EQ(8u, offsetof(VARIANT, bstrVal));
  EXPECT_EQ(8u, offsetof(VARIANT, parray));
  EXPECT_EQ(8u, offsetof(VARIANT, ullVal));
}

TEST(Layout, VariantAccessorsReachTheValue) {
  VARIANT variant;
  const auto* value = reinterpret_cast<const char*>(&variant) + 8;
  EXPECT_EQ(value - 8, reinterpret_cast<const char*>(&V_VT(&variant)));
  for (const void* accessed : {static_cast<const void*>(&V_I1(&variant)),
                               static_cast<const void*>(&V_UI1(&variant)),
                               static_cast<const void*>(&V_I2(&variant)),
                               static_cast<const void*>(&V_UI2(&variant)),
                               static_cast<const void*>(&V_I4(&variant)),
                               static_cast<const void*>(&V_UI4(&variant)),
                               static_cast<const void*>(&V_I8(&variant)),
                               static_cast<const void*>(&V_UI8(&variant)),
                               static_cast<const void*>(&V_INT(&variant)),
                               static_cast<const void*>(&V_UINT(&variant)),
                               static_cast<const void*>(&V_R4(&variant)),
                               static_cast<const void*>(&V_R8(&variant)),
                               static_cast<const void*>(&V_CY(&variant)),
                               static_cast<const void*>(&V_DATE(&variant)),
                               static_cast<const void*>(&V_BSTR(&variant)),
                               static_cast<const void*>(&V_ERROR(&variant)),
                               static_cast<const void*>(&V_BOOL(&variant)),
                               static_cast<const void*>(&V_UNKNOWN(&variant)),
                               static_cast<const void*>(&V_ARRAY(&variant)),
                               static_cast<const void*>(&V_BYREF(&variant))}) {
    EXPECT_EQ(value, accessed);
  }
  EXPECT_EQ(8u, sizeof(V_I8(&variant)));
  EXPECT_EQ(4u, sizeof(V_UI4(&variant)));
  EXPECT_EQ(2u, sizeof(V_BOOL(&variant)));
  EXPECT_EQ(1u, sizeof(V_UI1(&variant)));
}

TEST(Layout, SafeArrayHasThePlatformsFields) {
  EXPECT_EQ(32u, sizeof(SAFEARRAY));
  EXPECT_EQ(0u, offsetof(SAFEARRAY, cDims));
  EXPECT_EQ(2u, offsetof(SAFEARRAY, fFeatures));
  EXPECT_EQ(4u, offsetof(SAFEARRAY, cbElements));
  EXPECT_EQ(8u, offsetof(SAFEARRAY, cLocks));
  EXPECT_EQ(16u, offsetof(SAFEARRAY, pvData));
  EXPECT_EQ(24u, offsetof(SAFEARRAY, rgsabound));
  EXPECT_EQ(8u, sizeof(SAFEARRAYBOUND));
  EXPECT_EQ(0u, offsetof(SAFEARRAYBOUND, cElements));
  EXPECT_EQ(4u, offsetof(SAFEARRAYBOUND, lLbound));
}

TEST(Layout, BstrFollowsItsLengthInBytes) {
  BSTR text = SysAllocString(OLESTR("Rack 7"));
  uint32_t prefix;
  std::memcpy(&prefix, reinterpret_cast<const char*>(text) - 4, sizeof(prefix));
  EXPECT_EQ(12u, prefix);
  EXPECT_EQ(0, text[6]);
  SysFreeString(text);
}

}  // namespace
