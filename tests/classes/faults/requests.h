/// Every request that the classes answer, and what became of it when one of its calls failed.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tests/classes/faults/class_results.h"
#include "tests/support/fake_key_list.h"
#include "tests/support/fake_store.h"
#include "tests/support/fault.h"
#include "tests/support/handler_test.h"

namespace tqcim::testing {

struct Request {
  const ClassResults* row;
  bool enumerates;

  const Outcome& Expected() const { return enumerates ? row->enumerated : row->got; }
  /// "CIM_Fan, enumerated".
  std::string Name() const;
};

/// The enumeration of every class, and its get-one.
std::vector<Request> AllRequests();
/// Those for one class.
std::vector<Request> RequestsFor(const std::string& className);

/// The keys that the request's path has: another one first, unless the class takes the first.
void AddKeys(const Request& request, FakeKeyList& keys);

struct Answer {
  HRESULT result;
  /// Instances that the sink was brought, refused ones included.
  size_t delivered;
  std::vector<FakeSink::StatusCall> statusCalls;
  /// Calls of the kind that fails.
  uint32_t calls;
  std::optional<Fault::Failed> failed;
};

/// Closed after a request, expects that everything was given back: texts, arrays, entries into COM,
/// C++ allocations, and the blocks of the libraries. The enumeration of the BIOS settings may keep
/// their object, which that class leaks on purpose.
class RequestBooks {
 public:
  explicit RequestBooks(FakeStore& store) : store_(store), before_(CurrentLedger()) {}
  void Close(const Request& request);

 private:
  FakeStore& store_;
  const Ledger before_;
};

/// Makes a request again and again, failing its first call, its second, ... until none is left to
/// fail. `make(position)` gives the Answer where the calls from that position on fail, one or more,
/// and `check(flawless, answer)` judges it. Ends at the first that is wrong. Returns how often
/// calls failed.
template <typename Make, typename Check>
uint32_t FailEachCall(const Request& request, Make make, Check check) {
  const ::testing::ScopedTrace trace(__FILE__, __LINE__, request.Name());
  const Answer flawless = make(FaultPlan::kNone);
  EXPECT_EQ(request.Expected().instances, flawless.delivered);
  for (uint32_t position = 0;; ++position) {
    const Answer answer = make(position);
    if (!answer.failed) {
      EXPECT_EQ(flawless.calls, answer.calls);
      return position;
    }
    check(flawless, answer);
    if (::testing::Test::HasFailure()) {
      ADD_FAILURE() << "with a failure of " << *answer.failed;
      return position;
    }
  }
}

/// Tells how many faults of a kind were survived, and expects as many as there are known to be at
/// least.
void TellSurvived(const char* what, uint32_t faults, uint32_t atLeast);

/// Makes a request of the handler itself.
Answer AskHandler(FakeStore& store, const Request& request, FakeSink& sink,
                  const FaultPlan& plan = {FaultKind::kLibraryCalls});

/// Expects the result of a request to which the store gave less than it has: a success if it still
/// delivered something, and else what the class always says when there is nothing.
void ExpectResultOfWhatIsLeft(const Request& request, const Answer& answer);

/// Requests made of the handlers themselves, in the store with three chassis.
class HandlerFaultsTest : public BalancedTest {
 protected:
  HandlerFaultsTest();

  /// All requests, with each call of the kind failed once, or with those behind it.
  template <typename Check>
  uint32_t FailEachCallOfAll(FaultKind kind, uint32_t count, Check check) {
    uint32_t faults = 0;
    for (const Request& request : AllRequests()) {
      ExpectFlawless(request);
      faults += FailEachCall(
          request,
          [&](uint32_t position) {
            FakeSink sink;
            return AskHandler(store, request, sink, {kind, position, count});
          },
          [&](const Answer& flawless, const Answer& answer) { check(request, flawless, answer); });
      if (HasFailure()) break;
    }
    return faults;
  }

  /// Expects the result of a request when nothing fails.
  void ExpectFlawless(const Request& request);

  FakeStore store;
};

}  // namespace tqcim::testing
