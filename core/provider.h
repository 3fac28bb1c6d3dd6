/// The instance provider that the management service loads.
#pragma once

#include "core/reference_count.h"
#include "platform/com.h"
#include "platform/refusing_interfaces.h"

namespace tqcim {

/// Serves the namespace root\CIMV2\vorn. Two operations work, CreateInstanceEnumAsync and
/// GetObjectAsync; every other one answers WBEM_E_NOT_SUPPORTED and touches none of its arguments.
///
/// The reference count starts at 0: the creator's QueryInterface raises it to 1.
class tqcim_provider final : public RefusingServices<IWbemServices>, public IWbemProviderInit {
 public:
  tqcim_provider();
  ~tqcim_provider();
  tqcim_provider(const tqcim_provider&) = delete;
  tqcim_provider& operator=(const tqcim_provider&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppv) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  /// Connects to root\CIMV2\vorn for class definitions, keeps `pNamespace`, and tells the init sink
  /// whether there was one. Always 0.
  HRESULT STDMETHODCALLTYPE Initialize(LPWSTR wszUser, LONG lFlags, LPWSTR wszNamespace,
                                       LPWSTR wszLocale, IWbemServices* pNamespace,
                                       IWbemContext* pCtx,
                                       IWbemProviderInitSink* pInitSink) override;

  HRESULT STDMETHODCALLTYPE GetObjectAsync(const BSTR strObjectPath, LONG lFlags,
                                           IWbemContext* pCtx,
                                           IWbemObjectSink* pResponseHandler) override;
  HRESULT STDMETHODCALLTYPE CreateInstanceEnumAsync(const BSTR strClass, LONG lFlags,
                                                    IWbemContext* pCtx,
                                                    IWbemObjectSink* pResponseHandler) override;

 private:
  ReferenceCount references_;
  Com<IWbemServices> initialNamespace_;
};

}  // namespace tqcim
