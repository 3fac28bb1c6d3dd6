#include "core/class_registry.h"

#include <map>
#include <new>
#include <stdexcept>
#include <string>

namespace tqcim {
namespace {

using Registry = std::map<std::string, BaseClass*>;

/// Filled while the module is loaded and only read afterwards. A name that is registered again gets
/// the later handler; the earlier one stays allocated and unused.
Registry MakeRegistry() {
  Registry handlers;
  for (const RegisteredClass& row : kRegisteredClasses) handlers[row.name] = row.makeHandler();
  return handlers;
}

Registry registry = MakeRegistry();

}  // namespace

BaseClass* Lookup(const char* className) {
  const auto entry = className ? registry.find(className) : registry.end();
  if (entry == registry.end()) throw std::out_of_range("invalid map<K, T> key");
  return entry->second;
}

void DeleteHandlers() {
  for (auto& [name, handler] : registry) {
    delete handler;
    handler = nullptr;
  }
}

}  // namespace tqcim
