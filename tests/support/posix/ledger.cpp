#include "tests/support/ledger.h"

#include <runtime_ledger.h>

namespace tqcim::testing {

Ledger CurrentLedger() {
  const RuntimeLedger ledger = CurrentRuntimeLedger();
  return {ledger.bstrs, ledger.safeArrays, ledger.initialisations};
}

}  // namespace tqcim::testing
