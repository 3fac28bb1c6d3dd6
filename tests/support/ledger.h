/// What was taken from the platform's runtime and not given back.
#pragma once

#include <cstdint>
#include <iosfwd>

namespace tqcim::testing {

struct Ledger {
  int64_t texts;   ///< live BSTRs of the process, those inside variants and arrays included
  int64_t arrays;  ///< live SAFEARRAYs of the process
  int64_t initialisations;  ///< this thread's entries into COM that it has not left

  bool operator==(const Ledger&) const = default;
};

Ledger CurrentLedger();

std::ostream& operator<<(std::ostream& out, const Ledger& ledger);

}  // namespace tqcim::testing
