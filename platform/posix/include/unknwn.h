/// The interfaces that every COM object and every class factory have. An interface is a struct of
/// pure virtual functions and nothing else: a virtual destructor would move every slot.
#pragma once

#include <wtypes.h>

STDAPI_(const IID) IID_IUnknown;
struct IUnknown {
  virtual HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) = 0;
  virtual ULONG STDMETHODCALLTYPE AddRef() = 0;
  virtual ULONG STDMETHODCALLTYPE Release() = 0;
};
using LPUNKNOWN = IUnknown*;

STDAPI_(const IID) IID_IClassFactory;
struct IClassFactory : public IUnknown {
  virtual HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) = 0;
  virtual HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) = 0;
};
