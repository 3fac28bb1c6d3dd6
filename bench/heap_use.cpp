#include "bench/heap_use.h"

#include <algorithm>
#include <atomic>
#include <cstdint>

namespace tqcim::bench {
namespace {

std::atomic<bool> counting;
std::atomic<size_t> allocations;
std::atomic<int64_t> bytesInUse;
std::atomic<int64_t> peakBytes;

}  // namespace

bool CountsHeapUse() {
  return counting.load(std::memory_order_relaxed);
}

void CountAllocation(size_t bytes) {
  allocations.fetch_add(1, std::memory_order_relaxed);
  const auto added = static_cast<int64_t>(bytes);
  const int64_t before = bytesInUse.fetch_add(added, std::memory_order_relaxed);
  peakBytes = std::max(peakBytes.load(), before + added);
}

void CountRelease(size_t bytes) {
  bytesInUse.fetch_sub(static_cast<int64_t>(bytes), std::memory_order_relaxed);
}

HeapUse HeapUseOf(const std::function<void()>& work) {
  WatchHeap();
  allocations = 0;
  bytesInUse = 0;
  peakBytes = 0;
  counting = true;
  work();
  counting = false;
  return {.allocations = allocations, .peakBytes = static_cast<size_t>(peakBytes)};
}

}  // namespace tqcim::bench
