/// What the process takes from the heap; one implementation per platform.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>

namespace tqcim::bench {

struct HeapUse {
  size_t allocations = 0;
  /// The most bytes that were in use at once, beyond those in use before.
  size_t peakBytes = 0;
};

/// What the work takes. Nothing where the platform can't be asked.
std::optional<HeapUse> HeapUseOf(const std::function<void()>& work);

}  // namespace tqcim::bench
