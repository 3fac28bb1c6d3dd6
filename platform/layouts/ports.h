/// Expansion slots, serial and parallel ports, pointing devices.
#pragma once

#include "platform/layout.h"

namespace tqcim::layout {

namespace slot {
inline constexpr uint16_t kType = 228;

/// DSP0134 7.10.1; 2 = unknown.
inline constexpr Field<uint32_t> kSlotType{"slotType", 16, 2};
inline constexpr Field<uint32_t> kNumber{"number", 28};
inline constexpr Field<int16_t> kHotPlug{"hotPlug", 48};
inline constexpr Utf8Field kName{"name", 80};

inline constexpr FieldInfo kFields[] = {kSlotType, kNumber, kHotPlug, kName};
inline constexpr ObjectLayout kLayout{kType, "slot", kFields};
}  // namespace slot

namespace serial_port {
inline constexpr uint16_t kType = 193;

inline constexpr Field<uint32_t> kMaxBaudRate{"maxBaudRate", 32};
inline constexpr Ucs2Field kName{"name", 40};

inline constexpr FieldInfo kFields[] = {kMaxBaudRate, kName};
inline constexpr ObjectLayout kLayout{kType, "serialPort", kFields};
}  // namespace serial_port

namespace parallel_port {
inline constexpr uint16_t kType = 192;

inline constexpr Field<uint32_t> kSecurity{"security", 40};
inline constexpr Ucs2Field kName{"name", 44};

inline constexpr FieldInfo kFields[] = {kSecurity, kName};
inline constexpr ObjectLayout kLayout{kType, "parallelPort", kFields};
}  // namespace parallel_port

/// Only its presence counts.
namespace pointing_device {
inline constexpr uint16_t kType = 208;
inline constexpr ObjectLayout kLayout{kType, "pointingDevice", {}};
}  // namespace pointing_device

}  // namespace tqcim::layout
