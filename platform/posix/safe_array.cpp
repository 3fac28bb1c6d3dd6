#include <oleauto.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <span>

#include "platform/posix/bstr.h"
#include "platform/posix/ledger.h"

using tqcim::runtime::CopyBstr;

namespace {

/// The element type stands in the four bytes before the array.
struct Block {
  uint32_t padding[3];
  uint32_t type;
  SAFEARRAY array;
};

ULONG ElementSize(VARTYPE type) {
  switch (type) {
    case VT_I1:
    case VT_UI1:
      return 1;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
      return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_ERROR:
      return 4;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
      return 8;
    case VT_BSTR:
      return sizeof(BSTR);
    default:
      return 0;
  }
}

Block* BlockOf(SAFEARRAY* array) {
  return reinterpret_cast<Block*>(reinterpret_cast<char*>(array) - offsetof(Block, array));
}

VARTYPE TypeOf(SAFEARRAY* array) {
  return static_cast<VARTYPE>(BlockOf(array)->type);
}

std::span<BSTR> Texts(SAFEARRAY* array) {
  return {static_cast<BSTR*>(array->pvData), array->rgsabound[0].cElements};
}

/// The place of an element, or null if the index is out of bounds.
void* ElementAt(SAFEARRAY* array, LONG index) {
  const int64_t position = int64_t{index} - array->rgsabound[0].lLbound;
  if (position < 0 || position >= array->rgsabound[0].cElements) return nullptr;
  return static_cast<char*>(array->pvData) + position * array->cbElements;
}

HRESULT Bound(SAFEARRAY* array, UINT dimension, int64_t beyondLower, LONG* bound) {
  if (array == nullptr || bound == nullptr) return E_INVALIDARG;
  if (dimension != 1) return DISP_E_BADINDEX;
  *bound = static_cast<LONG>(array->rgsabound[0].lLbound + beyondLower);
  return S_OK;
}

}  // namespace

SAFEARRAY* SafeArrayCreate(VARTYPE type, UINT dimensions, SAFEARRAYBOUND* bounds) {
  const ULONG elementSize = ElementSize(type);
  if (elementSize == 0 || dimensions != 1 || bounds == nullptr) return nullptr;
  auto* block = static_cast<Block*>(std::calloc(1, sizeof(Block)));
  // An array without elements has a place for them, too.
  void* data = std::calloc(std::max<ULONG>(bounds->cElements, 1), elementSize);
  if (block == nullptr || data == nullptr) {
    std::free(block);
    std::free(data);
    return nullptr;
  }
  block->type = type;
  const auto features = type == VT_BSTR ? FADF_HAVEVARTYPE | FADF_BSTR : FADF_HAVEVARTYPE;
  block->array = {1, static_cast<USHORT>(features), elementSize, 0, data, {*bounds}};
  ++tqcim::runtime::liveSafeArrays;
  return &block->array;
}

SAFEARRAY* SafeArrayCreateVector(VARTYPE type, LONG lowerBound, ULONG count) {
  SAFEARRAYBOUND bound{count, lowerBound};
  return SafeArrayCreate(type, 1, &bound);
}

HRESULT SafeArrayDestroy(SAFEARRAY* array) {
  if (array == nullptr) return S_OK;
  if (array->cLocks != 0) return DISP_E_ARRAYISLOCKED;
  if (TypeOf(array) == VT_BSTR) {
    for (BSTR text : Texts(array)) SysFreeString(text);
  }
  std::free(array->pvData);
  std::free(BlockOf(array));
  --tqcim::runtime::liveSafeArrays;
  return S_OK;
}

HRESULT SafeArrayCopy(SAFEARRAY* array, SAFEARRAY** copy) {
  if (copy == nullptr) return E_INVALIDARG;
  *copy = nullptr;
  if (array == nullptr) return S_OK;
  SAFEARRAY* made = SafeArrayCreate(TypeOf(array), 1, array->rgsabound);
  if (made == nullptr) return E_OUTOFMEMORY;
  const size_t count = array->rgsabound[0].cElements;
  if (TypeOf(array) != VT_BSTR) {
    std::memcpy(made->pvData, array->pvData, count * array->cbElements);
  } else {
    for (size_t i = 0; i < count; ++i) {
      if (FAILED(CopyBstr(Texts(array)[i], &Texts(made)[i]))) {
        SafeArrayDestroy(made);
        return E_OUTOFMEMORY;
      }
    }
  }
  *copy = made;
  return S_OK;
}

HRESULT SafeArrayGetVartype(SAFEARRAY* array, VARTYPE* type) {
  if (array == nullptr || type == nullptr) return E_INVALIDARG;
  *type = TypeOf(array);
  return S_OK;
}

UINT SafeArrayGetDim(SAFEARRAY* array) {
  return array == nullptr ? 0 : array->cDims;
}

HRESULT SafeArrayGetLBound(SAFEARRAY* array, UINT dimension, LONG* bound) {
  return Bound(array, dimension, 0, bound);
}

HRESULT SafeArrayGetUBound(SAFEARRAY* array, UINT dimension, LONG* bound) {
  const int64_t count = array == nullptr ? 0 : array->rgsabound[0].cElements;
  return Bound(array, dimension, count - 1, bound);
}

HRESULT SafeArrayPutElement(SAFEARRAY* array, LONG* index, void* element) {
  if (array == nullptr || index == nullptr) return E_INVALIDARG;
  void* place = ElementAt(array, *index);
  if (place == nullptr) return DISP_E_BADINDEX;
  if (TypeOf(array) == VT_BSTR) {
    BSTR copy;
    if (const HRESULT result = CopyBstr(static_cast<BSTR>(element), &copy); FAILED(result)) {
      return result;
    }
    SysFreeString(*static_cast<BSTR*>(place));
    *static_cast<BSTR*>(place) = copy;
    return S_OK;
  }
  if (element == nullptr) return E_INVALIDARG;
  std::memcpy(place, element, array->cbElements);
  return S_OK;
}

HRESULT SafeArrayGetElement(SAFEARRAY* array, LONG* index, void* element) {
  if (array == nullptr || index == nullptr || element == nullptr) return E_INVALIDARG;
  void* place = ElementAt(array, *index);
  if (place == nullptr) return DISP_E_BADINDEX;
  if (TypeOf(array) == VT_BSTR) {
    return CopyBstr(*static_cast<BSTR*>(place), static_cast<BSTR*>(element));
  }
  std::memcpy(element, place, array->cbElements);
  return S_OK;
}

HRESULT SafeArrayAccessData(SAFEARRAY* array, void** data) {
  if (array == nullptr || data == nullptr) return E_INVALIDARG;
  ++array->cLocks;
  *data = array->pvData;
  return S_OK;
}

HRESULT SafeArrayUnaccessData(SAFEARRAY* array) {
  if (array == nullptr) return E_INVALIDARG;
  if (array->cLocks == 0) return E_UNEXPECTED;
  --array->cLocks;
  return S_OK;
}
