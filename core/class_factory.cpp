#include "core/class_factory.h"

#include <new>

#include "core/module.h"
#include "core/provider.h"

namespace tqcim {

HRESULT CProvFactory::QueryInterface(REFIID riid, void** ppv) {
  *ppv = nullptr;
  if (!IsEqualGUID(riid, IID_IUnknown) && !IsEqualGUID(riid, IID_IClassFactory)) {
    return E_NOINTERFACE;
  }
  *ppv = static_cast<IClassFactory*>(this);
  AddRef();
  return S_OK;
}

ULONG CProvFactory::AddRef() {
  return references_.Increment();
}

ULONG CProvFactory::Release() {
  const ULONG count = references_.Decrement();
  if (count == 0) delete this;
  return count;
}

HRESULT CProvFactory::CreateInstance(IUnknown* pUnkOuter, REFIID riid, void** ppv) {
  *ppv = nullptr;
  if (pUnkOuter) return CLASS_E_NOAGGREGATION;
  auto* const provider = new (std::nothrow) tqcim_provider;
  if (!provider) return E_OUTOFMEMORY;
  const HRESULT status = provider->QueryInterface(riid, ppv);
  if (FAILED(status)) delete provider;
  return status;
}

HRESULT CProvFactory::LockServer(BOOL fLock) {
  lockCounter += fLock ? 1 : -1;
  return S_OK;
}

}  // namespace tqcim
