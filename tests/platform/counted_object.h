/// An object without an owner that counts its references.
#pragma once

#include "platform/wmi.h"

namespace tqcim::testing {

class CountedObject : public IUnknown {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    *object = iid == IID_IUnknown ? this : nullptr;
    if (*object == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override { return --references_; }

  ULONG References() const { return references_; }

 private:
  ULONG references_ = 0;
};

}  // namespace tqcim::testing
