/// The header that every data object begins with: bytes 0 to 15.
#pragma once

#include "platform/layout.h"

namespace tqcim::layout::header {

inline constexpr uint32_t kSize = 16;

inline constexpr Field<uint32_t> kOid{"oid", 4};
inline constexpr Field<uint16_t> kType{"type", 8};
/// 0 other, 1 unknown, 2 ok, 3 non-critical, 4 critical, 5 non-recoverable: larger is worse.
inline constexpr Field<uint8_t> kStatus{"status", 10, 1};

}  // namespace tqcim::layout::header
