/// What every fake COM object has in common: references that are counted exactly.
#pragma once

#include <atomic>

#include "platform/wmi.h"

namespace tqcim::testing {

/// Counts the references that others hold to a fake. The test itself holds none: the count begins
/// at 0, and is expected to be back there when the fake goes. Giving back more than was taken
/// fails the test at once. The count orders nothing between threads, so that it hides no data race
/// of the code under test.
class HeldReferences {
 public:
  explicit HeldReferences(const char* owner) : owner_(owner) {}
  ~HeldReferences();
  HeldReferences(const HeldReferences&) = delete;
  HeldReferences& operator=(const HeldReferences&) = delete;

  ULONG Add() { return static_cast<ULONG>(count_.fetch_add(1, std::memory_order_relaxed) + 1); }
  ULONG Drop();
  LONG Count() const { return count_.load(std::memory_order_relaxed); }
  /// Fails the test if nobody holds a reference any more.
  void ExpectHeld(const char* operation) const;

 private:
  const char* owner_;
  std::atomic<LONG> count_ = 0;
};

/// A fake of one interface. It belongs to the test and outlives its references.
template <typename Interface, const IID& kIid>
class ComFake : public Interface {
 public:
  explicit ComFake(const char* name) : references_(name) {}
  virtual ~ComFake() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    const bool known = IsEqualGUID(iid, IID_IUnknown) || IsEqualGUID(iid, kIid);
    *object = known ? static_cast<Interface*>(this) : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return references_.Add(); }
  ULONG STDMETHODCALLTYPE Release() override { return references_.Drop(); }

  LONG References() const { return references_.Count(); }
  void ExpectHeld(const char* operation) const { references_.ExpectHeld(operation); }

 private:
  HeldReferences references_;
};

}  // namespace tqcim::testing
