/// The interfaces between the management service and its providers.
#pragma once

#include <wbemcli.h>

STDAPI_(const CLSID) CLSID_WbemAdministrativeLocator;

/// What a provider reports through IWbemProviderInitSink.
enum WBEM_EXTRA_RETURN_CODES {
  WBEM_S_INITIALIZED = 0,
};

STDAPI_(const IID) IID_IWbemProviderInitSink;
struct IWbemProviderInitSink : public IUnknown {
  virtual HRESULT STDMETHODCALLTYPE SetStatus(LONG status, LONG flags) = 0;
};

STDAPI_(const IID) IID_IWbemProviderInit;
struct IWbemProviderInit : public IUnknown {
  virtual HRESULT STDMETHODCALLTYPE Initialize(LPWSTR user, LONG flags, LPWSTR name, LPWSTR locale,
                                               IWbemServices* services, IWbemContext* context,
                                               IWbemProviderInitSink* sink) = 0;
};
