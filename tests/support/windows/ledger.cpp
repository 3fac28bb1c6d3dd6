// Counts by standing in the import slots of the functions that take and give back: a call of
// `SysFreeString` goes through `__imp_SysFreeString`, which is defined here and not in the import
// library. Copies of texts that oleaut32 makes and frees inside (in arrays and variants) are
// counted where the call goes in. The functions that take may fail, too.
#include "tests/support/ledger.h"

#include <atomic>

#include "platform/wmi.h"
#include "tests/support/fault.h"

namespace tqcim::testing {
namespace {

std::atomic<int64_t> liveTexts = 0;
std::atomic<int64_t> liveArrays = 0;
thread_local int64_t initialisations = 0;

template <typename Function>
Function* Imported(const char* module, const char* name) {
  return reinterpret_cast<Function*>(
      reinterpret_cast<void*>(GetProcAddress(LoadLibraryA(module), name)));
}

/// The function behind an import slot.
#define IMPORTED(module, name) Imported<decltype(name)>(module, #name)

int64_t TextsIn(SAFEARRAY* array) {
  VARTYPE type = VT_EMPTY;
  void* data = nullptr;
  if (FAILED(SafeArrayGetVartype(array, &type)) || type != VT_BSTR) return 0;
  if (FAILED(SafeArrayAccessData(array, &data))) return 0;
  int64_t texts = 0;
  for (ULONG i = 0; i < array->rgsabound[0].cElements; ++i) {
    if (static_cast<BSTR*>(data)[i]) ++texts;
  }
  SafeArrayUnaccessData(array);
  return texts;
}

/// What a variant owns.
struct Contents {
  explicit Contents(const VARIANT& value) {
    if (V_VT(&value) == VT_BSTR && V_BSTR(&value)) texts = 1;
    if ((V_VT(&value) & VT_ARRAY) && !V_ISBYREF(&value) && V_ARRAY(&value)) {
      arrays = 1;
      texts = TextsIn(V_ARRAY(&value));
    }
  }
  int64_t texts = 0;
  int64_t arrays = 0;
};

BSTR Taken(BSTR text) {
  if (text) ++liveTexts;
  return text;
}

BSTR WINAPI CountingAllocString(const OLECHAR* text) {
  static auto* const real = IMPORTED("oleaut32.dll", SysAllocString);
  if (text && AllocationFails(Call::kAutomation)) return nullptr;
  return Taken(real(text));
}

BSTR WINAPI CountingAllocStringLen(const OLECHAR* text, UINT length) {
  static auto* const real = IMPORTED("oleaut32.dll", SysAllocStringLen);
  if (AllocationFails(Call::kAutomation)) return nullptr;
  return Taken(real(text, length));
}

void WINAPI CountingFreeString(BSTR text) {
  static auto* const real = IMPORTED("oleaut32.dll", SysFreeString);
  if (text) --liveTexts;
  real(text);
}

HRESULT WINAPI CountingVariantClear(VARIANTARG* value) {
  static auto* const real = IMPORTED("oleaut32.dll", VariantClear);
  const Contents before(*value);
  const HRESULT cleared = real(value);
  if (SUCCEEDED(cleared)) {
    liveTexts -= before.texts;
    liveArrays -= before.arrays;
  }
  return cleared;
}

HRESULT WINAPI CountingVariantCopy(VARIANTARG* destination, VARIANTARG* source) {
  static auto* const real = IMPORTED("oleaut32.dll", VariantCopy);
  const Contents before(*destination);
  const HRESULT copied = real(destination, source);
  if (SUCCEEDED(copied)) {
    const Contents after(*destination);
    liveTexts += after.texts - before.texts;
    liveArrays += after.arrays - before.arrays;
  }
  return copied;
}

SAFEARRAY* WINAPI CountingCreateVector(VARTYPE type, LONG lowerBound, ULONG count) {
  static auto* const real = IMPORTED("oleaut32.dll", SafeArrayCreateVector);
  if (AllocationFails(Call::kAutomation)) return nullptr;
  SAFEARRAY* const array = real(type, lowerBound, count);
  if (array) ++liveArrays;
  return array;
}

HRESULT WINAPI CountingPutElement(SAFEARRAY* array, LONG* index, void* element) {
  static auto* const real = IMPORTED("oleaut32.dll", SafeArrayPutElement);
  if (AllocationFails(Call::kAutomation)) return E_OUTOFMEMORY;
  const int64_t before = TextsIn(array);
  const HRESULT put = real(array, index, element);
  liveTexts += TextsIn(array) - before;
  return put;
}

HRESULT WINAPI CountingDestroy(SAFEARRAY* array) {
  static auto* const real = IMPORTED("oleaut32.dll", SafeArrayDestroy);
  const int64_t texts = array ? TextsIn(array) : 0;
  const HRESULT destroyed = real(array);
  if (array && SUCCEEDED(destroyed)) {
    liveTexts -= texts;
    --liveArrays;
  }
  return destroyed;
}

HRESULT WINAPI CountingInitializeEx(LPVOID reserved, DWORD mode) {
  static auto* const real = IMPORTED("ole32.dll", CoInitializeEx);
  const HRESULT entered = real(reserved, mode);
  if (SUCCEEDED(entered)) ++initialisations;
  return entered;
}

void WINAPI CountingUninitialize() {
  static auto* const real = IMPORTED("ole32.dll", CoUninitialize);
  --initialisations;
  real();
}

}  // namespace

Ledger CurrentLedger() {
  return {liveTexts, liveArrays, initialisations};
}

extern "C" {
decltype(&SysAllocString) __imp_SysAllocString = CountingAllocString;
decltype(&SysAllocStringLen) __imp_SysAllocStringLen = CountingAllocStringLen;
decltype(&SysFreeString) __imp_SysFreeString = CountingFreeString;
decltype(&VariantClear) __imp_VariantClear = CountingVariantClear;
decltype(&VariantCopy) __imp_VariantCopy = CountingVariantCopy;
decltype(&SafeArrayCreateVector) __imp_SafeArrayCreateVector = CountingCreateVector;
decltype(&SafeArrayPutElement) __imp_SafeArrayPutElement = CountingPutElement;
decltype(&SafeArrayDestroy) __imp_SafeArrayDestroy = CountingDestroy;
decltype(&CoInitializeEx) __imp_CoInitializeEx = CountingInitializeEx;
decltype(&CoUninitialize) __imp_CoUninitialize = CountingUninitialize;
}

}  // namespace tqcim::testing
