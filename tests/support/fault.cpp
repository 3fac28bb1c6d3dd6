#include "tests/support/fault.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ostream>
#include <stdexcept>

namespace tqcim::testing {
namespace {

/// More than any request of the tests needs that ends, tries at one position included.
constexpr uint32_t kCallLimit = 2'000'000;

thread_local Fault* current = nullptr;
/// Answers of fakes under way.
thread_local uint32_t answers = 0;

bool IsOfKind(Call call, FaultKind kind) {
  switch (kind) {
    case FaultKind::kLibraryCalls:
      return call == Call::kLibrary;
    case FaultKind::kEmptySpawns:
      return call == Call::kSpawn;
    case FaultKind::kAllocations:
      return call >= Call::kNew;
    case FaultKind::kComCalls:
      return call > Call::kLibrary && call < Call::kNew;
  }
  return false;
}

}  // namespace

Fault::Fault(const FaultPlan& plan) : plan_(plan) {
  EXPECT_EQ(nullptr, current) << "two faults at once";
  current = this;
}

Fault::~Fault() {
  current = nullptr;
}

bool Fault::Take(Call call) {
  if (++allCalls_ > kCallLimit) {
    current = nullptr;
    ADD_FAILURE() << "calls without end";
    throw std::runtime_error("calls without end");
  }
  const uint32_t index = callsByName_[static_cast<size_t>(call)]++;
  if (!IsOfKind(call, plan_.kind)) return false;
  const uint32_t position = calls_++;
  if (position < plan_.position || position - plan_.position >= plan_.count) return false;
  if (!failed_) failed_ = {call, index};
  return true;
}

OutsideCall::OutsideCall() {
  ++answers;
}

OutsideCall::OutsideCall(Call call) {
  if (IsCounting() && current->Take(call)) {
    fails_ = true;
    result_ = current->plan_.kind == FaultKind::kEmptySpawns ? S_OK : Fault::kResult;
  }
  ++answers;
}

OutsideCall::~OutsideCall() {
  --answers;
}

bool AllocationFails(Call call) {
  return IsCounting() && current->Take(call);
}

bool IsCounting() {
  return current && answers == 0;
}

std::ostream& operator<<(std::ostream& out, const Fault::Failed& failed) {
  static constexpr const char* kNames[] = {
      "library call", "activation",  "connection", "class definition", "path",
      "keys",         "spawn",       "put",        "indicate",         "status",
      "new",          "nothrow new", "automation"};
  return out << kNames[static_cast<size_t>(failed.call)] << " " << failed.index;
}

}  // namespace tqcim::testing
