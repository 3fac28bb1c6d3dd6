/// Arrays and variants, in the platform's layout.
#pragma once

#include <unknwn.h>

struct SAFEARRAYBOUND {
  ULONG cElements;
  LONG lLbound;
};

inline constexpr USHORT FADF_HAVEVARTYPE = 0x80;
inline constexpr USHORT FADF_BSTR = 0x100;

/// An array that knows its element type and bounds. Only oleauto.h's functions make and free one.
struct SAFEARRAY {
  USHORT cDims;
  USHORT fFeatures;
  ULONG cbElements;
  ULONG cLocks;
  PVOID pvData;
  SAFEARRAYBOUND rgsabound[1];
};

/// Two pointers, which make the variant as large as it is.
struct VariantRecord {
  PVOID pvRecord;
  PVOID pRecInfo;
};

struct VARIANT {
  VARTYPE vt;
  WORD wReserved1;
  WORD wReserved2;
  WORD wReserved3;
  union {
    LONGLONG llVal;
    LONG lVal;
    BYTE bVal;
    SHORT iVal;
    FLOAT fltVal;
    DOUBLE dblVal;
    VARIANT_BOOL boolVal;
    SCODE scode;
    CY cyVal;
    DATE date;
    BSTR bstrVal;
    IUnknown* punkVal;
    SAFEARRAY* parray;
    VARIANT* pvarVal;
    PVOID byref;
    CHAR cVal;
    USHORT uiVal;
    ULONG ulVal;
    ULONGLONG ullVal;
    INT intVal;
    UINT uintVal;
    VariantRecord brecVal;
  };
};
using VARIANTARG = VARIANT;
