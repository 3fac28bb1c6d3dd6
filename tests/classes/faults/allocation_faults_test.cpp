// Every allocation of a request that the management service makes fails once: those of C++, which
// throw, and the texts and arrays of COM automation, which are null then. The memory of the support
// library fails among the library calls.
#include "tests/classes/faults/provider_requests.h"

namespace tqcim::testing {
namespace {

class AllocationFaultsTest : public ProviderFaultsTest {
 protected:
  /// All requests, with each allocation failed once, or with those behind it.
  template <typename Check>
  uint32_t FailEachAllocationOfAll(uint32_t count, Check check) {
    uint32_t faults = 0;
    for (const Request& request : AllRequests()) {
      faults += FailEachCall(
          request,
          [&](uint32_t position) {
            return AskProvider(request, {FaultKind::kAllocations, position, count});
          },
          [&](const Answer& flawless, const Answer& answer) { check(request, flawless, answer); });
      if (HasFailure()) break;
    }
    return faults;
  }
};

/// No exception leaves the provider, and the sink hears of no completion.
void ExpectFailure(const Answer& answer) {
  EXPECT_EQ(Hr(0x80041001), answer.result);
  EXPECT_EQ(std::vector<FakeSink::StatusCall>(), answer.statusCalls);
}

void CheckOneFailed(const Request& request, const Answer& flawless, const Answer& answer) {
  EXPECT_EQ(S_OK, flawless.result);
  EXPECT_EQ(1u, flawless.statusCalls.size());
  if (answer.failed->call != Call::kAutomation) {
    ExpectFailure(answer);
    EXPECT_GE(flawless.delivered, answer.delivered);
    return;
  }
  // The first text of a get-one is the class name: a path without one names no class.
  if (!request.enumerates && answer.failed->index == 0) {
    ExpectFailure(answer);
    EXPECT_EQ(0u, answer.delivered);
    return;
  }
  // A value that can't be had stays empty; the rest is delivered.
  EXPECT_EQ(flawless.result, answer.result);
  EXPECT_EQ(flawless.delivered, answer.delivered);
  EXPECT_EQ(flawless.statusCalls, answer.statusCalls);
}

/// Where there is no memory at all any more, what a text or an array leaves empty may be followed
/// by an allocation that throws.
void CheckWithoutMemory(const Request&, const Answer& flawless, const Answer& answer) {
  if (answer.result == S_OK) {
    EXPECT_EQ(flawless.statusCalls, answer.statusCalls);
  } else {
    ExpectFailure(answer);
  }
}

TEST_F(AllocationFaultsTest, EveryClassSurvivesEachFailedAllocation) {
  TellSurvived("failed allocations", FailEachAllocationOfAll(1, CheckOneFailed), 1400);
}

TEST_F(AllocationFaultsTest, EveryClassSurvivesMemoryThatHasRunOut) {
  TellSurvived("failures of all allocations from one on",
               FailEachAllocationOfAll(FaultPlan::kAll, CheckWithoutMemory), 1400);
}

}  // namespace
}  // namespace tqcim::testing
