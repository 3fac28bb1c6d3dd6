/// The power profile in force, and what a custom profile holds.
#pragma once

#include "platform/layout.h"

namespace tqcim::layout {

namespace power_profile {
inline constexpr uint16_t kType = 48;

inline constexpr Field<uint16_t> kSupportedProfiles{"supportedProfiles", 16};
inline constexpr Field<uint16_t> kSetting{"setting", 20};

inline constexpr FieldInfo kFields[] = {kSupportedProfiles, kSetting};
inline constexpr ObjectLayout kLayout{kType, "powerProfile", kFields};
}  // namespace power_profile

/// Children of the power profile, one type for each part of the machine.
namespace custom_profile {
inline constexpr uint16_t kMemoryType = 80;
inline constexpr uint16_t kFanType = 81;
inline constexpr uint16_t kProcessorType = 82;

inline constexpr Field<uint16_t> kCapabilities{"capabilities", 18};
inline constexpr Field<uint16_t> kSetting{"setting", 22};

inline constexpr FieldInfo kFields[] = {kCapabilities, kSetting};
inline constexpr ObjectLayout kMemoryLayout{kMemoryType, "customMemoryProfile", kFields};
inline constexpr ObjectLayout kFanLayout{kFanType, "customFanProfile", kFields};
inline constexpr ObjectLayout kProcessorLayout{kProcessorType, "customProcessorProfile", kFields};
}  // namespace custom_profile

}  // namespace tqcim::layout
