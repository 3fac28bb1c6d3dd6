/// Processors and memory devices.
#pragma once

#include "platform/layout.h"

namespace tqcim::layout {

/// A processor socket. A fitted one has a processor as its child.
namespace processor_device {
inline constexpr uint16_t kType = 196;

inline constexpr Ucs2Field kName{"name", 28};

inline constexpr FieldInfo kFields[] = {kName};
inline constexpr ObjectLayout kLayout{kType, "processorDevice", kFields};
}  // namespace processor_device

/// The processor in a socket.
namespace processor {
inline constexpr uint16_t kType = 210;

/// DSP0134 7.5.2; 2 = unknown.
inline constexpr Field<uint32_t> kFamily{"family", 20, 2};
inline constexpr Field<uint32_t> kMaxSpeed{"maxSpeedMHz", 24};
inline constexpr Field<uint32_t> kCurrentSpeed{"currentSpeedMHz", 28};
/// The store's coding: 1 other, 2 unknown, 3 enabled, 4 disabled by the user, 5 disabled by the
/// firmware, 6 idle.
inline constexpr Field<uint32_t> kCpuStatus{"cpuStatus", 40, 2};
/// DSP0134 7.5.5; 2 = unknown.
inline constexpr Field<uint32_t> kUpgradeMethod{"upgradeMethod", 44, 2};
inline constexpr Field<uint32_t> kCoreCount{"coreCount", 56};
inline constexpr Field<uint32_t> kEnabledCoreCount{"enabledCoreCount", 60};
inline constexpr Field<uint16_t> kExtendedCharacteristics{"extendedCharacteristics", 70};
inline constexpr Ucs2Field kBrand{"brand", 72, AbsentText::kZeroOffset};
inline constexpr Ucs2Field kModel{"model", 76};
inline constexpr Ucs2Field kStepping{"stepping", 80, AbsentText::kZeroOffset};
inline constexpr Field<uint16_t> kExtendedStates{"extendedStates", 84};

inline constexpr FieldInfo kFields[] = {
    kFamily,        kMaxSpeed,  kCurrentSpeed,     kCpuStatus,
    kUpgradeMethod, kCoreCount, kEnabledCoreCount, kExtendedCharacteristics,
    kBrand,         kModel,     kStepping,         kExtendedStates};
inline constexpr ObjectLayout kLayout{kType, "processor", kFields};
}  // namespace processor

namespace memory_device {
inline constexpr uint16_t kType = 225;

inline constexpr Field<uint32_t> kTotalWidth{"totalWidthBits", 16};
inline constexpr Field<uint32_t> kDataWidth{"dataWidthBits", 20};
/// Used when the extended size is 0.
inline constexpr Field<uint32_t> kSizeKb{"sizeKB", 24};
/// DSP0134 7.18.1; 2 = unknown.
inline constexpr Field<uint32_t> kFormFactor{"formFactor", 28, 2};
/// DSP0134 7.18.2; 2 = unknown.
inline constexpr Field<uint32_t> kMemoryType{"memoryType", 36, 2};
inline constexpr Field<uint32_t> kSpeed{"speed", 44};
inline constexpr Ucs2Field kName{"name", 68};
inline constexpr Ucs2Field kBankLabel{"bankLabel", 72};
inline constexpr Ucs2Field kManufacturer{"manufacturer", 80};
inline constexpr Ucs2Field kSerialNumber{"serialNumber", 84};
inline constexpr Ucs2Field kSpeedText{"speedText", 96};
inline constexpr Field<uint32_t> kRank{"rank", 108};
inline constexpr Field<uint32_t> kExtendedSizeMb{"extendedSizeMB", 112};

inline constexpr FieldInfo kFields[] = {
    kTotalWidth, kDataWidth,    kSizeKb,       kFormFactor, kMemoryType, kSpeed,         kName,
    kBankLabel,  kManufacturer, kSerialNumber, kSpeedText,  kRank,       kExtendedSizeMb};
inline constexpr ObjectLayout kLayout{kType, "memoryDevice", kFields};
}  // namespace memory_device

}  // namespace tqcim::layout
