/// The chassis and what is read of its description, identity, intrusion detector and redundancy.
#pragma once

#include "platform/layout.h"

namespace tqcim::layout {

/// A chassis, a child of the system object. Only its header is read.
namespace chassis {
inline constexpr uint16_t kType = 17;
inline constexpr ObjectLayout kLayout{kType, "chassis", {}};
}  // namespace chassis

/// The description of a chassis, its first child of this type.
namespace chassis_description {
inline constexpr uint16_t kType = 32;

/// DSP0134 7.4.1; 2 = unknown.
inline constexpr Field<uint32_t> kChassisType{"chassisType", 16, 2};
inline constexpr Field<uint32_t> kSystemClass{"systemClass", 20};
inline constexpr Field<uint16_t> kLockPresent{"lockPresent", 24};
inline constexpr Field<uint8_t> kSystemRevision{"systemRevision", 26};
inline constexpr Field<uint8_t> kSystemProperties{"systemProperties", 27};
/// The system identifier; kExtendedSystemIdMarker sends the reader to kExtendedSystemId.
inline constexpr Field<uint8_t> kSystemId{"systemId", 28};
inline constexpr uint8_t kExtendedSystemIdMarker = 254;
inline constexpr Field<uint16_t> kExtendedSystemId{"extendedSystemId", 30};
inline constexpr Ucs2Field kName{"name", 32};
inline constexpr Ucs2Field kModel{"model", 40};
inline constexpr Ucs2Field kRevisionName{"revisionName", 48, AbsentText::kZeroOffset};

inline constexpr FieldInfo kFields[] = {
    kChassisType, kSystemClass,      kLockPresent, kSystemRevision, kSystemProperties,
    kSystemId,    kExtendedSystemId, kName,        kModel,          kRevisionName};
inline constexpr ObjectLayout kLayout{kType, "chassisDescription", kFields};
}  // namespace chassis_description

/// The identity of a chassis, its first child of this type.
namespace chassis_identity {
inline constexpr uint16_t kType = 33;

inline constexpr Field<uint8_t> kVisibleAlarm{"visibleAlarm", 17};
inline constexpr Ucs2Field kSerialNumber{"serialNumber", 32};
inline constexpr Ucs2Field kAssetTag{"assetTag", 36};
inline constexpr Ucs2Field kExpressServiceCode{"expressServiceCode", 44};
inline constexpr Ucs2Field kNodeId{"nodeId", 48, AbsentText::kZeroOffset};

inline constexpr FieldInfo kFields[] = {kVisibleAlarm, kSerialNumber, kAssetTag,
                                        kExpressServiceCode, kNodeId};
inline constexpr ObjectLayout kLayout{kType, "chassisIdentity", kFields};
}  // namespace chassis_identity

/// The intrusion detector of a chassis.
namespace intrusion {
inline constexpr uint16_t kType = 28;

/// 1 breached, 2 no breach, 3 breach attempted; anything else is unknown.
inline constexpr Field<uint8_t> kState{"state", 17};

inline constexpr FieldInfo kFields[] = {kState};
inline constexpr ObjectLayout kLayout{kType, "intrusion", kFields};
}  // namespace intrusion

/// The redundancy of a chassis's memory.
namespace memory_redundancy {
inline constexpr uint16_t kType = 232;

/// 0 not active, 1 active; anything else is unknown.
inline constexpr Field<uint8_t> kState{"state", 18, 0xFF};

inline constexpr FieldInfo kFields[] = {kState};
inline constexpr ObjectLayout kLayout{kType, "memoryRedundancy", kFields};
}  // namespace memory_redundancy

}  // namespace tqcim::layout
