#include "bench/process_resources.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace tqcim::bench {

size_t MemoryInUse() {
  // proc(5): size and resident pages.
  size_t pages = 0;
  size_t resident = 0;
  std::ifstream("/proc/self/statm") >> pages >> resident;
  return resident * static_cast<size_t>(sysconf(_SC_PAGESIZE));
}

size_t OpenHandles() {
  const std::filesystem::directory_iterator files("/proc/self/fd");
  return static_cast<size_t>(std::distance(begin(files), end(files)));
}

}  // namespace tqcim::bench
