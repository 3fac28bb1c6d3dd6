/// The provider's requests as the benchmarks make them: straight to the handlers, without the
/// service in between, and what the service's side of them costs by itself.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/base_class.h"
#include "host/class_object.h"

namespace tqcim::bench {

/// A class of the provider: its handler, and the definition that the host makes of the schema.
class ProvidedClass {
 public:
  explicit ProvidedClass(const std::string& name);

  /// Enumerates into a sink that keeps nothing. The number of instances.
  size_t Enumerate() const;
  /// Asks for the instance that the object path names. The number of instances.
  size_t Get(const std::string& path) const;
  /// The relative path of the last instance.
  std::string LastPath() const;

  IWbemClassObject& Definition() const { return *definition_; }
  BaseClass& Handler() const { return *handler_; }

 private:
  BaseClass* handler_;
  Com<host::ClassObject> definition_;
};

/// The floor of a class: the calls of the service's interfaces that an enumeration made, with the
/// values of that run, and nothing else.
class RecordedRun {
 public:
  explicit RecordedRun(const ProvidedClass& provided);
  /// SpawnInstance, every Put, Indicate and Release, as recorded. The number of instances.
  size_t Replay(const ProvidedClass& provided) const;

  size_t Instances() const { return instances_.size(); }

 private:
  struct Put {
    std::basic_string<OLECHAR> name;
    OwnedVariant value;
    bool null;
    LONG flags;
    CIMTYPE type;
  };
  using Instance = std::vector<Put>;
  class Recorder;

  std::vector<Instance> instances_;
};

}  // namespace tqcim::bench
