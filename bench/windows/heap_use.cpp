#include "bench/heap_use.h"

namespace tqcim::bench {

std::optional<HeapUse> HeapUseOf(const std::function<void()>&) {
  return std::nullopt;
}

}  // namespace tqcim::bench
