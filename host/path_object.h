/// The platform's object-path parser as a COM class.
#pragma once

#include <optional>

#include "host/com.h"
#include "host/object_path.h"
#include "host/results.h"
#include "platform/refusing_interfaces.h"

namespace tqcim::host {

/// The class and the keys of a path. Lengths count characters with the terminator: a null buffer
/// asks for the length, WBEM_E_BUFFER_TOO_SMALL leaves it behind.
class PathObject final : public RefusingPath<ComObject<IWbemPath, IID_IWbemPath>> {
 public:
  /// `mode` has to be WBEMPATH_CREATE_ACCEPT_ALL. WBEM_E_INVALID_OBJECT_PATH for a text that can't
  /// be read, which leaves no path behind; an empty text succeeds and leaves none behind either.
  HRESULT STDMETHODCALLTYPE SetText(ULONG mode, LPCWSTR text) override;
  /// WBEM_E_INVALID_OBJECT_PATH without a class.
  HRESULT STDMETHODCALLTYPE GetClassName(ULONG* length, LPWSTR name) override;
  /// The keys of the path, as they are now; no keys for the path of a class.
  /// WBEM_E_INVALID_PARAMETER without a class.
  HRESULT STDMETHODCALLTYPE GetKeyList(IWbemPathKeyList** keys) override;

 private:
  std::optional<ObjectPath> path_;
};

}  // namespace tqcim::host
