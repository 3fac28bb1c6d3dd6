/// What every piece of firmware says of itself as a CIM software element.
#pragma once

#include <cstdint>

namespace tqcim {

/// Software running, as CIM counts software states.
inline constexpr int32_t kRunning = 4;
inline constexpr int32_t kOtherOperatingSystem = 1;

}  // namespace tqcim
