/// The namespace of the provider's classes, and the locator that connects to it.
#pragma once

#include <atomic>
#include <memory>

#include "host/com.h"
#include "host/object_path.h"
#include "host/results.h"
#include "host/schema.h"
#include "platform/refusing_interfaces.h"

namespace tqcim::host {

/// The one namespace that the host has.
inline constexpr std::string_view kNamespace = "root\\cimv2\\vorn";

/// Whether a path leads to the host's namespace of this computer: its server is missing, ".",
/// "localhost" or the computer's own name, with or without a domain behind it, its namespaces are
/// missing or those of kNamespace, in any case. `computer_name` is what ComputerName gives.
bool IsInNamespace(const ObjectPath& path, std::string_view computer_name);

/// The name of the computer when it was first asked for, which the platform cuts to 15 characters.
const std::string& ComputerName();

/// The namespace: GetObject gives class definitions, all else is refused.
///
/// The provider keeps its connection for the life of the process and never gives it back, so COM
/// references don't keep the namespace: its owner does, and counts them.
class Namespace final : public RefusingServices<IWbemServices> {
 public:
  explicit Namespace(std::shared_ptr<const Schema> schema) : schema_(std::move(schema)) {}

  const Schema& schema() const { return *schema_; }
  /// How many references are held through COM.
  ULONG References() const { return references_; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override { return --references_; }

  /// The definition of the class that a path names. WBEM_E_NOT_FOUND for a class that the schema
  /// doesn't have, WBEM_E_INVALID_OBJECT_PATH for a text that is no path or leads elsewhere,
  /// WBEM_E_NOT_SUPPORTED for the path of an instance and for flags. The call result is not used.
  HRESULT STDMETHODCALLTYPE GetObject(BSTR path, LONG flags, IWbemContext* context,
                                      IWbemClassObject** object, IWbemCallResult** call) override;

 private:
  std::shared_ptr<const Schema> schema_;
  std::atomic<ULONG> references_ = 0;
};

/// Connects to the namespace of the host that made it. IUnknown and IWbemLocator are one table:
/// providers that ask for the one use the other.
class Locator final : public ComObject<IWbemLocator, IID_IWbemLocator> {
 public:
  explicit Locator(std::shared_ptr<Namespace> name_space) : name_space_(std::move(name_space)) {}

  /// User, password, locale, flags, authority and context are not looked at.
  /// WBEM_E_INVALID_NAMESPACE for any other namespace.
  HRESULT STDMETHODCALLTYPE ConnectServer(BSTR resource, BSTR user, BSTR password, BSTR locale,
                                          LONG flags, BSTR authority, IWbemContext* context,
                                          IWbemServices** services) override;

 private:
  std::shared_ptr<Namespace> name_space_;
};

}  // namespace tqcim::host
