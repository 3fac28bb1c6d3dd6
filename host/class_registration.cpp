#include "host/class_registration.h"

#include "host/management_host.h"
#include "host/results.h"

namespace tqcim::host {
namespace {

class Factory final : public ComObject<IClassFactory, IID_IClassFactory> {
 public:
  explicit Factory(ClassRegistration::Maker maker) : maker_(std::move(maker)) {}

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID riid, void** object) override {
    if (!object) return E_POINTER;
    *object = nullptr;
    if (outer) return CLASS_E_NOAGGREGATION;
    return maker_()->QueryInterface(riid, object);
  }
  /// The process itself holds the code: there is nothing to lock.
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
  ClassRegistration::Maker maker_;
};

}  // namespace

Apartment::Apartment() {
  const HRESULT entered = CoInitializeEx(nullptr, COINIT_MULTITHREADED);
  if (FAILED(entered)) {
    throw HostError(
        HostError::Kind::kPlatform,
        "the thread cannot enter COM's multithreaded apartment: " + ResultText(entered));
  }
}

Apartment::~Apartment() {
  CoUninitialize();
}

ClassRegistration::ClassRegistration(REFCLSID clsid, Maker maker) {
  const Com<Factory> factory(new Factory(std::move(maker)));
  const HRESULT registered = CoRegisterClassObject(clsid, factory.get(), CLSCTX_INPROC_SERVER,
                                                   REGCLS_MULTIPLEUSE, &cookie_);
  if (FAILED(registered)) {
    throw HostError(HostError::Kind::kPlatform,
                    "COM refuses to register a class of the host: " + ResultText(registered));
  }
}

ClassRegistration::~ClassRegistration() {
  CoRevokeClassObject(cookie_);
}

}  // namespace tqcim::host
