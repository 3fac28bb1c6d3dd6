#include <oleauto.h>

#include "platform/posix/bstr.h"

namespace {

/// Whether a variant of this runtime can have the type. VT_EMPTY and VT_NULL have no value that
/// could be an array or a reference.
bool IsVariantType(VARTYPE type) {
  if ((type & ~(VT_TYPEMASK | VT_ARRAY | VT_BYREF)) != 0) return false;
  switch (type & VT_TYPEMASK) {
    case VT_EMPTY:
    case VT_NULL:
      return (type & (VT_ARRAY | VT_BYREF)) == 0;
    case VT_I1:
    case VT_UI1:
    case VT_I2:
    case VT_UI2:
    case VT_I4:
    case VT_UI4:
    case VT_I8:
    case VT_UI8:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
    case VT_ERROR:
    case VT_BOOL:
    case VT_BSTR:
    case VT_UNKNOWN:
      return true;
    default:
      return false;
  }
}

HRESULT FreeValue(VARIANTARG& variant) {
  if (V_ISBYREF(&variant)) return S_OK;
  if (V_ISARRAY(&variant)) return SafeArrayDestroy(V_ARRAY(&variant));
  if (V_VT(&variant) == VT_BSTR) SysFreeString(V_BSTR(&variant));
  if (V_VT(&variant) == VT_UNKNOWN && V_UNKNOWN(&variant) != nullptr)
    V_UNKNOWN(&variant)->Release();
  return S_OK;
}

/// Gives a variant that has the same bits as another one a value of its own.
HRESULT DuplicateValue(VARIANTARG& variant) {
  if (V_ISBYREF(&variant)) return S_OK;
  if (V_ISARRAY(&variant)) return SafeArrayCopy(V_ARRAY(&variant), &V_ARRAY(&variant));
  if (V_VT(&variant) == VT_BSTR) {
    return tqcim::runtime::CopyBstr(V_BSTR(&variant), &V_BSTR(&variant));
  }
  if (V_VT(&variant) == VT_UNKNOWN && V_UNKNOWN(&variant) != nullptr) V_UNKNOWN(&variant)->AddRef();
  return S_OK;
}

}  // namespace

void VariantInit(VARIANTARG* variant) {
  *variant = VARIANTARG{};
}

HRESULT VariantClear(VARIANTARG* variant) {
  if (!IsVariantType(V_VT(variant))) return DISP_E_BADVARTYPE;
  const HRESULT result = FreeValue(*variant);
  if (SUCCEEDED(result)) V_VT(variant) = VT_EMPTY;
  return result;
}

HRESULT VariantCopy(VARIANTARG* destination, VARIANTARG* source) {
  if (!IsVariantType(V_VT(source))) return DISP_E_BADVARTYPE;
  if (destination == source) return S_OK;
  if (const HRESULT result = VariantClear(destination); FAILED(result)) return result;
  VARIANTARG copy = *source;
  if (const HRESULT result = DuplicateValue(copy); FAILED(result)) return result;
  *destination = copy;
  return S_OK;
}
