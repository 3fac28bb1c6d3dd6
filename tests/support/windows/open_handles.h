/// The handles that the process has open.
#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>

namespace tqcim::testing {

/// Counts them one by one: Wine counts none when it is asked for their number.
inline size_t CountOpenHandles() {
  constexpr uintptr_t kBeyondAnyHandle = 0x8000;
  size_t count = 0;
  for (uintptr_t handle = 4; handle < kBeyondAnyHandle; handle += 4) {
    DWORD flags = 0;
    if (GetHandleInformation(reinterpret_cast<HANDLE>(handle), &flags)) ++count;
  }
  return count;
}

}  // namespace tqcim::testing
