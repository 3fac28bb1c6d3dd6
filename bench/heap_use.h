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

/// Has each block of all modules that are loaded told to the functions below; one implementation
/// per platform, which stands before the functions of its heap.
void WatchHeap();
/// Whether there is work under way whose use is asked for; while times are taken there is none.
bool CountsHeapUse();
void CountAllocation(size_t bytes);
void CountRelease(size_t bytes);

}  // namespace tqcim::bench
