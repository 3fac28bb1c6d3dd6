// A provider module that has no instances and refuses one class: to be put in the place of the
// program's own.
#include <string>

#include "host/com.h"
#include "host/name_space.h"
#include "host/text.h"

namespace tqcim::host {
namespace {

class Services final : public RefusingServices<IWbemServices> {
 public:
  explicit Services(IUnknown& outer) : outer_(outer) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override {
    return outer_.QueryInterface(riid, object);
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return outer_.AddRef(); }
  ULONG STDMETHODCALLTYPE Release() override { return outer_.Release(); }

  HRESULT STDMETHODCALLTYPE CreateInstanceEnumAsync(BSTR name, LONG, IWbemContext*,
                                                    IWbemObjectSink* sink) override {
    if (ToUtf8(name) == "CIM_FRU") return static_cast<HRESULT>(WBEM_E_FAILED);
    sink->SetStatus(0, S_OK, nullptr, nullptr);
    return S_OK;
  }

 private:
  IUnknown& outer_;
};

class Provider final : public ComObject<IWbemProviderInit, IID_IWbemProviderInit> {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override {
    if (riid != IID_IWbemServices) return ComObject::QueryInterface(riid, object);
    *object = &services_;
    AddRef();
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE Initialize(LPWSTR, LONG, LPWSTR, LPWSTR, IWbemServices*, IWbemContext*,
                                       IWbemProviderInitSink* sink) override {
    sink->SetStatus(0, 0);
    return S_OK;
  }

 private:
  Services services_{*this};
};

class Factory final : public ComObject<IClassFactory, IID_IClassFactory> {
 public:
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID riid, void** object) override {
    return Com<Provider>(new Provider)->QueryInterface(riid, object);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
};

}  // namespace
}  // namespace tqcim::host

STDAPI DllGetClassObject(REFCLSID, REFIID riid, LPVOID* object) {
  using namespace tqcim::host;
  return tqcim::Com<Factory>(new Factory)->QueryInterface(riid, object);
}

STDAPI DllCanUnloadNow() {
  return S_OK;
}
