/// The host in one class: activates the provider as the management service does, asks it for
/// instances through COM, and hands them out as plain values.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "host/instance.h"
#include "host/schema.h"

namespace tqcim::host {

/// Where the host takes its parts from.
struct HostOptions {
  /// The provider module. Empty: the one that stands beside the running program.
  std::filesystem::path module;
  /// The classes and the registration of their provider. Null: the schema that the program carries.
  std::shared_ptr<const Schema> schema;
  /// The provider module is the one that COM's registry names for its class, whatever `module`
  /// says.
  bool registered = false;
};

/// What went wrong before the provider was asked, in one sentence for people (`what()`).
class HostError : public std::runtime_error {
 public:
  enum class Kind {
    kSchema,        ///< the schema names no provider that can be asked
    kModule,        ///< the provider module can't be loaded or refuses to start
    kUnknownClass,  ///< no served class has that name
    kBadPath,       ///< the text is not an object path of this namespace
    kPlatform,      ///< COM itself refused
  };
  HostError(Kind kind, const std::string& sentence) : std::runtime_error(sentence), kind_(kind) {}
  Kind kind() const { return kind_; }

 private:
  Kind kind_;
};

/// What the provider answered: an HRESULT. 0 is success; how many instances came is the caller's
/// to count.
struct Outcome {
  int32_t result = 0;
  bool ok() const { return result >= 0; }
  /// "WBEM_E_NOT_FOUND (0x80041002)"; an unknown code is given by number alone.
  std::string Text() const;
};

/// One activated provider. One host at a time per process: the provider keeps its connection to
/// the namespace process-wide. Requests may be made from many threads at once; Open and the
/// destructor belong to one thread.
class ManagementHost {
 public:
  /// Called once per instance, while the provider is still working.
  using InstanceCallback = std::function<void(Instance)>;

  /// Loads and initialises the provider. Throws HostError; natively a second host is refused with
  /// kPlatform.
  static std::unique_ptr<ManagementHost> Open(const HostOptions& options = {});

  /// Releases the provider, asks the module whether it may go, and unloads it.
  ~ManagementHost();

  ManagementHost(const ManagementHost&) = delete;
  ManagementHost& operator=(const ManagementHost&) = delete;

  /// Names of the classes that the provider serves, in the schema's order.
  std::vector<std::string> ClassNames() const;

  const Schema& schema() const;

  /// All instances of a served class, named in any case. Throws HostError: kUnknownClass, or
  /// kPlatform on a thread of a single-threaded apartment. What the callback throws reaches the
  /// caller.
  Outcome Enumerate(std::string_view class_name, const InstanceCallback& callback);

  /// The instances that an object path names ('CIM_Processor.DeviceID="1"', with or without
  /// \\server\namespace in front). Success without any instance means that there is none. Throws
  /// HostError: kBadPath, or what Enumerate throws.
  Outcome Get(std::string_view path, const InstanceCallback& callback);

 private:
  struct Parts;
  explicit ManagementHost(std::unique_ptr<Parts> parts);
  std::unique_ptr<Parts> parts_;
};

}  // namespace tqcim::host
