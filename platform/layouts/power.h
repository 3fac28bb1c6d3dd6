/// Power supplies and redundancy groups.
#pragma once

#include "platform/layout.h"

namespace tqcim::layout {

/// A power supply or a voltage regulator.
namespace power_supply {
inline constexpr uint16_t kType = 21;

inline constexpr Field<uint16_t> kTotalOutputPower{"totalOutputPower", 16};
inline constexpr Field<uint32_t> kInputRatedPower{"inputRatedPower", 20};
/// One bit value: 1 present, 2 failure, 4 predictive failure, 8 AC lost, 16 AC lost or out of
/// range, 32 AC out of range but present, 64 configuration error.
inline constexpr Field<uint16_t> kState{"state", 38};
inline constexpr Field<uint8_t> kKind{"kind", 40};
inline constexpr uint8_t kSwitchingKind = 9;
inline constexpr uint8_t kRegulatorKind = 11;
/// Valid when the state is 64.
inline constexpr Field<uint8_t> kConfigurationError{"configurationError", 41};
inline constexpr Field<uint16_t> kPowerManagementCapable{"powerManagementCapable", 42};
inline constexpr Ucs2Field kName{"name", 44};

inline constexpr FieldInfo kFields[] = {kTotalOutputPower,   kInputRatedPower,        kState, kKind,
                                        kConfigurationError, kPowerManagementCapable, kName};
inline constexpr ObjectLayout kLayout{kType, "powerSupply", kFields};
}  // namespace power_supply

/// A redundancy group; its members are its children.
namespace redundancy_group {
inline constexpr uint16_t kType = 2;

inline constexpr Field<uint8_t> kState{"state", 16};
inline constexpr Field<uint16_t> kMinNumberNeeded{"minNumberNeeded", 18};
inline constexpr Ucs2Field kName{"name", 20};

inline constexpr FieldInfo kFields[] = {kState, kMinNumberNeeded, kName};
inline constexpr ObjectLayout kLayout{kType, "redundancyGroup", kFields};
}  // namespace redundancy_group

}  // namespace tqcim::layout
