/// The computer's name as the platform tells it to the code under test.
#pragma once

#include "platform/wmi.h"

namespace tqcim::testing {

/// The name that every test begins with: 15 characters, the longest that the platform gives.
inline constexpr const char* kComputerName = "RACK42-NODE0007";

/// What GetComputerNameA gives from now on; null makes it fail.
void SetComputerName(const char* name);

/// The fake behind GetComputerNameA. It refuses buffers other than of 16 characters.
BOOL TellComputerName(LPSTR buffer, LPDWORD size);

}  // namespace tqcim::testing
