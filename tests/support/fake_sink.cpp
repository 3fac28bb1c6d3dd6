#include "tests/support/fake_sink.h"

#include <gtest/gtest.h>

#include <ostream>
#include <utility>

#include "tests/support/fault.h"

namespace tqcim::testing {

HRESULT FakeSink::Indicate(LONG count, IWbemClassObject** objects) {
  const OutsideCall call(Call::kIndicate);
  atIndicate_();
  EXPECT_EQ(1, count) << "instances are delivered one by one";
  auto* const instance = static_cast<RecordingInstance*>(objects[0]);
  instance->ExpectHeld("Indicate");
  if (keeping_) {
    instance->AddRef();
    kept_.push_back(instance);
  }
  const auto refusal = refusals_.find(static_cast<uint32_t>(delivered_.size()));
  delivered_.push_back(instance->puts());
  if (call.Fails()) return call.Result();
  return refusal == refusals_.end() ? indicateResult_ : refusal->second;
}

HRESULT FakeSink::SetStatus(LONG flags, HRESULT result, BSTR text, IWbemClassObject* object) {
  const OutsideCall call(Call::kStatus);
  statusCalls_.push_back({flags, result, text != nullptr, object != nullptr, delivered_.size()});
  return call.Result();
}

void FakeSink::GiveInstancesBack() {
  for (IWbemClassObject* instance : std::exchange(kept_, {})) instance->Release();
}

std::ostream& operator<<(std::ostream& out, const FakeSink::StatusCall& call) {
  return out << "SetStatus(" << call.flags << ", " << call.result << ", "
             << (call.hasText ? "text" : "null") << ", " << (call.hasObject ? "object" : "null")
             << ") after " << call.delivered << " instances";
}

}  // namespace tqcim::testing
