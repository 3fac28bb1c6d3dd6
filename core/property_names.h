/// The property names and class-name values that several handlers share.
#pragma once

#include "platform/wmi.h"

namespace tqcim::property {

inline constexpr const OLECHAR* kCreationClassName = OLESTR("CreationClassName");
inline constexpr const OLECHAR* kSystemCreationClassName = OLESTR("SystemCreationClassName");
inline constexpr const OLECHAR* kSystemName = OLESTR("SystemName");
inline constexpr const OLECHAR* kDeviceId = OLESTR("DeviceID");
inline constexpr const OLECHAR* kCaption = OLESTR("Caption");
inline constexpr const OLECHAR* kStatus = OLESTR("Status");
inline constexpr const OLECHAR* kName = OLESTR("Name");
inline constexpr const OLECHAR* kLowerThresholdCritical = OLESTR("LowerThresholdCritical");
inline constexpr const OLECHAR* kLowerThresholdFatal = OLESTR("LowerThresholdFatal");
inline constexpr const OLECHAR* kLowerThresholdNonCritical = OLESTR("LowerThresholdNonCritical");
inline constexpr const OLECHAR* kCurrentReading = OLESTR("CurrentReading");
inline constexpr const OLECHAR* kUpperThresholdCritical = OLESTR("UpperThresholdCritical");
inline constexpr const OLECHAR* kUpperThresholdFatal = OLESTR("UpperThresholdFatal");
inline constexpr const OLECHAR* kUpperThresholdNonCritical = OLESTR("UpperThresholdNonCritical");

/// The value of `SystemCreationClassName`.
inline constexpr const OLECHAR* kComputerSystem = OLESTR("CIM_ComputerSystem");

}  // namespace tqcim::property
