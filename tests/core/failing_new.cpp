#include "tests/core/failing_new.h"

#include <new>

namespace tqcim::testing {
namespace {

thread_local bool failing = false;

}  // namespace

FailingNew::FailingNew() {
  failing = true;
}
FailingNew::~FailingNew() {
  failing = false;
}

}  // namespace tqcim::testing

/// The program's own definition stands before the standard library's.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  if (tqcim::testing::failing) return nullptr;
  try {
    return ::operator new(size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}
