/// Reference counts of the module's COM objects.
#pragma once

#include <atomic>

#include "platform/wmi.h"

namespace tqcim {

/// Counts from 0: the creator's QueryInterface takes the first reference.
///
/// The increment is a plain read, add and write, not one atomic step, while the decrement is
/// atomic: the management service adds references from one thread at a time and releases them from
/// any.
class ReferenceCount {
 public:
  /// The new count.
  ULONG Increment() {
    const ULONG count = count_.load(std::memory_order_relaxed) + 1;
    count_.store(count, std::memory_order_relaxed);
    return count;
  }
  /// The new count; at 0 the object is to be destroyed.
  ULONG Decrement() { return count_.fetch_sub(1, std::memory_order_acq_rel) - 1; }

 private:
  std::atomic<ULONG> count_ = 0;
};

}  // namespace tqcim
