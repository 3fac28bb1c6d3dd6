/// Sensors of a chassis. The probes for temperature, fan speed, voltage and current share one
/// layout, whether they give a number or a state.
#pragma once

#include "platform/layout.h"

namespace tqcim::layout {

namespace probe {
inline constexpr uint16_t kTemperatureType = 22;
inline constexpr uint16_t kFanType = 23;
inline constexpr uint16_t kVoltageType = 24;
inline constexpr uint16_t kCurrentType = 25;

/// Tells discrete probes, variable-speed fans and power-consumption probes from the others.
inline constexpr Field<uint32_t> kSubtype{"subtype", 16};
inline constexpr Field<int32_t> kCurrentReading{"currentReading", 20};
/// What a discrete probe holds in place of a reading: 1 good, 2 bad; anything else is unknown.
inline constexpr Field<uint16_t> kDiscreteState{"discreteState", 20};
inline constexpr Field<int32_t> kUpperFatal{"upperFatal", 24};
inline constexpr Field<int32_t> kUpperCritical{"upperCritical", 28};
inline constexpr Field<int32_t> kUpperNonCritical{"upperNonCritical", 32};
inline constexpr Field<int32_t> kLowerNonCritical{"lowerNonCritical", 36};
inline constexpr Field<int32_t> kLowerCritical{"lowerCritical", 40};
inline constexpr Field<int32_t> kLowerFatal{"lowerFatal", 44};
/// Bit 0: the upper non-critical threshold may be set; bit 1: the lower one.
inline constexpr Field<uint16_t> kSettableThresholds{"settableThresholds", 70};
inline constexpr Ucs2Field kName{"name", 72};

inline constexpr FieldInfo kFields[] = {kSubtype,
                                        kDiscreteState,
                                        kCurrentReading,
                                        kUpperFatal,
                                        kUpperCritical,
                                        kUpperNonCritical,
                                        kLowerNonCritical,
                                        kLowerCritical,
                                        kLowerFatal,
                                        kSettableThresholds,
                                        kName};
inline constexpr ObjectLayout kTemperatureLayout{kTemperatureType, "temperatureProbe", kFields};
inline constexpr ObjectLayout kFanLayout{kFanType, "fanProbe", kFields};
inline constexpr ObjectLayout kVoltageLayout{kVoltageType, "voltageProbe", kFields};
inline constexpr ObjectLayout kCurrentLayout{kCurrentType, "currentProbe", kFields};
}  // namespace probe

/// The status sensor of a processor.
namespace processor_sensor {
inline constexpr uint16_t kType = 26;

inline constexpr Field<uint32_t> kSubtype{"subtype", 16};
/// One bit value: 1 internal error, 2 thermal trip, 32 configuration error, 128 present,
/// 256 disabled, 512 terminator present, 1024 throttled.
inline constexpr Field<uint16_t> kDiscreteState{"discreteState", 20};
inline constexpr Ucs2Field kName{"name", 72};

inline constexpr FieldInfo kFields[] = {kSubtype, kDiscreteState, kName};
inline constexpr ObjectLayout kLayout{kType, "processorSensor", kFields};
}  // namespace processor_sensor

/// The status sensor of a battery.
namespace battery_sensor {
inline constexpr uint16_t kType = 27;

inline constexpr Field<uint32_t> kSubtype{"subtype", 16};
/// Bit 0 warning, bit 1 bad, bit 2 good.
inline constexpr Field<uint16_t> kDiscreteState{"discreteState", 20};
inline constexpr Ucs2Field kName{"name", 72};

inline constexpr FieldInfo kFields[] = {kSubtype, kDiscreteState, kName};
inline constexpr ObjectLayout kLayout{kType, "batterySensor", kFields};
}  // namespace battery_sensor

}  // namespace tqcim::layout
