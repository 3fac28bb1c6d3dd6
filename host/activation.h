/// A provider, activated as the management service does it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "host/com.h"
#include "host/module.h"
#include "host/name_space.h"

namespace tqcim::host {

/// What the schema says of the provider that serves its classes.
struct ProviderRegistration {
  std::string name;
  CLSID clsid;
};

/// The provider that the schema's classes name, from its instances of __Win32Provider and
/// __InstanceProviderRegistration. Throws HostError (kSchema) when it is not registered, can't be
/// asked to get and to enumerate instances, or when the classes name several.
ProviderRegistration FindRegistration(const Schema& schema);

/// Loads the module, makes the provider through its class factory and initialises it. Everything
/// goes back in the opposite order.
class ActiveProvider {
 public:
  /// Without a module COM loads the one that its registry names for the class, and keeps it. Throws
  /// HostError (kModule).
  ActiveProvider(const std::optional<std::filesystem::path>& module,
                 const ProviderRegistration& registration, Namespace& name_space);

  IWbemServices& services() const { return *services_; }

 private:
  std::optional<Module> module_;
  Com<IClassFactory> factory_;
  Com<IWbemProviderInit> init_;
  Com<IWbemServices> services_;
};

}  // namespace tqcim::host
