/// The module as a whole: its identity, its counters, and what is done when it is loaded and
/// unloaded.
#pragma once

#include <atomic>

#include "platform/wmi.h"

namespace tqcim {

/// Live provider objects, and locks of the server: the module may be unloaded when both are 0.
extern std::atomic<LONG> objectCounter;
extern std::atomic<LONG> lockCounter;

/// The provider's class identifier.
CLSID ProviderClsid();

/// Reads the computer's name. False without one: the module then refuses to load or, where a module
/// can't refuse, serves no class.
bool AttachModule();
/// Deletes the handlers.
void DetachModule();

}  // namespace tqcim
