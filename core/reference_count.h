/// Reference counts of the module's COM objects.
#pragma once

#include <atomic>

#include "platform/wmi.h"

namespace tqcim {

/// Counts from 0: the creator's QueryInterface takes the first reference.
///
/// The decrement is one atomic step; the increment is a plain read, add and write, as it has always
/// been here. It is right for as long as no other thread counts meanwhile: a release that falls
/// into an increment is lost, and the object stays; of two increments at once one is lost, and the
/// object goes too early.
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
