// Automation's allocations, which may fail. The program's own definitions stand before the
// runtime's, which they call.
#include <dlfcn.h>

#include "platform/wmi.h"
#include "tests/support/fault.h"

using tqcim::testing::AllocationFails;
using tqcim::testing::Call;

namespace {

/// The runtime's function.
template <typename Function>
Function* Behind(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

BSTR SysAllocString(const OLECHAR* text) {
  static auto* const real = Behind<decltype(SysAllocString)>("SysAllocString");
  return text && AllocationFails(Call::kAutomation) ? nullptr : real(text);
}

BSTR SysAllocStringLen(const OLECHAR* text, UINT length) {
  static auto* const real = Behind<decltype(SysAllocStringLen)>("SysAllocStringLen");
  return AllocationFails(Call::kAutomation) ? nullptr : real(text, length);
}

SAFEARRAY* SafeArrayCreateVector(VARTYPE type, LONG lowerBound, ULONG count) {
  static auto* const real = Behind<decltype(SafeArrayCreateVector)>("SafeArrayCreateVector");
  return AllocationFails(Call::kAutomation) ? nullptr : real(type, lowerBound, count);
}

HRESULT SafeArrayPutElement(SAFEARRAY* array, LONG* index, void* element) {
  static auto* const real = Behind<decltype(SafeArrayPutElement)>("SafeArrayPutElement");
  return AllocationFails(Call::kAutomation) ? E_OUTOFMEMORY : real(array, index, element);
}
