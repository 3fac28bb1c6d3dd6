/// The results of WMI that the module answers with. The platform declares them as an enumeration
/// that does not convert to HRESULT by itself.
#pragma once

#include "platform/wmi.h"

namespace tqcim {

inline constexpr auto kFailed = static_cast<HRESULT>(WBEM_E_FAILED);
inline constexpr auto kNotFound = static_cast<HRESULT>(WBEM_E_NOT_FOUND);

}  // namespace tqcim
