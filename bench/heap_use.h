/// What the process takes from the heap.
#pragma once

#include <cstddef>
#include <functional>

namespace tqcim::bench {

struct HeapUse {
  size_t allocations = 0;
  /// The most bytes that were in use at once, beyond those in use before.
  size_t peakBytes = 0;
};

/// What the work takes.
HeapUse HeapUseOf(const std::function<void()>& work);

/// Whether there is work under way whose use is asked for; while times are taken there is none.
bool CountsHeapUse();
/// What stands before the platform's functions tells of each block of so many bytes, one
/// implementation per platform.
void CountAllocation(size_t bytes);
void CountRelease(size_t bytes);
/// Puts it there, for all modules that are loaded.
void WatchHeap();

}  // namespace tqcim::bench
