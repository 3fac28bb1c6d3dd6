/// The object-path parser of the management service.
#pragma once

#include <wbemcli.h>

STDAPI_(const CLSID) CLSID_WbemDefPath;

/// How much of a path IWbemPath::SetText takes.
enum tag_WBEM_PATH_CREATE_FLAG {
  WBEMPATH_CREATE_ACCEPT_RELATIVE = 0x1,
  WBEMPATH_CREATE_ACCEPT_ABSOLUTE = 0x2,
  WBEMPATH_CREATE_ACCEPT_ALL = 0x4,
  WBEMPATH_TREAT_SINGLE_IDENT_AS_NS = 0x8,
};

/// What IWbemPath::GetInfo tells.
enum tag_WBEM_PATH_STATUS_FLAG {
  WBEMPATH_INFO_ANON_LOCAL_MACHINE = 0x1,
  WBEMPATH_INFO_HAS_MACHINE_NAME = 0x2,
  WBEMPATH_INFO_IS_CLASS_REF = 0x4,
  WBEMPATH_INFO_IS_INST_REF = 0x8,
  WBEMPATH_INFO_HAS_SUBSCOPES = 0x10,
  WBEMPATH_INFO_IS_COMPOUND = 0x20,
  WBEMPATH_INFO_HAS_V2_REF_PATHS = 0x40,
  WBEMPATH_INFO_HAS_IMPLIED_KEY = 0x80,
  WBEMPATH_INFO_CONTAINS_SINGLETON = 0x100,
  WBEMPATH_INFO_V1_COMPLIANT = 0x200,
  WBEMPATH_INFO_V2_COMPLIANT = 0x400,
  WBEMPATH_INFO_CIM_COMPLIANT = 0x800,
  WBEMPATH_INFO_IS_SINGLETON = 0x1000,
  WBEMPATH_INFO_IS_PARENT = 0x2000,
  WBEMPATH_INFO_SERVER_NAMESPACE_ONLY = 0x4000,
  WBEMPATH_INFO_NATIVE_PATH = 0x8000,
  WBEMPATH_INFO_WMI_PATH = 0x10000,
  WBEMPATH_INFO_PATH_HAD_SERVER = 0x20000,
};

/// Which parts of a path IWbemPath::GetText writes.
enum tag_WBEM_GET_TEXT_FLAGS {
  WBEMPATH_COMPRESSED = 0x1,
  WBEMPATH_GET_RELATIVE_ONLY = 0x2,
  WBEMPATH_GET_SERVER_TOO = 0x4,
  WBEMPATH_GET_SERVER_AND_NAMESPACE_ONLY = 0x8,
  WBEMPATH_GET_NAMESPACE_ONLY = 0x10,
  WBEMPATH_GET_ORIGINAL = 0x20,
};

/// How IWbemPathKeyList hands out keys.
enum tag_WBEM_GET_KEY_FLAGS {
  WBEMPATH_TEXT = 0x1,
  WBEMPATH_QUOTEDTEXT = 0x2,
};

STDAPI_(const IID) IID_IWbemPathKeyList;
struct IWbemPathKeyList : public IUnknown {
  virtual HRESULT STDMETHODCALLTYPE GetCount(ULONG* count) = 0;
  virtual HRESULT STDMETHODCALLTYPE SetKey(LPCWSTR name, ULONG flags, ULONG cimType,
                                           LPVOID value) = 0;
  virtual HRESULT STDMETHODCALLTYPE SetKey2(LPCWSTR name, ULONG flags, ULONG cimType,
                                            VARIANT* value) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetKey(ULONG index, ULONG flags, ULONG* nameRoom, LPWSTR name,
                                           ULONG* valueRoom, LPVOID value,
                                           ULONG* apparentCimType) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetKey2(ULONG index, ULONG flags, ULONG* nameRoom, LPWSTR name,
                                            VARIANT* value, ULONG* apparentCimType) = 0;
  virtual HRESULT STDMETHODCALLTYPE RemoveKey(LPCWSTR name, ULONG flags) = 0;
  virtual HRESULT STDMETHODCALLTYPE RemoveAllKeys(ULONG flags) = 0;
  virtual HRESULT STDMETHODCALLTYPE MakeSingleton(boolean singleton) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetInfo(ULONG requested, ULONGLONG* response) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetText(LONG flags, ULONG* room, LPWSTR text) = 0;
};

STDAPI_(const IID) IID_IWbemPath;
struct IWbemPath : public IUnknown {
  virtual HRESULT STDMETHODCALLTYPE SetText(ULONG mode, LPCWSTR path) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetText(LONG flags, ULONG* room, LPWSTR text) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetInfo(ULONG requested, ULONGLONG* response) = 0;
  virtual HRESULT STDMETHODCALLTYPE SetServer(LPCWSTR name) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetServer(ULONG* room, LPWSTR name) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetNamespaceCount(ULONG* count) = 0;
  virtual HRESULT STDMETHODCALLTYPE SetNamespaceAt(ULONG index, LPCWSTR name) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetNamespaceAt(ULONG index, ULONG* room, LPWSTR name) = 0;
  virtual HRESULT STDMETHODCALLTYPE RemoveNamespaceAt(ULONG index) = 0;
  virtual HRESULT STDMETHODCALLTYPE RemoveAllNamespaces() = 0;
  virtual HRESULT STDMETHODCALLTYPE GetScopeCount(ULONG* count) = 0;
  virtual HRESULT STDMETHODCALLTYPE SetScope(ULONG index, LPWSTR className) = 0;
  virtual HRESULT STDMETHODCALLTYPE SetScopeFromText(ULONG index, LPWSTR text) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetScope(ULONG index, ULONG* room, LPWSTR className,
                                             IWbemPathKeyList** keys) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetScopeAsText(ULONG index, ULONG* room, LPWSTR text) = 0;
  virtual HRESULT STDMETHODCALLTYPE RemoveScope(ULONG index) = 0;
  virtual HRESULT STDMETHODCALLTYPE RemoveAllScopes() = 0;
  virtual HRESULT STDMETHODCALLTYPE SetClassName(LPCWSTR name) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetClassName(ULONG* room, LPWSTR name) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetKeyList(IWbemPathKeyList** keys) = 0;
  virtual HRESULT STDMETHODCALLTYPE CreateClassPart(LONG flags, LPCWSTR name) = 0;
  virtual HRESULT STDMETHODCALLTYPE DeleteClassPart(LONG flags) = 0;
  virtual BOOL STDMETHODCALLTYPE IsRelative(LPWSTR machine, LPWSTR nameSpace) = 0;
  virtual BOOL STDMETHODCALLTYPE IsRelativeOrChild(LPWSTR machine, LPWSTR nameSpace,
                                                   LONG flags) = 0;
  virtual BOOL STDMETHODCALLTYPE IsLocal(LPCWSTR machine) = 0;
  virtual BOOL STDMETHODCALLTYPE IsSameClassName(LPCWSTR className) = 0;
};
