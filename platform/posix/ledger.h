/// The counts behind runtime_ledger.h.
#pragma once

#include <cstdint>

#include "platform/shards.h"

namespace tqcim::runtime {

extern ShardedCount liveBstrs;
extern ShardedCount liveSafeArrays;
extern ShardedCount liveTaskBlocks;

int64_t RegisteredClasses();
uint32_t InitialisationsOfThread();

}  // namespace tqcim::runtime
