/// The record of the system's power consumption.
#pragma once

#include "platform/layout.h"

namespace tqcim::layout::power_consumption {

inline constexpr uint16_t kType = 40;

/// Times are seconds since 1970-01-01 UTC; three of them stand at odd multiples of 4.
inline constexpr Field<uint32_t> kCumulativeReading{"cumulativeReading", 16};
inline constexpr Field<int64_t> kCumulativeStart{"cumulativeStart", 20};
inline constexpr Field<uint32_t> kPeakWatts{"peakWatts", 28};
inline constexpr Field<int64_t> kPeakWattsStart{"peakWattsStart", 32};
inline constexpr Field<int64_t> kPeakWattsTime{"peakWattsTime", 40};
inline constexpr Field<uint32_t> kPeakAmps{"peakAmps", 48};
inline constexpr Field<int64_t> kPeakAmpsStart{"peakAmpsStart", 52};
inline constexpr Field<int64_t> kPeakAmpsTime{"peakAmpsTime", 60};
inline constexpr Field<uint32_t> kMinConsumption{"minConsumption", 68};
inline constexpr Field<uint32_t> kMaxConsumption{"maxConsumption", 72};
inline constexpr Field<uint32_t> kPowerCap{"powerCap", 76};
inline constexpr Field<uint16_t> kPowerCapCapabilities{"powerCapCapabilities", 80};
inline constexpr Field<uint16_t> kPowerCapSetting{"powerCapSetting", 82};
inline constexpr Field<uint32_t> kInstantHeadroom{"instantHeadroom", 84};
inline constexpr Field<uint32_t> kPeakHeadroom{"peakHeadroom", 88};
/// One text, read in two ways: through the object library, and in place.
inline constexpr Ucs2Field kName{"name", 96};
inline constexpr Utf8Field kNameThroughLibrary{"name", 96};

inline constexpr FieldInfo kFields[] = {
    kCumulativeReading, kCumulativeStart, kPeakWatts,     kPeakWattsStart,
    kPeakWattsTime,     kPeakAmps,        kPeakAmpsStart, kPeakAmpsTime,
    kMinConsumption,    kMaxConsumption,  kPowerCap,      kPowerCapCapabilities,
    kPowerCapSetting,   kInstantHeadroom, kPeakHeadroom,  kName};
inline constexpr ObjectLayout kLayout{kType, "powerConsumption", kFields};

}  // namespace tqcim::layout::power_consumption
