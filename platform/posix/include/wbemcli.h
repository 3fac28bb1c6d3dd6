/// The interfaces between the management service and those who ask it, and its objects.
#pragma once

#include <oleauto.h>
#include <wbemstatus.h>

struct IEnumWbemClassObject;
struct IWbemCallResult;
struct IWbemClassObject;
struct IWbemObjectSink;
struct IWbemServices;

STDAPI_(const CLSID) CLSID_WbemLocator;

/// The type of a property, or with CIM_FLAG_ARRAY of its elements.
using CIMTYPE = LONG;
enum CIMTYPE_ENUMERATION {
  CIM_ILLEGAL = 0xfff,
  CIM_EMPTY = 0,
  CIM_SINT8 = 16,
  CIM_UINT8 = 17,
  CIM_SINT16 = 2,
  CIM_UINT16 = 18,
  CIM_SINT32 = 3,
  CIM_UINT32 = 19,
  CIM_SINT64 = 20,
  CIM_UINT64 = 21,
  CIM_REAL32 = 4,
  CIM_REAL64 = 5,
  CIM_BOOLEAN = 11,
  CIM_STRING = 8,
  CIM_DATETIME = 101,
  CIM_REFERENCE = 102,
  CIM_CHAR16 = 103,
  CIM_OBJECT = 13,
  CIM_FLAG_ARRAY = 0x2000,
};

/// The value of the system property __GENUS.
enum WBEM_GENUS_TYPE {
  WBEM_GENUS_CLASS = 1,
  WBEM_GENUS_INSTANCE = 2,
};

/// Which properties IWbemClassObject::GetNames and BeginEnumeration take.
enum WBEM_CONDITION_FLAG_TYPE {
  WBEM_FLAG_ALWAYS = 0,
  WBEM_FLAG_ONLY_IF_TRUE = 0x1,
  WBEM_FLAG_ONLY_IF_FALSE = 0x2,
  WBEM_FLAG_ONLY_IF_IDENTICAL = 0x3,
  WBEM_MASK_PRIMARY_CONDITION = 0x3,
  WBEM_FLAG_KEYS_ONLY = 0x4,
  WBEM_FLAG_REFS_ONLY = 0x8,
  WBEM_FLAG_LOCAL_ONLY = 0x10,
  WBEM_FLAG_PROPAGATED_ONLY = 0x20,
  WBEM_FLAG_SYSTEM_ONLY = 0x30,
  WBEM_FLAG_NONSYSTEM_ONLY = 0x40,
  WBEM_MASK_CONDITION_ORIGIN = 0x70,
};

/// Where a property comes from.
enum WBEM_FLAVOR_TYPE {
  WBEM_FLAVOR_ORIGIN_LOCAL = 0,
  WBEM_FLAVOR_ORIGIN_PROPAGATED = 0x20,
  WBEM_FLAVOR_ORIGIN_SYSTEM = 0x40,
  WBEM_FLAVOR_MASK_ORIGIN = 0x60,
};

enum WBEM_QUERY_FLAG_TYPE {
  WBEM_FLAG_DEEP = 0,
  WBEM_FLAG_SHALLOW = 1,
};

enum WBEM_TIMEOUT_TYPE {
  WBEM_NO_WAIT = 0,
  WBEM_INFINITE = 0xffffffff,
};

STDAPI_(const IID) IID_IWbemQualifierSet;
struct IWbemQualifierSet : public IUnknown {
  virtual HRESULT STDMETHODCALLTYPE Get(LPCWSTR name, LONG flags, VARIANT* value, LONG* flavor) = 0;
  virtual HRESULT STDMETHODCALLTYPE Put(LPCWSTR name, VARIANT* value, LONG flavor) = 0;
  virtual HRESULT STDMETHODCALLTYPE Delete(LPCWSTR name) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetNames(LONG flags, SAFEARRAY** names) = 0;
  virtual HRESULT STDMETHODCALLTYPE BeginEnumeration(LONG flags) = 0;
  virtual HRESULT STDMETHODCALLTYPE Next(LONG flags, BSTR* name, VARIANT* value, LONG* flavor) = 0;
  virtual HRESULT STDMETHODCALLTYPE EndEnumeration() = 0;
};

STDAPI_(const IID) IID_IWbemClassObject;
struct IWbemClassObject : public IUnknown {
  virtual HRESULT STDMETHODCALLTYPE GetQualifierSet(IWbemQualifierSet** set) = 0;
  virtual HRESULT STDMETHODCALLTYPE Get(LPCWSTR name, LONG flags, VARIANT* value, CIMTYPE* type,
                                        LONG* flavor) = 0;
  virtual HRESULT STDMETHODCALLTYPE Put(LPCWSTR name, LONG flags, VARIANT* value, CIMTYPE type) = 0;
  virtual HRESULT STDMETHODCALLTYPE Delete(LPCWSTR name) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetNames(LPCWSTR qualifier, LONG flags, VARIANT* qualifierValue,
                                             SAFEARRAY** names) = 0;
  virtual HRESULT STDMETHODCALLTYPE BeginEnumeration(LONG flags) = 0;
  virtual HRESULT STDMETHODCALLTYPE Next(LONG flags, BSTR* name, VARIANT* value, CIMTYPE* type,
                                         LONG* flavor) = 0;
  virtual HRESULT STDMETHODCALLTYPE EndEnumeration() = 0;
  virtual HRESULT STDMETHODCALLTYPE GetPropertyQualifierSet(LPCWSTR property,
                                                            IWbemQualifierSet** set) = 0;
  virtual HRESULT STDMETHODCALLTYPE Clone(IWbemClassObject** copy) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetObjectText(LONG flags, BSTR* text) = 0;
  virtual HRESULT STDMETHODCALLTYPE SpawnDerivedClass(LONG flags, IWbemClassObject** derived) = 0;
  virtual HRESULT STDMETHODCALLTYPE SpawnInstance(LONG flags, IWbemClassObject** instance) = 0;
  virtual HRESULT STDMETHODCALLTYPE CompareTo(LONG flags, IWbemClassObject* other) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetPropertyOrigin(LPCWSTR name, BSTR* className) = 0;
  virtual HRESULT STDMETHODCALLTYPE InheritsFrom(LPCWSTR ancestor) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetMethod(LPCWSTR name, LONG flags, IWbemClassObject** in,
                                              IWbemClassObject** out) = 0;
  virtual HRESULT STDMETHODCALLTYPE PutMethod(LPCWSTR name, LONG flags, IWbemClassObject* in,
                                              IWbemClassObject* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE DeleteMethod(LPCWSTR name) = 0;
  virtual HRESULT STDMETHODCALLTYPE BeginMethodEnumeration(LONG flags) = 0;
  virtual HRESULT STDMETHODCALLTYPE NextMethod(LONG flags, BSTR* name, IWbemClassObject** in,
                                               IWbemClassObject** out) = 0;
  virtual HRESULT STDMETHODCALLTYPE EndMethodEnumeration() = 0;
  virtual HRESULT STDMETHODCALLTYPE GetMethodQualifierSet(LPCWSTR method,
                                                          IWbemQualifierSet** set) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetMethodOrigin(LPCWSTR method, BSTR* className) = 0;
};

STDAPI_(const IID) IID_IWbemContext;
struct IWbemContext : public IUnknown {
  virtual HRESULT STDMETHODCALLTYPE Clone(IWbemContext** copy) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetNames(LONG flags, SAFEARRAY** names) = 0;
  virtual HRESULT STDMETHODCALLTYPE BeginEnumeration(LONG flags) = 0;
  virtual HRESULT STDMETHODCALLTYPE Next(LONG flags, BSTR* name, VARIANT* value) = 0;
  virtual HRESULT STDMETHODCALLTYPE EndEnumeration() = 0;
  virtual HRESULT STDMETHODCALLTYPE SetValue(LPCWSTR name, LONG flags, VARIANT* value) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetValue(LPCWSTR name, LONG flags, VARIANT* value) = 0;
  virtual HRESULT STDMETHODCALLTYPE DeleteValue(LPCWSTR name, LONG flags) = 0;
  virtual HRESULT STDMETHODCALLTYPE DeleteAll() = 0;
};

STDAPI_(const IID) IID_IWbemObjectSink;
struct IWbemObjectSink : public IUnknown {
  virtual HRESULT STDMETHODCALLTYPE Indicate(LONG count, IWbemClassObject** objects) = 0;
  virtual HRESULT STDMETHODCALLTYPE SetStatus(LONG flags, HRESULT result, BSTR text,
                                              IWbemClassObject* object) = 0;
};

STDAPI_(const IID) IID_IEnumWbemClassObject;
struct IEnumWbemClassObject : public IUnknown {
  virtual HRESULT STDMETHODCALLTYPE Reset() = 0;
  virtual HRESULT STDMETHODCALLTYPE Next(LONG timeout, ULONG count, IWbemClassObject** objects,
                                         ULONG* returned) = 0;
  virtual HRESULT STDMETHODCALLTYPE NextAsync(ULONG count, IWbemObjectSink* sink) = 0;
  virtual HRESULT STDMETHODCALLTYPE Clone(IEnumWbemClassObject** copy) = 0;
  virtual HRESULT STDMETHODCALLTYPE Skip(LONG timeout, ULONG count) = 0;
};

STDAPI_(const IID) IID_IWbemCallResult;
struct IWbemCallResult : public IUnknown {
  virtual HRESULT STDMETHODCALLTYPE GetResultObject(LONG timeout, IWbemClassObject** object) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetResultString(LONG timeout, BSTR* text) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetResultServices(LONG timeout, IWbemServices** services) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetCallStatus(LONG timeout, LONG* status) = 0;
};

STDAPI_(const IID) IID_IWbemServices;
struct IWbemServices : public IUnknown {
  virtual HRESULT STDMETHODCALLTYPE OpenNamespace(const BSTR name, LONG flags,
                                                  IWbemContext* context, IWbemServices** services,
                                                  IWbemCallResult** result) = 0;
  virtual HRESULT STDMETHODCALLTYPE CancelAsyncCall(IWbemObjectSink* sink) = 0;
  virtual HRESULT STDMETHODCALLTYPE QueryObjectSink(LONG flags, IWbemObjectSink** sink) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetObject(const BSTR path, LONG flags, IWbemContext* context,
                                              IWbemClassObject** object,
                                              IWbemCallResult** result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetObjectAsync(const BSTR path, LONG flags,
                                                   IWbemContext* context,
                                                   IWbemObjectSink* sink) = 0;
  virtual HRESULT STDMETHODCALLTYPE PutClass(IWbemClassObject* object, LONG flags,
                                             IWbemContext* context, IWbemCallResult** result) = 0;
  virtual HRESULT STDMETHODCALLTYPE PutClassAsync(IWbemClassObject* object, LONG flags,
                                                  IWbemContext* context, IWbemObjectSink* sink) = 0;
  virtual HRESULT STDMETHODCALLTYPE DeleteClass(const BSTR name, LONG flags, IWbemContext* context,
                                                IWbemCallResult** result) = 0;
  virtual HRESULT STDMETHODCALLTYPE DeleteClassAsync(const BSTR name, LONG flags,
                                                     IWbemContext* context,
                                                     IWbemObjectSink* sink) = 0;
  virtual HRESULT STDMETHODCALLTYPE CreateClassEnum(const BSTR superclass, LONG flags,
                                                    IWbemContext* context,
                                                    IEnumWbemClassObject** objects) = 0;
  virtual HRESULT STDMETHODCALLTYPE CreateClassEnumAsync(const BSTR superclass, LONG flags,
                                                         IWbemContext* context,
                                                         IWbemObjectSink* sink) = 0;
  virtual HRESULT STDMETHODCALLTYPE PutInstance(IWbemClassObject* instance, LONG flags,
                                                IWbemContext* context,
                                                IWbemCallResult** result) = 0;
  virtual HRESULT STDMETHODCALLTYPE PutInstanceAsync(IWbemClassObject* instance, LONG flags,
                                                     IWbemContext* context,
                                                     IWbemObjectSink* sink) = 0;
  virtual HRESULT STDMETHODCALLTYPE DeleteInstance(const BSTR path, LONG flags,
                                                   IWbemContext* context,
                                                   IWbemCallResult** result) = 0;
  virtual HRESULT STDMETHODCALLTYPE DeleteInstanceAsync(const BSTR path, LONG flags,
                                                        IWbemContext* context,
                                                        IWbemObjectSink* sink) = 0;
  virtual HRESULT STDMETHODCALLTYPE CreateInstanceEnum(const BSTR className, LONG flags,
                                                       IWbemContext* context,
                                                       IEnumWbemClassObject** objects) = 0;
  virtual HRESULT STDMETHODCALLTYPE CreateInstanceEnumAsync(const BSTR className, LONG flags,
                                                            IWbemContext* context,
                                                            IWbemObjectSink* sink) = 0;
  virtual HRESULT STDMETHODCALLTYPE ExecQuery(const BSTR language, const BSTR query, LONG flags,
                                              IWbemContext* context,
                                              IEnumWbemClassObject** objects) = 0;
  virtual HRESULT STDMETHODCALLTYPE ExecQueryAsync(const BSTR language, const BSTR query,
                                                   LONG flags, IWbemContext* context,
                                                   IWbemObjectSink* sink) = 0;
  virtual HRESULT STDMETHODCALLTYPE ExecNotificationQuery(const BSTR language, const BSTR query,
                                                          LONG flags, IWbemContext* context,
                                                          IEnumWbemClassObject** objects) = 0;
  virtual HRESULT STDMETHODCALLTYPE ExecNotificationQueryAsync(const BSTR language,
                                                               const BSTR query, LONG flags,
                                                               IWbemContext* context,
                                                               IWbemObjectSink* sink) = 0;
  virtual HRESULT STDMETHODCALLTYPE ExecMethod(const BSTR path, const BSTR method, LONG flags,
                                               IWbemContext* context, IWbemClassObject* in,
                                               IWbemClassObject** out,
                                               IWbemCallResult** result) = 0;
  virtual HRESULT STDMETHODCALLTYPE ExecMethodAsync(const BSTR path, const BSTR method, LONG flags,
                                                    IWbemContext* context, IWbemClassObject* in,
                                                    IWbemObjectSink* sink) = 0;
};

STDAPI_(const IID) IID_IWbemLocator;
struct IWbemLocator : public IUnknown {
  virtual HRESULT STDMETHODCALLTYPE ConnectServer(const BSTR path, const BSTR user,
                                                  const BSTR password, const BSTR locale,
                                                  LONG securityFlags, const BSTR authority,
                                                  IWbemContext* context,
                                                  IWbemServices** services) = 0;
};
