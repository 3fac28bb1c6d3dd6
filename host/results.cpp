#include "host/results.h"

#include <cstdint>
#include <cstdio>

namespace tqcim::host {
namespace {

struct NamedResult {
  HRESULT result;
  const char* name;
};

constexpr NamedResult kNames[] = {
    {WBEM_S_NO_ERROR, "WBEM_S_NO_ERROR"},
    {kFailed, "WBEM_E_FAILED"},
    {kNotFound, "WBEM_E_NOT_FOUND"},
    {kProviderFailure, "WBEM_E_PROVIDER_FAILURE"},
    {kTypeMismatch, "WBEM_E_TYPE_MISMATCH"},
    {kOutOfMemory, "WBEM_E_OUT_OF_MEMORY"},
    {kInvalidParameter, "WBEM_E_INVALID_PARAMETER"},
    {kNotSupported, "WBEM_E_NOT_SUPPORTED"},
    {kInvalidNamespace, "WBEM_E_INVALID_NAMESPACE"},
    {kInvalidObject, "WBEM_E_INVALID_OBJECT"},
    {kUnexpected, "WBEM_E_UNEXPECTED"},
    {kCallCancelled, "WBEM_E_CALL_CANCELLED"},
    {kInvalidObjectPath, "WBEM_E_INVALID_OBJECT_PATH"},
    {kBufferTooSmall, "WBEM_E_BUFFER_TOO_SMALL"},
    {E_FAIL, "E_FAIL"},
    {E_NOINTERFACE, "E_NOINTERFACE"},
    {E_OUTOFMEMORY, "E_OUTOFMEMORY"},
    {CLASS_E_CLASSNOTAVAILABLE, "CLASS_E_CLASSNOTAVAILABLE"},
    {REGDB_E_CLASSNOTREG, "REGDB_E_CLASSNOTREG"},
    {CO_E_NOTINITIALIZED, "CO_E_NOTINITIALIZED"},
    {CO_E_OBJISREG, "CO_E_OBJISREG"},
    {RPC_E_CHANGED_MODE, "RPC_E_CHANGED_MODE"},
};

}  // namespace

std::string ResultText(HRESULT result) {
  char number[11];
  std::snprintf(number, sizeof(number), "0x%08X", static_cast<unsigned>(result));
  for (const NamedResult& named : kNames) {
    if (named.result == result) return std::string(named.name) + " (" + number + ")";
  }
  return number;
}

}  // namespace tqcim::host
