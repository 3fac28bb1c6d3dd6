// Every call that a class makes of the class definition, the instances, the key list and the sink
// fails once.
#include "tests/classes/faults/requests.h"

namespace tqcim::testing {
namespace {

using ComFaultsTest = HandlerFaultsTest;

/// A refused property is nobody's concern: the request goes on as if it had been taken.
void ExpectRefusedPutChangesNothing(const Answer& flawless, const Answer& answer) {
  EXPECT_EQ(S_OK, answer.result);
  EXPECT_EQ(flawless.delivered, answer.delivered);
  EXPECT_EQ(flawless.calls, answer.calls);
}

void ExpectFailedSpawn(const Request& request, const Answer& flawless, const Answer& answer) {
  const bool isReported = request.Expected().spawn == FailedSpawn::kReported;
  EXPECT_EQ(isReported ? Fault::kResult : S_OK, answer.result);
  EXPECT_GT(flawless.delivered, answer.delivered);
}

void ExpectRefusedInstance(const Request& request, const Answer& flawless, const Answer& answer) {
  const uint32_t position = answer.failed->index;
  const bool isLast = position + 1 == flawless.delivered;
  switch (request.Expected().delivery) {
    case Delivery::kLast:
      EXPECT_EQ(isLast ? Fault::kResult : S_OK, answer.result);
      EXPECT_EQ(flawless.delivered, answer.delivered);
      break;
    case Delivery::kStops:
      EXPECT_EQ(Fault::kResult, answer.result);
      EXPECT_EQ(position + 1, answer.delivered);
      break;
    case Delivery::kRelease:
    case Delivery::kSuccess:
      EXPECT_EQ(S_OK, answer.result);
      EXPECT_EQ(flawless.delivered, answer.delivered);
      break;
  }
}

void ExpectUnreadableKey(const Request& request, const Answer& flawless, const Answer& answer) {
  const TakenKey& key = request.row->key;
  // The keys are counted first.
  const bool standsBefore = !key.isFirst && answer.failed->index == 1;
  if (standsBefore && !key.failureEndsSearch) {
    EXPECT_EQ(S_OK, answer.result);
    EXPECT_EQ(flawless.delivered, answer.delivered);
    return;
  }
  EXPECT_EQ(key.failureIsNotFound ? Hr(0x80041002) : Fault::kResult, answer.result);
  EXPECT_EQ(0u, answer.delivered);
}

TEST_F(ComFaultsTest, EveryClassSurvivesEachFailedCall) {
  const uint32_t faults =
      FailEachCallOfAll(FaultKind::kComCalls, 1,
                        [](const Request& request, const Answer& flawless, const Answer& answer) {
                          switch (answer.failed->call) {
                            case Call::kPut:
                              return ExpectRefusedPutChangesNothing(flawless, answer);
                            case Call::kSpawn:
                              return ExpectFailedSpawn(request, flawless, answer);
                            case Call::kIndicate:
                              return ExpectRefusedInstance(request, flawless, answer);
                            case Call::kKeys:
                              return ExpectUnreadableKey(request, flawless, answer);
                            default:
                              ADD_FAILURE() << "a call that is none of a class's";
                          }
                        });
  TellSurvived("failed COM calls", faults, 1800);
}

/// A spawn that succeeds with nothing is no failure to report.
TEST_F(ComFaultsTest, EveryClassSurvivesASpawnThatGivesNothing) {
  const uint32_t faults = FailEachCallOfAll(
      FaultKind::kEmptySpawns, 1, [](const Request&, const Answer& flawless, const Answer& answer) {
        EXPECT_EQ(S_OK, answer.result);
        EXPECT_GT(flawless.delivered, answer.delivered);
      });
  TellSurvived("spawns that gave nothing", faults, 160);
}

}  // namespace
}  // namespace tqcim::testing
