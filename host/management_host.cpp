#include "host/management_host.h"

#include <optional>

#include "host/activation.h"
#include "host/class_registration.h"
#include "host/object_path.h"
#include "host/path_object.h"
#include "host/result_sink.h"
#include "host/text.h"

namespace tqcim::host {
namespace {

ObjectPath ParsePath(std::string_view text) {
  const std::string quoted = "object path '" + std::string(text) + "'";
  ObjectPath path;
  try {
    path = ParseObjectPath(text);
  } catch (const PathError& error) {
    throw HostError(
        HostError::Kind::kBadPath,
        quoted + ", character " + std::to_string(error.position() + 1) + ": " + error.what());
  }
  if (!IsInNamespace(path, ComputerName())) {
    throw HostError(HostError::Kind::kBadPath, quoted + " leads out of the namespace " +
                                                   std::string(kNamespace) + " of this computer");
  }
  if (path.class_name.empty()) {
    throw HostError(HostError::Kind::kBadPath, quoted + " names no class");
  }
  return path;
}

/// What a request came to: the provider's own result when it failed, else the final status.
Outcome Settle(HRESULT returned, ResultSink& sink) {
  const auto status = sink.Close();
  if (returned != S_OK) return {returned};
  return {status.value_or(kProviderFailure)};
}

}  // namespace

struct ManagementHost::Parts {
  Apartment apartment;
  std::shared_ptr<Namespace> name_space;
  ClassRegistration locator;
  ClassRegistration administrative_locator;
  ClassRegistration path_parser;
  ActiveProvider provider;

  explicit Parts(std::shared_ptr<const Schema> schema, const ProviderRegistration& registration,
                 const std::optional<std::filesystem::path>& module)
      : name_space(std::make_shared<Namespace>(std::move(schema))),
        locator(CLSID_WbemLocator, MakeLocator()),
        administrative_locator(CLSID_WbemAdministrativeLocator, MakeLocator()),
        path_parser(CLSID_WbemDefPath, [] { return Com<IUnknown>(new PathObject); }),
        provider(module, registration, *name_space) {}

  ClassRegistration::Maker MakeLocator() const {
    return [served = name_space] { return Com<IUnknown>(new Locator(served)); };
  }

  /// The served class of that name. Throws HostError.
  const ClassDefinition& ServedClass(std::string_view name) const {
    const ClassDefinition* definition = name_space->schema().Find(name);
    if (!definition || definition->provider.empty()) {
      throw HostError(HostError::Kind::kUnknownClass,
                      "there is no class " + std::string(name) + " to ask the provider for");
    }
    return *definition;
  }
};

std::string Outcome::Text() const {
  return ResultText(result);
}

ManagementHost::ManagementHost(std::unique_ptr<Parts> parts) : parts_(std::move(parts)) {}
ManagementHost::~ManagementHost() = default;

std::unique_ptr<ManagementHost> ManagementHost::Open(const HostOptions& options) {
  auto schema =
      options.schema ? options.schema : std::make_shared<const Schema>(Schema::Embedded());
  const ProviderRegistration registration = FindRegistration(*schema);
  std::optional<std::filesystem::path> module;
  if (!options.registered) {
    module = options.module.empty() ? ProgramFolder() / kModuleName : options.module;
  }
  return std::unique_ptr<ManagementHost>(
      new ManagementHost(std::make_unique<Parts>(std::move(schema), registration, module)));
}

std::vector<std::string> ManagementHost::ClassNames() const {
  std::vector<std::string> names;
  for (const ClassDefinition& definition : schema().Classes()) {
    if (!definition.provider.empty()) names.emplace_back(definition.name);
  }
  return names;
}

const Schema& ManagementHost::schema() const {
  return parts_->name_space->schema();
}

Outcome ManagementHost::Enumerate(std::string_view class_name, const InstanceCallback& callback) {
  const ClassDefinition& definition = parts_->ServedClass(class_name);
  const Apartment apartment;
  const Bstr name = MakeBstr(definition.name);
  const Com<ResultSink> sink(new ResultSink(callback));
  const HRESULT returned =
      parts_->provider.services().CreateInstanceEnumAsync(name.get(), 0, nullptr, sink.get());
  return Settle(returned, *sink);
}

Outcome ManagementHost::Get(std::string_view path, const InstanceCallback& callback) {
  ObjectPath parsed = ParsePath(path);
  parsed.class_name = parts_->ServedClass(parsed.class_name).name;
  const Apartment apartment;
  const Com<ResultSink> sink(new ResultSink(callback));
  // The provider frees the text of the path.
  const BSTR text = MakeBstr(RelativeText(parsed)).release();
  const HRESULT returned = parts_->provider.services().GetObjectAsync(text, 0, nullptr, sink.get());
  return Settle(returned, *sink);
}

}  // namespace tqcim::host
