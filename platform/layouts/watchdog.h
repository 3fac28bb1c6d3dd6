/// The hardware watchdog timer.
#pragma once

#include "platform/layout.h"

namespace tqcim::layout::watchdog {

inline constexpr uint16_t kType = 30;

/// What happens on expiry: 0, 1, 2 or 4.
inline constexpr Field<uint32_t> kExpiryAction{"expiryAction", 20};
inline constexpr Field<uint32_t> kTimeoutSeconds{"timeoutSeconds", 28};

inline constexpr FieldInfo kFields[] = {kExpiryAction, kTimeoutSeconds};
inline constexpr ObjectLayout kLayout{kType, "watchdog", kFields};

}  // namespace tqcim::layout::watchdog
