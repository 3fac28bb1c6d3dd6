/// The counts behind runtime_ledger.h.
#pragma once

#include <cstdint>

#include "platform/shards.h"

namespace tqcim::runtime {

/// Costs nothing where nobody counts.
class LiveCount {
 public:
  void operator++() {
    if constexpr (TQCIM_COUNTS_LIVE) ++count_;
  }
  void operator--() {
    if constexpr (TQCIM_COUNTS_LIVE) --count_;
  }
  int64_t Sum() const { return count_.Sum(); }

 private:
  ShardedCount count_;
};

inline LiveCount liveBstrs;
inline LiveCount liveSafeArrays;
inline LiveCount liveTaskBlocks;

int64_t RegisteredClasses();
uint32_t InitialisationsOfThread();

}  // namespace tqcim::runtime
