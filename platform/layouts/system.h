/// The objects with fixed identifiers.
#pragma once

#include "platform/layout.h"

namespace tqcim::layout::system {

/// The root object: the managed system. Only its header is read.
inline constexpr uint32_t kRootOid = 1;
/// The main chassis, under which most single-kind objects are listed.
inline constexpr uint32_t kMainChassisOid = 2;

inline constexpr uint16_t kType = 1;
inline constexpr ObjectLayout kLayout{kType, "system", {}};

}  // namespace tqcim::layout::system
