/// The instance provider that the management service loads.
#pragma once

#include "platform/com.h"
#include "core/reference_count.h"

namespace tqcim {

/// Serves the namespace root\CIMV2\vorn. Two operations work, CreateInstanceEnumAsync and
/// GetObjectAsync; every other one answers WBEM_E_NOT_SUPPORTED and touches none of its arguments.
///
/// The reference count starts at 0: the creator's QueryInterface raises it to 1.
class tqcim_provider final : public IWbemServices, public IWbemProviderInit {
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

  HRESULT STDMETHODCALLTYPE OpenNamespace(const BSTR, LONG, IWbemContext*, IWbemServices**,
                                          IWbemCallResult**) override;
  HRESULT STDMETHODCALLTYPE CancelAsyncCall(IWbemObjectSink*) override;
  HRESULT STDMETHODCALLTYPE QueryObjectSink(LONG, IWbemObjectSink**) override;
  HRESULT STDMETHODCALLTYPE GetObject(const BSTR, LONG, IWbemContext*, IWbemClassObject**,
                                      IWbemCallResult**) override;
  HRESULT STDMETHODCALLTYPE PutClass(IWbemClassObject*, LONG, IWbemContext*,
                                     IWbemCallResult**) override;
  HRESULT STDMETHODCALLTYPE PutClassAsync(IWbemClassObject*, LONG, IWbemContext*,
                                          IWbemObjectSink*) override;
  HRESULT STDMETHODCALLTYPE DeleteClass(const BSTR, LONG, IWbemContext*,
                                        IWbemCallResult**) override;
  HRESULT STDMETHODCALLTYPE DeleteClassAsync(const BSTR, LONG, IWbemContext*,
                                             IWbemObjectSink*) override;
  HRESULT STDMETHODCALLTYPE CreateClassEnum(const BSTR, LONG, IWbemContext*,
                                            IEnumWbemClassObject**) override;
  HRESULT STDMETHODCALLTYPE CreateClassEnumAsync(const BSTR, LONG, IWbemContext*,
                                                 IWbemObjectSink*) override;
  HRESULT STDMETHODCALLTYPE PutInstance(IWbemClassObject*, LONG, IWbemContext*,
                                        IWbemCallResult**) override;
  HRESULT STDMETHODCALLTYPE PutInstanceAsync(IWbemClassObject*, LONG, IWbemContext*,
                                             IWbemObjectSink*) override;
  HRESULT STDMETHODCALLTYPE DeleteInstance(const BSTR, LONG, IWbemContext*,
                                           IWbemCallResult**) override;
  HRESULT STDMETHODCALLTYPE DeleteInstanceAsync(const BSTR, LONG, IWbemContext*,
                                                IWbemObjectSink*) override;
  HRESULT STDMETHODCALLTYPE CreateInstanceEnum(const BSTR, LONG, IWbemContext*,
                                               IEnumWbemClassObject**) override;
  HRESULT STDMETHODCALLTYPE ExecQuery(const BSTR, const BSTR, LONG, IWbemContext*,
                                      IEnumWbemClassObject**) override;
  HRESULT STDMETHODCALLTYPE ExecQueryAsync(const BSTR, const BSTR, LONG, IWbemContext*,
                                           IWbemObjectSink*) override;
  HRESULT STDMETHODCALLTYPE ExecNotificationQuery(const BSTR, const BSTR, LONG, IWbemContext*,
                                                  IEnumWbemClassObject**) override;
  HRESULT STDMETHODCALLTYPE ExecNotificationQueryAsync(const BSTR, const BSTR, LONG, IWbemContext*,
                                                       IWbemObjectSink*) override;
  HRESULT STDMETHODCALLTYPE ExecMethod(const BSTR, const BSTR, LONG, IWbemContext*,
                                       IWbemClassObject*, IWbemClassObject**,
                                       IWbemCallResult**) override;
  HRESULT STDMETHODCALLTYPE ExecMethodAsync(const BSTR, const BSTR, LONG, IWbemContext*,
                                            IWbemClassObject*, IWbemObjectSink*) override;

 private:
  ReferenceCount references_;
  Com<IWbemServices> initialNamespace_;
};

}  // namespace tqcim
