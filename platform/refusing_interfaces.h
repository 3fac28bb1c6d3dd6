/// The long interfaces of the management service with every operation refused: bases for classes
/// that answer a few of them. `Base` is the interface, or a class that derives from it and adds
/// what IUnknown needs.
#pragma once

#include "platform/wmi.h"

namespace tqcim {

/// What stands for "not supported" among the results of the management service.
inline constexpr auto kNotSupported = static_cast<HRESULT>(WBEM_E_NOT_SUPPORTED);

template <typename Base>
class RefusingClassObject : public Base {
 public:
  using Base::Base;

  HRESULT STDMETHODCALLTYPE GetQualifierSet(IWbemQualifierSet**) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE Get(LPCWSTR, LONG, VARIANT*, CIMTYPE*, LONG*) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE Put(LPCWSTR, LONG, VARIANT*, CIMTYPE) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE Delete(LPCWSTR) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE GetNames(LPCWSTR, LONG, VARIANT*, SAFEARRAY**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE BeginEnumeration(LONG) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE Next(LONG, BSTR*, VARIANT*, CIMTYPE*, LONG*) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE EndEnumeration() override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE GetPropertyQualifierSet(LPCWSTR, IWbemQualifierSet**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE Clone(IWbemClassObject**) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE GetObjectText(LONG, BSTR*) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE SpawnDerivedClass(LONG, IWbemClassObject**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE SpawnInstance(LONG, IWbemClassObject**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE CompareTo(LONG, IWbemClassObject*) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE GetPropertyOrigin(LPCWSTR, BSTR*) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE InheritsFrom(LPCWSTR) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE GetMethod(LPCWSTR, LONG, IWbemClassObject**,
                                      IWbemClassObject**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE PutMethod(LPCWSTR, LONG, IWbemClassObject*,
                                      IWbemClassObject*) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE DeleteMethod(LPCWSTR) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE BeginMethodEnumeration(LONG) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE NextMethod(LONG, BSTR*, IWbemClassObject**,
                                       IWbemClassObject**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE EndMethodEnumeration() override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE GetMethodQualifierSet(LPCWSTR, IWbemQualifierSet**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE GetMethodOrigin(LPCWSTR, BSTR*) override { return kNotSupported; }
};

template <typename Base>
class RefusingServices : public Base {
 public:
  using Base::Base;

  HRESULT STDMETHODCALLTYPE OpenNamespace(const BSTR, LONG, IWbemContext*, IWbemServices**,
                                          IWbemCallResult**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE CancelAsyncCall(IWbemObjectSink*) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE QueryObjectSink(LONG, IWbemObjectSink**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE GetObject(const BSTR, LONG, IWbemContext*, IWbemClassObject**,
                                      IWbemCallResult**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE GetObjectAsync(const BSTR, LONG, IWbemContext*,
                                           IWbemObjectSink*) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE PutClass(IWbemClassObject*, LONG, IWbemContext*,
                                     IWbemCallResult**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE PutClassAsync(IWbemClassObject*, LONG, IWbemContext*,
                                          IWbemObjectSink*) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE DeleteClass(const BSTR, LONG, IWbemContext*,
                                        IWbemCallResult**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE DeleteClassAsync(const BSTR, LONG, IWbemContext*,
                                             IWbemObjectSink*) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE CreateClassEnum(const BSTR, LONG, IWbemContext*,
                                            IEnumWbemClassObject**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE CreateClassEnumAsync(const BSTR, LONG, IWbemContext*,
                                                 IWbemObjectSink*) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE PutInstance(IWbemClassObject*, LONG, IWbemContext*,
                                        IWbemCallResult**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE PutInstanceAsync(IWbemClassObject*, LONG, IWbemContext*,
                                             IWbemObjectSink*) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE DeleteInstance(const BSTR, LONG, IWbemContext*,
                                           IWbemCallResult**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE DeleteInstanceAsync(const BSTR, LONG, IWbemContext*,
                                                IWbemObjectSink*) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE CreateInstanceEnum(const BSTR, LONG, IWbemContext*,
                                               IEnumWbemClassObject**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE CreateInstanceEnumAsync(const BSTR, LONG, IWbemContext*,
                                                    IWbemObjectSink*) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE ExecQuery(const BSTR, const BSTR, LONG, IWbemContext*,
                                      IEnumWbemClassObject**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE ExecQueryAsync(const BSTR, const BSTR, LONG, IWbemContext*,
                                           IWbemObjectSink*) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE ExecNotificationQuery(const BSTR, const BSTR, LONG, IWbemContext*,
                                                  IEnumWbemClassObject**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE ExecNotificationQueryAsync(const BSTR, const BSTR, LONG, IWbemContext*,
                                                       IWbemObjectSink*) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE ExecMethod(const BSTR, const BSTR, LONG, IWbemContext*,
                                       IWbemClassObject*, IWbemClassObject**,
                                       IWbemCallResult**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE ExecMethodAsync(const BSTR, const BSTR, LONG, IWbemContext*,
                                            IWbemClassObject*, IWbemObjectSink*) override {
    return kNotSupported;
  }
};

template <typename Base>
class RefusingKeyList : public Base {
 public:
  using Base::Base;

  HRESULT STDMETHODCALLTYPE GetCount(ULONG*) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE SetKey(LPCWSTR, ULONG, ULONG, LPVOID) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE SetKey2(LPCWSTR, ULONG, ULONG, VARIANT*) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE GetKey(ULONG, ULONG, ULONG*, LPWSTR, ULONG*, LPVOID, ULONG*) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE GetKey2(ULONG, ULONG, ULONG*, LPWSTR, VARIANT*, ULONG*) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE RemoveKey(LPCWSTR, ULONG) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE RemoveAllKeys(ULONG) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE MakeSingleton(boolean) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE GetInfo(ULONG, ULONGLONG*) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE GetText(LONG, ULONG*, LPWSTR) override { return kNotSupported; }
};

template <typename Base>
class RefusingPath : public Base {
 public:
  using Base::Base;

  HRESULT STDMETHODCALLTYPE SetText(ULONG, LPCWSTR) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE GetText(LONG, ULONG*, LPWSTR) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE GetInfo(ULONG, ULONGLONG*) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE SetServer(LPCWSTR) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE GetServer(ULONG*, LPWSTR) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE GetNamespaceCount(ULONG*) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE SetNamespaceAt(ULONG, LPCWSTR) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE GetNamespaceAt(ULONG, ULONG*, LPWSTR) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE RemoveNamespaceAt(ULONG) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE RemoveAllNamespaces() override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE GetScopeCount(ULONG*) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE SetScope(ULONG, LPWSTR) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE SetScopeFromText(ULONG, LPWSTR) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE GetScope(ULONG, ULONG*, LPWSTR, IWbemPathKeyList**) override {
    return kNotSupported;
  }
  HRESULT STDMETHODCALLTYPE GetScopeAsText(ULONG, ULONG*, LPWSTR) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE RemoveScope(ULONG) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE RemoveAllScopes() override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE SetClassName(LPCWSTR) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE GetClassName(ULONG*, LPWSTR) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE GetKeyList(IWbemPathKeyList**) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE CreateClassPart(LONG, LPCWSTR) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE DeleteClassPart(LONG) override { return kNotSupported; }
  BOOL STDMETHODCALLTYPE IsRelative(LPWSTR, LPWSTR) override { return FALSE; }
  BOOL STDMETHODCALLTYPE IsRelativeOrChild(LPWSTR, LPWSTR, LONG) override { return FALSE; }
  BOOL STDMETHODCALLTYPE IsLocal(LPCWSTR) override { return FALSE; }
  BOOL STDMETHODCALLTYPE IsSameClassName(LPCWSTR) override { return FALSE; }
};

}  // namespace tqcim
