#include "bench/process_resources.h"

#include <windows.h>

#include <psapi.h>

namespace tqcim::bench {

size_t MemoryInUse() {
  PROCESS_MEMORY_COUNTERS_EX counters{};
  GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters),
                       sizeof counters);
  return counters.PrivateUsage;
}

/// One by one: Wine counts none when it is asked for their number.
size_t OpenHandles() {
  constexpr uintptr_t kBeyondAnyHandle = 0x8000;
  size_t count = 0;
  for (uintptr_t handle = 4; handle < kBeyondAnyHandle; handle += 4) {
    DWORD flags = 0;
    if (GetHandleInformation(reinterpret_cast<HANDLE>(handle), &flags)) ++count;
  }
  return count;
}

}  // namespace tqcim::bench
