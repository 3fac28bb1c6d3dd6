#include "host/activation.h"

#include <algorithm>

#include "host/management_host.h"
#include "host/result_sink.h"
#include "host/text.h"

namespace tqcim::host {
namespace {

[[noreturn]] void RefuseSchema(const std::string& reason) {
  throw HostError(HostError::Kind::kSchema, "the schema cannot be served: " + reason);
}

Value PropertyOf(const DeclaredInstance& instance, std::string_view name) {
  for (const auto& [property, value] : instance.properties) {
    if (EqualNames(property, name)) return value;
  }
  return {};
}

const DeclaredInstance* FindInstance(const Schema& schema, std::string_view class_name,
                                     std::string_view property, const std::string& value) {
  const auto& instances = schema.Instances();
  const auto found =
      std::find_if(instances.begin(), instances.end(), [&](const DeclaredInstance& instance) {
        return EqualNames(instance.class_name, class_name) &&
               PropertyOf(instance, property) == Value(value);
      });
  return found == instances.end() ? nullptr : &*found;
}

/// The name of the provider that all served classes share.
std::string SharedProvider(const Schema& schema) {
  std::string name;
  for (const ClassDefinition& definition : schema.Classes()) {
    if (definition.provider.empty()) continue;
    if (!name.empty() && definition.provider != name) {
      RefuseSchema("its classes name two providers, " + name + " and " + definition.provider);
    }
    name = definition.provider;
  }
  if (name.empty()) RefuseSchema("none of its classes names a provider");
  return name;
}

[[noreturn]] void RefuseModule(const std::string& reason, HRESULT result) {
  throw HostError(HostError::Kind::kModule,
                  "the provider module " + reason + ": " + ResultText(result));
}

Com<IClassFactory> FactoryOf(const Module& module, REFCLSID clsid) {
  Com<IClassFactory> factory;
  const HRESULT result = module.GetClassObject(clsid, IID_IClassFactory, factory.ReceiveVoid());
  if (FAILED(result)) RefuseModule("gives no class factory", result);
  return factory;
}

Com<IClassFactory> RegisteredFactory(REFCLSID clsid) {
  Com<IClassFactory> factory;
  const HRESULT result = CoGetClassObject(clsid, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory,
                                          factory.ReceiveVoid());
  if (FAILED(result)) {
    RefuseModule("is not registered with COM, or can't be loaded from where it is registered",
                 result);
  }
  return factory;
}

/// Initialises the provider; its status comes through the sink.
void Initialise(IWbemProviderInit& init, Namespace& name_space) {
  const Com<InitSink> sink(new InitSink);
  WideText name = ToWide(kNamespace);
  const HRESULT called =
      init.Initialize(nullptr, 0, name.data(), nullptr, &name_space, nullptr, sink.get());
  if (FAILED(called)) RefuseModule("cannot be initialised", called);
  const HRESULT status = sink->Status().value_or(kProviderFailure);
  if (FAILED(status)) RefuseModule("cannot be initialised", status);
}

}  // namespace

ProviderRegistration FindRegistration(const Schema& schema) {
  ProviderRegistration registration;
  registration.name = SharedProvider(schema);
  const DeclaredInstance* provider =
      FindInstance(schema, "__Win32Provider", "Name", registration.name);
  if (!provider) RefuseSchema("provider " + registration.name + " is not registered");
  const Value clsid = PropertyOf(*provider, "CLSID");
  const auto* text = std::get_if<std::string>(&clsid);
  if (!text || FAILED(CLSIDFromString(ToWide(*text).c_str(), &registration.clsid))) {
    RefuseSchema("provider " + registration.name + " has no CLSID");
  }
  const DeclaredInstance* supports = FindInstance(schema, "__InstanceProviderRegistration",
                                                  "Provider", "$" + std::string(provider->alias));
  if (!supports || PropertyOf(*supports, "SupportsGet") != Value(true) ||
      PropertyOf(*supports, "SupportsEnumeration") != Value(true)) {
    RefuseSchema("provider " + registration.name +
                 " is not registered to get and to enumerate instances");
  }
  return registration;
}

ActiveProvider::ActiveProvider(const std::optional<std::filesystem::path>& module,
                               const ProviderRegistration& registration, Namespace& name_space) {
  if (module) {
    factory_ = FactoryOf(module_.emplace(*module), registration.clsid);
  } else {
    factory_ = RegisteredFactory(registration.clsid);
  }
  HRESULT result = factory_->CreateInstance(nullptr, IID_IWbemProviderInit, init_.ReceiveVoid());
  if (FAILED(result)) RefuseModule("makes no provider", result);
  Initialise(*init_, name_space);
  result = init_->QueryInterface(IID_IWbemServices, services_.ReceiveVoid());
  if (FAILED(result)) RefuseModule("has a provider that serves no instances", result);
}

}  // namespace tqcim::host
