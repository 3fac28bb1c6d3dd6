/// OLE automation: BSTR, VARIANT and one-dimensional SAFEARRAY.
#pragma once

#include <oaidl.h>

#define V_VT(variant) ((variant)->vt)
#define V_ISBYREF(variant) (V_VT(variant) & VT_BYREF)
#define V_ISARRAY(variant) (V_VT(variant) & VT_ARRAY)
#define V_I1(variant) ((variant)->cVal)
#define V_UI1(variant) ((variant)->bVal)
#define V_I2(variant) ((variant)->iVal)
#define V_UI2(variant) ((variant)->uiVal)
#define V_I4(variant) ((variant)->lVal)
#define V_UI4(variant) ((variant)->ulVal)
#define V_I8(variant) ((variant)->llVal)
#define V_UI8(variant) ((variant)->ullVal)
#define V_INT(variant) ((variant)->intVal)
#define V_UINT(variant) ((variant)->uintVal)
#define V_R4(variant) ((variant)->fltVal)
#define V_R8(variant) ((variant)->dblVal)
#define V_CY(variant) ((variant)->cyVal)
#define V_DATE(variant) ((variant)->date)
#define V_BSTR(variant) ((variant)->bstrVal)
#define V_ERROR(variant) ((variant)->scode)
#define V_BOOL(variant) ((variant)->boolVal)
#define V_UNKNOWN(variant) ((variant)->punkVal)
#define V_ARRAY(variant) ((variant)->parray)
#define V_BYREF(variant) ((variant)->byref)

/// @name BSTR
/// Text behind a 32-bit length in bytes, followed by a zero character; it may hold zero characters
/// of its own. Null stands for the empty text in every function that reads one. Null when there is
/// no memory. The caller frees it with SysFreeString.
/// @{
STDAPI_(BSTR) SysAllocString(const OLECHAR* text);
/// With a null text the contents are left unset.
STDAPI_(BSTR) SysAllocStringLen(const OLECHAR* text, UINT length);
STDAPI_(BSTR) SysAllocStringByteLen(LPCSTR bytes, UINT length);
STDAPI_(void) SysFreeString(BSTR text);
STDAPI_(UINT) SysStringLen(BSTR text);
STDAPI_(UINT) SysStringByteLen(BSTR text);
/// @}

/// @name VARIANT
/// A variant owns its text, array or reference unless VT_BYREF is set. DISP_E_BADVARTYPE for types
/// that no variant can have, and for VT_DISPATCH, VT_VARIANT and VT_DECIMAL, which are not used.
/// @{
STDAPI_(void) VariantInit(VARIANTARG* variant);
/// Frees what the variant owns and sets it to VT_EMPTY.
STDAPI VariantClear(VARIANTARG* variant);
/// Clears the destination and makes it a deep copy of the source.
STDAPI VariantCopy(VARIANTARG* destination, VARIANTARG* source);
/// @}

/// @name SAFEARRAY
/// Elements are numbers, VT_BOOL, VT_DATE, VT_CY, VT_ERROR or VT_BSTR. An array owns its texts.
/// @{

/// Null when the element type is none of these, when there is no memory, or when `dimensions` is
/// not 1. Elements start as zero.
STDAPI_(SAFEARRAY*) SafeArrayCreate(VARTYPE type, UINT dimensions, SAFEARRAYBOUND* bounds);
STDAPI_(SAFEARRAY*) SafeArrayCreateVector(VARTYPE type, LONG lowerBound, ULONG count);
/// DISP_E_ARRAYISLOCKED between SafeArrayAccessData and SafeArrayUnaccessData.
STDAPI SafeArrayDestroy(SAFEARRAY* array);
STDAPI SafeArrayCopy(SAFEARRAY* array, SAFEARRAY** copy);

STDAPI SafeArrayGetVartype(SAFEARRAY* array, VARTYPE* type);
STDAPI_(UINT) SafeArrayGetDim(SAFEARRAY* array);
/// Dimensions count from 1; DISP_E_BADINDEX for others.
STDAPI SafeArrayGetLBound(SAFEARRAY* array, UINT dimension, LONG* bound);
STDAPI SafeArrayGetUBound(SAFEARRAY* array, UINT dimension, LONG* bound);

/// `element` points to the value, or is the BSTR itself, of which the array keeps a copy.
STDAPI SafeArrayPutElement(SAFEARRAY* array, LONG* index, void* element);
/// `element` points to room for the value; a BSTR is a copy that the caller frees.
STDAPI SafeArrayGetElement(SAFEARRAY* array, LONG* index, void* element);

/// Locks the array and gives its elements, one behind the other.
STDAPI SafeArrayAccessData(SAFEARRAY* array, void** data);
/// E_UNEXPECTED if the array is not locked.
STDAPI SafeArrayUnaccessData(SAFEARRAY* array);
/// @}
