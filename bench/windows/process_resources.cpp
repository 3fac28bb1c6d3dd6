#include "bench/process_resources.h"

#include <windows.h>

#include <psapi.h>

#include "tests/support/windows/open_handles.h"

namespace tqcim::bench {

size_t MemoryInUse() {
  PROCESS_MEMORY_COUNTERS counters{};
  GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
  return counters.WorkingSetSize;
}

size_t OpenHandles() {
  return testing::CountOpenHandles();
}

}  // namespace tqcim::bench
