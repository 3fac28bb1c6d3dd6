#include "tests/support/fake_class.h"

#include <gtest/gtest.h>

#include "tests/support/fault.h"

namespace tqcim::testing {

HRESULT RecordingInstance::Put(LPCWSTR name, LONG flags, VARIANT* value, CIMTYPE type) {
  const OutsideCall call(Call::kPut);
  if (call.Fails()) return call.Result();
  ExpectHeld("Put");
  EXPECT_EQ(0, flags);
  if (recording_) puts_.push_back({Printable(name), V_VT(value), type, ValueText(*value)});
  return putResult_;
}

FakeClass::~FakeClass() {
  for (RecordingInstance* instance = newest_; instance;) {
    delete std::exchange(instance, instance->next_);
  }
}

HRESULT FakeClass::SpawnInstance(LONG flags, IWbemClassObject** instance) {
  const OutsideCall call(Call::kSpawn);
  if (call.Fails()) {
    *instance = nullptr;
    return call.Result();
  }
  EXPECT_EQ(0, flags);
  const auto failure = failures_.find(spawns_.fetch_add(1, std::memory_order_relaxed));
  if (failure != failures_.end()) {
    *instance = nullptr;
    return failure->second;
  }
  auto* const spawned = new RecordingInstance(putResult_, recording_);
  spawned->next_ = newest_.load(std::memory_order_relaxed);
  while (!newest_.compare_exchange_weak(spawned->next_, spawned, std::memory_order_relaxed)) {
  }
  spawned->AddRef();
  *instance = spawned;
  return S_OK;
}

}  // namespace tqcim::testing
