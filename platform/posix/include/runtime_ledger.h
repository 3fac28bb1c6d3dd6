/// What the runtime has handed out and not got back, so that tests can see that everything was
/// freed exactly once. Builds without tests don't count texts, arrays and blocks.
#pragma once

#include <cstdint>

namespace tqcim {

struct RuntimeLedger {
  int64_t bstrs;       ///< live texts in the process, those inside variants and arrays included
  int64_t safeArrays;  ///< live arrays in the process
  int64_t taskBlocks;  ///< live blocks of task memory in the process
  int64_t classes;     ///< registered class objects in the process
  uint32_t initialisations;  ///< CoInitializeEx calls of this thread without their CoUninitialize

  bool operator==(const RuntimeLedger&) const = default;
};

__attribute__((visibility("default"))) RuntimeLedger CurrentRuntimeLedger();

}  // namespace tqcim
