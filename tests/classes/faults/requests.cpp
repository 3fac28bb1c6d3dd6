#include "tests/classes/faults/requests.h"

#include <iostream>

#include "core/class_registry.h"
#include "tests/classes/faults/three_chassis.h"
#include "tests/support/failing_new.h"

namespace tqcim::testing {

std::string Request::Name() const {
  return std::string(row->name) + (enumerates ? ", enumerated" : ", got");
}

std::vector<Request> AllRequests() {
  std::vector<Request> requests;
  for (const ClassResults& row : kClassResults) {
    requests.push_back({&row, true});
    requests.push_back({&row, false});
  }
  return requests;
}

std::vector<Request> RequestsFor(const std::string& className) {
  std::vector<Request> requests = AllRequests();
  std::erase_if(requests, [&](const Request& request) { return request.row->name != className; });
  return requests;
}

void AddKeys(const Request& request, FakeKeyList& keys) {
  const TakenKey& taken = request.row->key;
  if (!taken.isFirst) keys.Add(StringKey(OLESTR("CreationClassName"), OLESTR("x")));
  if (taken.name) keys.Add(StringKey(taken.name, taken.text));
}

void RequestBooks::Close(const Request& request) {
  EXPECT_EQ(before_, CurrentLedger());
  EXPECT_EQ(0u, LiveNews());
  ForgetNews();
  const bool mayLeak =
      request.enumerates && std::string_view(request.row->name) == "VORN_BIOSSettings";
  EXPECT_LE(store_.LiveBlocks(), mayLeak ? 1u : 0u);
  store_.ExpectLeaked(store_.LiveBlocks());
}

void TellSurvived(const char* what, uint32_t faults, uint32_t atLeast) {
  std::cout << "Survived " << faults << " " << what << ".\n";
  EXPECT_LE(atLeast, faults);
}

void ExpectResultOfWhatIsLeft(const Request& request, const Answer& answer) {
  if (answer.delivered != 0) {
    EXPECT_EQ(S_OK, answer.result);
    return;
  }
  switch (request.Expected().nothing) {
    case Nothing::kSuccess:
      EXPECT_EQ(S_OK, answer.result);
      break;
    case Nothing::kNotFound:
      EXPECT_EQ(Hr(0x80041002), answer.result);
      break;
    case Nothing::kEither:
      EXPECT_TRUE(answer.result == S_OK || answer.result == Hr(0x80041002)) << answer.result;
      break;
  }
}

HandlerFaultsTest::HandlerFaultsTest() {
  FillThreeChassis(store);
}

void HandlerFaultsTest::ExpectFlawless(const Request& request) {
  SCOPED_TRACE(request.Name());
  FakeSink sink;
  ExpectResultOfWhatIsLeft(request, AskHandler(store, request, sink));
}

Answer AskHandler(FakeStore& store, const Request& request, FakeSink& sink, const FaultPlan& plan) {
  FakeClass definition;
  definition.RecordNothing();
  FakeKeyList keys;
  AddKeys(request, keys);
  BaseClass* const handler = Lookup(request.row->name);
  RequestBooks books(store);
  Answer answer{};
  {
    const Fault fault(plan);
    answer.result = request.enumerates ? handler->EnumerateInstances(&definition, &sink)
                                       : handler->GetInstance(&definition, &keys, &sink);
    answer.calls = fault.Calls();
    answer.failed = fault.FailedCall();
  }
  answer.delivered = sink.Delivered().size();
  books.Close(request);
  sink.GiveInstancesBack();
  return answer;
}

}  // namespace tqcim::testing
