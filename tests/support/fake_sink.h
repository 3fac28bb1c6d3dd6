/// The sink to which a handler delivers instances.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "tests/support/fake_class.h"

namespace tqcim::testing {

/// Notes every Indicate and SetStatus. Belongs to one thread.
class FakeSink final : public ComFake<IWbemObjectSink, IID_IWbemObjectSink> {
 public:
  FakeSink() : ComFake("a sink") {}
  ~FakeSink() override { GiveInstancesBack(); }

  /// Expects instances to come one by one.
  HRESULT STDMETHODCALLTYPE Indicate(LONG count, IWbemClassObject** objects) override;
  HRESULT STDMETHODCALLTYPE SetStatus(LONG flags, HRESULT result, BSTR text,
                                      IWbemClassObject* object) override;

  /// The Indicate at `position` (from 0) returns this.
  void Refuse(uint32_t position, HRESULT result) { refusals_[position] = result; }
  /// Every Indicate that Refuse leaves returns this.
  void SetIndicateResult(HRESULT result) { indicateResult_ = result; }
  /// Does this at the beginning of each Indicate.
  void AtIndicate(std::function<void()> act) { atIndicate_ = std::move(act); }
  /// Keeps a reference of each instance until it gives them back.
  void KeepInstances() { keeping_ = true; }
  void GiveInstancesBack();

  /// What each Indicate brought, refused ones included.
  const std::vector<Puts>& Delivered() const { return delivered_; }

  struct StatusCall {
    LONG flags;
    HRESULT result;
    bool hasText;
    bool hasObject;
    /// Instances delivered before.
    size_t delivered;

    bool operator==(const StatusCall&) const = default;
  };
  const std::vector<StatusCall>& StatusCalls() const { return statusCalls_; }

 private:
  std::map<uint32_t, HRESULT> refusals_;
  HRESULT indicateResult_ = S_OK;
  std::function<void()> atIndicate_ = [] {};
  bool keeping_ = false;
  std::vector<IWbemClassObject*> kept_;
  std::vector<Puts> delivered_;
  std::vector<StatusCall> statusCalls_;
};

std::ostream& operator<<(std::ostream& out, const FakeSink::StatusCall& call);

}  // namespace tqcim::testing
