/// The counts behind runtime_ledger.h.
#pragma once

#include <atomic>
#include <cstdint>

namespace tqcim::runtime {

extern std::atomic<int64_t> liveBstrs;
extern std::atomic<int64_t> liveSafeArrays;
extern std::atomic<int64_t> liveTaskBlocks;

int64_t RegisteredClasses();
uint32_t InitialisationsOfThread();

}  // namespace tqcim::runtime
