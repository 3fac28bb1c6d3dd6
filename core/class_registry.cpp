#include "core/class_registry.h"

#include <map>
#include <new>
#include <stdexcept>
#include <string>

namespace tqcim {
namespace {

/// The handlers by class name. Filled while the module is loaded and only read afterwards. A name
/// that is registered again gets the later handler; the earlier one stays allocated and unused.
class Registry {
 public:
  Registry() {
    for (const RegisteredClass& row : kRegisteredClasses) handlers_[row.name] = row.makeHandler();
  }
  ~Registry() { DeleteHandlers(); }
  Registry(const Registry&) = delete;
  Registry& operator=(const Registry&) = delete;

  BaseClass* Lookup(const char* className) const {
    const auto entry = className ? handlers_.find(className) : handlers_.end();
    if (entry == handlers_.end()) throw std::out_of_range("invalid map<K, T> key");
    return entry->second;
  }

  void DeleteHandlers() {
    for (auto& [name, handler] : handlers_) {
      delete handler;
      handler = nullptr;
    }
  }

 private:
  std::map<std::string, BaseClass*> handlers_;
};

Registry registry;

}  // namespace

BaseClass* Lookup(const char* className) {
  return registry.Lookup(className);
}

void DeleteHandlers() {
  registry.DeleteHandlers();
}

}  // namespace tqcim
