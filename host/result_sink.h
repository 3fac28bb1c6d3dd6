/// Where a provider delivers its answers.
#pragma once

#include <exception>
#include <functional>
#include <mutex>
#include <optional>

#include "host/com.h"
#include "host/instance.h"

namespace tqcim::host {

/// Takes the instances of one request. A provider may deliver from any thread, and may keep the
/// sink: after Close nothing reaches the receiver any more.
class ResultSink final : public ComObject<IWbemObjectSink, IID_IWbemObjectSink> {
 public:
  using Receiver = std::function<void(Instance)>;
  explicit ResultSink(Receiver receiver) : receiver_(std::move(receiver)) {}

  /// Gives each instance to the receiver, and keeps none. What the receiver throws ends the
  /// request with WBEM_E_CALL_CANCELLED and waits for Close. WBEM_E_INVALID_OBJECT for an object
  /// that the host has not made, WBEM_E_UNEXPECTED after the final status.
  HRESULT STDMETHODCALLTYPE Indicate(LONG count, IWbemClassObject** objects) override;

  /// Takes the final status; reports of progress are taken without effect.
  HRESULT STDMETHODCALLTYPE SetStatus(LONG flags, HRESULT result, BSTR text,
                                      IWbemClassObject* object) override;

  /// Ends the request. The final status, nothing if there was none. Throws what the receiver threw.
  std::optional<HRESULT> Close();

 private:
  std::mutex mutex_;
  Receiver receiver_;
  std::exception_ptr thrown_;
  std::optional<HRESULT> status_;
  bool open_ = true;
};

/// Takes the result of a provider's initialisation.
class InitSink final : public ComObject<IWbemProviderInitSink, IID_IWbemProviderInitSink> {
 public:
  HRESULT STDMETHODCALLTYPE SetStatus(LONG status, LONG flags) override;
  /// Nothing while the provider has not said.
  std::optional<HRESULT> Status();

 private:
  std::mutex mutex_;
  std::optional<HRESULT> status_;
};

}  // namespace tqcim::host
