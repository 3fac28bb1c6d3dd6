#include "platform/posix/ledger.h"

#include <runtime_ledger.h>

namespace tqcim {

namespace runtime {

std::atomic<int64_t> liveBstrs{0};
std::atomic<int64_t> liveSafeArrays{0};
std::atomic<int64_t> liveTaskBlocks{0};

}  // namespace runtime

RuntimeLedger CurrentRuntimeLedger() {
  return {runtime::liveBstrs, runtime::liveSafeArrays, runtime::liveTaskBlocks,
          runtime::RegisteredClasses(), runtime::InitialisationsOfThread()};
}

}  // namespace tqcim
