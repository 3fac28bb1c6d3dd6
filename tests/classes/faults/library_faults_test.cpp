// Every call that a class makes of the three libraries fails once: objects and lists that come back
// null, texts, event records, memory and conversions that can't be had.
#include "tests/classes/faults/requests.h"

namespace tqcim::testing {
namespace {

using LibraryFaultsTest = HandlerFaultsTest;

void ExpectRightResult(const Request& request, const Answer&, const Answer& answer) {
  ExpectResultOfWhatIsLeft(request, answer);
}

TEST_F(LibraryFaultsTest, EveryClassSurvivesEachFailedCall) {
  const uint32_t faults = FailEachCallOfAll(FaultKind::kLibraryCalls, 1, ExpectRightResult);
  TellSurvived("failed library calls", faults, 900);
}

TEST_F(LibraryFaultsTest, EveryClassSurvivesLibrariesThatFailForGood) {
  const uint32_t faults =
      FailEachCallOfAll(FaultKind::kLibraryCalls, FaultPlan::kAll, ExpectRightResult);
  TellSurvived("failures of all library calls from one on", faults, 900);
}

}  // namespace
}  // namespace tqcim::testing
