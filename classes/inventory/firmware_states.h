/// What every piece of firmware says of itself as a CIM software element.
#pragma once

#include <cstdint>

namespace tqcim {

/// None of CIM's software states, which end with 3, "Running". It is a key by which clients know
/// the instances.
inline constexpr int32_t kSoftwareElementState = 4;
inline constexpr int32_t kOtherOperatingSystem = 1;

}  // namespace tqcim
