// Objects that go between the listing and the reading, and stay listed.
#include <map>
#include <string_view>

#include "tests/classes/faults/requests.h"
#include "tests/classes/faults/three_chassis.h"

namespace tqcim::testing {
namespace {

/// Number of reads, by OID.
using Reads = std::map<uint32_t, uint32_t>;

/// How often a request reads each object.
Reads ReadsOf(const Request& request) {
  FakeStore store;
  FillThreeChassis(store);
  store.RecordCalls();
  FakeSink sink;
  AskHandler(store, request, sink);
  constexpr std::string_view kRead = "object ";
  Reads reads;
  for (const std::string& call : store.Calls()) {
    if (call.starts_with(kRead))
      ++reads[static_cast<uint32_t>(std::stoul(call.substr(kRead.size())))];
  }
  return reads;
}

class VanishingObjectsTest : public BalancedTest {};

/// From its first read on, from its second on, and so forth. A read that is tried again at its
/// position is tried until it counts as absent.
TEST_F(VanishingObjectsTest, EveryClassSurvivesEachObjectThatVanishes) {
  const std::vector<Request> requests = AllRequests();
  std::vector<Reads> reads;
  for (const Request& request : requests) reads.push_back(ReadsOf(request));

  uint32_t vanished = 0;
  FakeStore store;
  FillThreeChassis(store);
  for (size_t i = 0; i < requests.size() && !HasFailure(); ++i) {
    for (const auto& [oid, count] : reads[i]) {
      SCOPED_TRACE(requests[i].Name() + ", object " + std::to_string(oid));
      for (uint32_t read = 0; read < count; ++read) {
        store.FailRead(oid, FakeStore::kAlways, read);
        FakeSink sink;
        ExpectResultOfWhatIsLeft(requests[i], AskHandler(store, requests[i], sink));
        ++vanished;
      }
      store.FailRead(oid, 0);
    }
  }
  TellSurvived("objects that vanished", vanished, 300);
}

}  // namespace
}  // namespace tqcim::testing
