/// The environment of this process, which the programs that it starts inherit.
#pragma once

namespace tqcim::testing {

/// Sets a variable, or removes it where `value` is null.
void SetEnvironment(const char* name, const char* value);

}  // namespace tqcim::testing
