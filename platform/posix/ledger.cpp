#include "platform/posix/ledger.h"

#include <runtime_ledger.h>

namespace tqcim {

RuntimeLedger CurrentRuntimeLedger() {
  return {runtime::liveBstrs.Sum(), runtime::liveSafeArrays.Sum(), runtime::liveTaskBlocks.Sum(),
          runtime::RegisteredClasses(), runtime::InitialisationsOfThread()};
}

}  // namespace tqcim
