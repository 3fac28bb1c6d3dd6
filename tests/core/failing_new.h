/// Memory that runs out for allocations which are told to return null.
#pragma once

namespace tqcim::testing {

/// While it lives, `new (std::nothrow)` on this thread gives null.
class FailingNew {
 public:
  FailingNew();
  ~FailingNew();
  FailingNew(const FailingNew&) = delete;
  FailingNew& operator=(const FailingNew&) = delete;
};

}  // namespace tqcim::testing
