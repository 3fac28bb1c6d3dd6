/// A class definition of the management service, and the instances spawned from it.
#pragma once

#include <atomic>
#include <map>
#include <string>

#include "tests/support/recorded_put.h"
#include "tests/support/refusing_interfaces.h"

namespace tqcim::testing {

/// An instance that notes what is put into it. Its references are those of whoever spawned it.
class RecordingInstance final : public RefusingClassObject {
 public:
  RecordingInstance(HRESULT putResult, bool recording)
      : RefusingClassObject("an instance"), putResult_(putResult), recording_(recording) {}

  HRESULT STDMETHODCALLTYPE Put(LPCWSTR name, LONG flags, VARIANT* value, CIMTYPE type) override;

  const Puts& puts() const { return puts_; }

 private:
  friend class FakeClass;

  const HRESULT putResult_;
  const bool recording_;
  Puts puts_;
  RecordingInstance* next_ = nullptr;
};

/// The instances live as long as the class, so that a test can look at them after their release.
/// Spawning takes no lock: the fake hides no data race of the code under test.
class FakeClass final : public RefusingClassObject {
 public:
  FakeClass() : RefusingClassObject("a class definition") {}
  ~FakeClass() override;

  HRESULT STDMETHODCALLTYPE SpawnInstance(LONG flags, IWbemClassObject** instance) override;

  /// The spawn at `position` (from 0) gives no instance, with this result: a failure, or a success.
  void SpawnNothing(uint32_t position, HRESULT result) { failures_[position] = result; }
  /// What every Put returns.
  void SetPutResult(HRESULT result) { putResult_ = result; }

  /// From now on instances forget what is put into them, for walks over very many.
  void RecordNothing() { recording_ = false; }

  /// Calls of SpawnInstance so far.
  uint32_t Spawns() const { return spawns_; }

 private:
  std::map<uint32_t, HRESULT> failures_;
  HRESULT putResult_ = S_OK;
  bool recording_ = true;
  std::atomic<uint32_t> spawns_ = 0;
  std::atomic<RecordingInstance*> newest_ = nullptr;
};

}  // namespace tqcim::testing
