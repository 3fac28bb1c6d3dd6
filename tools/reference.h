/// Object paths as people read them.
#pragma once

#include <string>
#include <string_view>

namespace tqcim::tools {

/// The class and what tells the instance apart: "CIM_TemperatureSensor 3", several keys with ", "
/// between them. Keys that name the class or the system are left out beside others. A text that is
/// no path of an instance is given as it is. Printable.
std::string ReadableReference(std::string_view text);

/// The same without the class: "3".
std::string IdentifyingKeys(std::string_view path);

}  // namespace tqcim::tools
