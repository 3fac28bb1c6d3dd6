#include "tests/support/ledger.h"

#include <ostream>

namespace tqcim::testing {

std::ostream& operator<<(std::ostream& out, const Ledger& ledger) {
  return out << ledger.texts << " texts, " << ledger.arrays << " arrays, " << ledger.initialisations
             << " entries into COM";
}

}  // namespace tqcim::testing
