/// The results of WMI that the host answers with, and results as text.
#pragma once

#include <string>

#include "platform/refusing_interfaces.h"

namespace tqcim::host {

// The platform declares them as an enumeration that does not convert to HRESULT by itself.
inline constexpr auto kFailed = static_cast<HRESULT>(WBEM_E_FAILED);
inline constexpr auto kNotFound = static_cast<HRESULT>(WBEM_E_NOT_FOUND);
inline constexpr auto kProviderFailure = static_cast<HRESULT>(WBEM_E_PROVIDER_FAILURE);
inline constexpr auto kTypeMismatch = static_cast<HRESULT>(WBEM_E_TYPE_MISMATCH);
inline constexpr auto kOutOfMemory = static_cast<HRESULT>(WBEM_E_OUT_OF_MEMORY);
inline constexpr auto kInvalidParameter = static_cast<HRESULT>(WBEM_E_INVALID_PARAMETER);
inline constexpr auto kInvalidNamespace = static_cast<HRESULT>(WBEM_E_INVALID_NAMESPACE);
inline constexpr auto kInvalidObject = static_cast<HRESULT>(WBEM_E_INVALID_OBJECT);
inline constexpr auto kUnexpected = static_cast<HRESULT>(WBEM_E_UNEXPECTED);
inline constexpr auto kCallCancelled = static_cast<HRESULT>(WBEM_E_CALL_CANCELLED);
inline constexpr auto kInvalidObjectPath = static_cast<HRESULT>(WBEM_E_INVALID_OBJECT_PATH);
inline constexpr auto kBufferTooSmall = static_cast<HRESULT>(WBEM_E_BUFFER_TOO_SMALL);

/// "WBEM_E_NOT_FOUND (0x80041002)"; a result without a known name is "0x8007000D".
std::string ResultText(HRESULT result);

}  // namespace tqcim::host
