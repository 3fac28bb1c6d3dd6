/// A provider module whose behaviour the test chooses by CLSID and by class name.
#pragma once

#include "platform/wmi.h"

namespace tqcim::host {

/// CLSIDs that the module knows; it refuses all others with E_FAIL. The trace "class" puts a
/// pointer to zero-terminated text in the place of an object: one line for each thing that
/// happened since the module was loaded.
enum class FakeClsid : ULONG {
  kWorks = 1,
  kFactoryRefuses,     ///< CreateInstance gives E_OUTOFMEMORY
  kReportsFailure,     ///< Initialize reports WBEM_E_FAILED to the sink and returns 0
  kReportsNothing,     ///< Initialize returns 0 without a report
  kInitialiseFails,    ///< Initialize returns WBEM_E_ACCESS_DENIED
  kServesNoInstances,  ///< there is no IWbemServices
  kTrace,
};

inline CLSID ClsidOf(FakeClsid which) {
  return {static_cast<ULONG>(which), 0x1234, 0x5678, {0, 1, 2, 3, 4, 5, 6, 7}};
}

}  // namespace tqcim::host
