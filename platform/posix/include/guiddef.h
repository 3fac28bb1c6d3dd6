/// Globally unique identifiers, in the byte layout that COM uses in memory.
#pragma once

#include <cstdint>
#include <cstring>

struct GUID {
  uint32_t Data1;
  uint16_t Data2;
  uint16_t Data3;
  uint8_t Data4[8];
};

using IID = GUID;
using CLSID = GUID;
using LPCLSID = CLSID*;

#define REFGUID const GUID&
#define REFIID const IID&
#define REFCLSID const CLSID&

inline int IsEqualGUID(REFGUID a, REFGUID b) {
  return std::memcmp(&a, &b, sizeof(GUID)) == 0;
}
inline int IsEqualIID(REFIID a, REFIID b) {
  return IsEqualGUID(a, b);
}
inline int IsEqualCLSID(REFCLSID a, REFCLSID b) {
  return IsEqualGUID(a, b);
}
inline bool operator==(REFGUID a, REFGUID b) {
  return IsEqualGUID(a, b) != 0;
}
