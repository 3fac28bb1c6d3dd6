/// The platform's object-path parser as a COM class.
#pragma once

#include <optional>

#include "host/com.h"
#include "host/object_path.h"
#include "host/results.h"

namespace tqcim::host {

/// A path with everything refused but the reading of texts: WBEM_E_NOT_SUPPORTED, FALSE.
class RefusingPath : public ComObject<IWbemPath, IID_IWbemPath> {
 public:
  HRESULT STDMETHODCALLTYPE GetInfo(ULONG, ULONGLONG*) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE SetServer(LPCWSTR) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE SetNamespaceAt(ULONG, LPCWSTR) override { return kNotSupported; }
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
  HRESULT STDMETHODCALLTYPE CreateClassPart(LONG, LPCWSTR) override { return kNotSupported; }
  HRESULT STDMETHODCALLTYPE DeleteClassPart(LONG) override { return kNotSupported; }
  BOOL STDMETHODCALLTYPE IsRelative(LPWSTR, LPWSTR) override { return FALSE; }
  BOOL STDMETHODCALLTYPE IsRelativeOrChild(LPWSTR, LPWSTR, LONG) override { return FALSE; }
  BOOL STDMETHODCALLTYPE IsLocal(LPCWSTR) override { return FALSE; }
  BOOL STDMETHODCALLTYPE IsSameClassName(LPCWSTR) override { return FALSE; }
};

/// The reading half of the parser. Lengths count characters with the terminator: a null buffer asks
/// for the length, WBEM_E_BUFFER_TOO_SMALL leaves it behind. Texts that are asked for before a
/// path was set, or that it doesn't have, give WBEM_E_INVALID_OBJECT_PATH.
class PathObject final : public RefusingPath {
 public:
  /// `mode` has to be WBEMPATH_CREATE_ACCEPT_ALL. WBEM_E_INVALID_OBJECT_PATH for a text that can't
  /// be read, which leaves no path behind; an empty text succeeds and leaves none behind either.
  HRESULT STDMETHODCALLTYPE SetText(ULONG mode, LPCWSTR text) override;
  /// `flags`: 0, WBEMPATH_GET_RELATIVE_ONLY or WBEMPATH_GET_SERVER_TOO.
  HRESULT STDMETHODCALLTYPE GetText(LONG flags, ULONG* length, LPWSTR text) override;
  HRESULT STDMETHODCALLTYPE GetServer(ULONG* length, LPWSTR name) override;
  HRESULT STDMETHODCALLTYPE GetNamespaceCount(ULONG* count) override;
  HRESULT STDMETHODCALLTYPE GetNamespaceAt(ULONG index, ULONG* length, LPWSTR name) override;
  HRESULT STDMETHODCALLTYPE GetClassName(ULONG* length, LPWSTR name) override;
  /// The keys of the path, as they are now; no keys for the path of a class.
  /// WBEM_E_INVALID_PARAMETER without a class.
  HRESULT STDMETHODCALLTYPE GetKeyList(IWbemPathKeyList** keys) override;

 private:
  std::optional<ObjectPath> path_;
};

}  // namespace tqcim::host
