#include "core/provider.h"

#include "core/module.h"
#include "core/provider_requests.h"
#include "core/results.h"

namespace tqcim {
namespace {

/// No exception crosses the interface: what a request throws is reported as a failure.
template <typename Request>
HRESULT AtInterfaceEdge(Request request) noexcept {
  try {
    return request();
  } catch (...) {
    return kFailed;
  }
}

}  // namespace

tqcim_provider::tqcim_provider() {
  ++objectCounter;
}

tqcim_provider::~tqcim_provider() {
  // First: once the counter has fallen, the module may be unloaded under the release.
  initialNamespace_.Release();
  --objectCounter;
}

HRESULT tqcim_provider::QueryInterface(REFIID riid, void** ppv) {
  *ppv = nullptr;
  if (IsEqualGUID(riid, IID_IWbemServices)) {
    *ppv = static_cast<IWbemServices*>(this);
  } else if (IsEqualGUID(riid, IID_IUnknown) || IsEqualGUID(riid, IID_IWbemProviderInit)) {
    // The identity of the object is its second interface table.
    *ppv = static_cast<IWbemProviderInit*>(this);
  } else {
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

ULONG tqcim_provider::AddRef() {
  return references_.Increment();
}

ULONG tqcim_provider::Release() {
  const ULONG count = references_.Decrement();
  if (count == 0) delete this;
  return count;
}

HRESULT tqcim_provider::Initialize(LPWSTR, LONG, LPWSTR, LPWSTR, IWbemServices* pNamespace,
                                   IWbemContext*, IWbemProviderInitSink* pInitSink) {
  return AtInterfaceEdge([&] {
    ConnectToNamespace();
    if (pNamespace) {
      // A namespace of an earlier call stays referenced.
      initialNamespace_.Detach();
      pNamespace->AddRef();
      initialNamespace_ = Com<IWbemServices>(pNamespace);
    }
    pInitSink->SetStatus(pNamespace ? S_OK : kFailed, 0);
    return S_OK;
  });
}

HRESULT tqcim_provider::GetObjectAsync(const BSTR strObjectPath, LONG, IWbemContext*,
                                       IWbemObjectSink* pResponseHandler) {
  return AtInterfaceEdge([&] { return DeliverInstance(strObjectPath, pResponseHandler); });
}

HRESULT tqcim_provider::CreateInstanceEnumAsync(const BSTR strClass, LONG, IWbemContext*,
                                                IWbemObjectSink* pResponseHandler) {
  return AtInterfaceEdge([&] { return EnumerateClass(strClass, pResponseHandler); });
}

}  // namespace tqcim
