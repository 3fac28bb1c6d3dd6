/// The map from CIM class names to their handlers.
#pragma once

#include <span>

#include "core/base_class.h"

namespace tqcim {

/// One row of the table of registered classes.
struct RegisteredClass {
  const char* name;
  /// Makes the handler with `new`; null when there is no memory.
  BaseClass* (*makeHandler)();
};

template <typename Handler>
BaseClass* MakeHandler() {
  return new (std::nothrow) Handler;
}

/// The table, in the order of registration. It stands with the handlers, in classes/.
extern const std::span<const RegisteredClass> kRegisteredClasses;

/// The handler of a class, matched exactly, case included. Null where its handler could not be
/// made. Throws std::out_of_range for a name that is not registered and for a null name.
BaseClass* Lookup(const char* className);

/// Deletes every handler; the names stay, without handlers.
void DeleteHandlers();

}  // namespace tqcim
