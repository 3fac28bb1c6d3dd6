/// The class factory of the provider.
#pragma once

#include "core/reference_count.h"

namespace tqcim {

/// Makes tqcim_provider objects. The reference count starts at 0: the creator's QueryInterface
/// raises it to 1.
class CProvFactory final : public IClassFactory {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppv) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* pUnkOuter, REFIID riid, void** ppv) override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL fLock) override;

 private:
  ReferenceCount references_;
};

}  // namespace tqcim
