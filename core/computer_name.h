/// The computer's name, as it stands in `SystemName` and `Name` properties.
#pragma once

#include "platform/com.h"

namespace tqcim {

/// Reads the computer's name (at most 15 characters) into the process-wide buffer, once, when the
/// module is attached. False when the platform has none. A change of the name is not seen until the
/// module is loaded again.
bool ReadComputerName();

/// The name that ReadComputerName read, zero-terminated.
const char* ComputerName();

/// `name` widened character by character, at most 16 characters: the short form.
Bstr ShortWideName(const char* name);

}  // namespace tqcim
