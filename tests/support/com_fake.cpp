#include "tests/support/com_fake.h"

#include <gtest/gtest.h>

namespace tqcim::testing {

HeldReferences::~HeldReferences() {
  EXPECT_EQ(0, Count()) << "references to " << owner_ << " that were not given back";
}

ULONG HeldReferences::Drop() {
  const LONG count = count_.fetch_sub(1, std::memory_order_relaxed) - 1;
  EXPECT_LE(0, count) << owner_ << " was released more often than it was referenced";
  return static_cast<ULONG>(count);
}

void HeldReferences::ExpectHeld(const char* operation) const {
  EXPECT_LT(0, Count()) << operation << " on " << owner_ << " after its last release";
}

}  // namespace tqcim::testing
