/// Baseboards and field-replaceable units (FRU).
#pragma once

#include "platform/layout.h"

namespace tqcim::layout {

namespace baseboard {
inline constexpr uint16_t kType = 259;

/// DSP0134 7.3.2; 1 = unknown.
inline constexpr Field<uint32_t> kBoardType{"boardType", 16, 1};
/// Bit 0 hosting board, 1 requires daughter board, 2 removable, 3 replaceable, 4 hot swappable.
inline constexpr Field<uint8_t> kFlags{"flags", 20};
inline constexpr Ucs2Field kManufacturer{"manufacturer", 28, AbsentText::kZeroOffset};
inline constexpr Ucs2Field kProductName{"productName", 32, AbsentText::kZeroOffset};
inline constexpr Ucs2Field kVersion{"version", 36, AbsentText::kZeroOffset};
inline constexpr Ucs2Field kSerialNumber{"serialNumber", 40, AbsentText::kZeroOffset};
inline constexpr Ucs2Field kExpressServiceCode{"expressServiceCode", 44, AbsentText::kZeroOffset};
inline constexpr Ucs2Field kPartNumber{"partNumber", 48, AbsentText::kZeroOffset};
inline constexpr Ucs2Field kAssetTag{"assetTag", 52, AbsentText::kZeroOffset};
inline constexpr Ucs2Field kLocation{"location", 56, AbsentText::kZeroOffset};
inline constexpr Ucs2Field kBoardTypeText{"boardTypeText", 60, AbsentText::kZeroOffset};

inline constexpr FieldInfo kFields[] = {
    kBoardType,          kFlags,      kManufacturer, kProductName, kVersion,      kSerialNumber,
    kExpressServiceCode, kPartNumber, kAssetTag,     kLocation,    kBoardTypeText};
inline constexpr ObjectLayout kLayout{kType, "baseboard", kFields};
}  // namespace baseboard

/// A unit. Two of its types carry their identity themselves, the other one in a child.
namespace fru {
inline constexpr uint16_t kParentType = 384;
inline constexpr uint16_t kOwnType = 385;
inline constexpr uint16_t kOtherOwnType = 386;

inline constexpr Field<uint8_t> kInformationState{"informationState", 17};
inline constexpr Utf8Field kDeviceName{"deviceName", 32};
/// Seconds since 1970-01-01 UTC; 0 = none.
inline constexpr Field<uint64_t> kManufacturingDate{"manufacturingDate", 24};
inline constexpr Utf8Field kManufacturer{"manufacturer", 36};
inline constexpr Utf8Field kSerialNumber{"serialNumber", 40};
inline constexpr Utf8Field kPartNumber{"partNumber", 48};

inline constexpr FieldInfo kParentFields[] = {kInformationState, kDeviceName};
inline constexpr ObjectLayout kParentLayout{kParentType, "fruWithIdentityChild", kParentFields};
inline constexpr FieldInfo kOwnFields[] = {kInformationState, kManufacturingDate, kDeviceName,
                                           kManufacturer,     kSerialNumber,      kPartNumber};
inline constexpr ObjectLayout kOwnLayout{kOwnType, "fru", kOwnFields};
inline constexpr ObjectLayout kOtherOwnLayout{kOtherOwnType, "otherFru", kOwnFields};
}  // namespace fru

/// The identity of a unit, its first child of this type.
namespace fru_identity {
inline constexpr uint16_t kType = 389;

/// Seconds since 1970-01-01 UTC; 0 = none.
inline constexpr Field<uint64_t> kManufacturingDate{"manufacturingDate", 28};
inline constexpr Utf8Field kManufacturer{"manufacturer", 36};
inline constexpr Utf8Field kSerialNumber{"serialNumber", 44};
inline constexpr Utf8Field kPartNumber{"partNumber", 48};
inline constexpr Utf8Field kRevision{"revision", 52};

inline constexpr FieldInfo kFields[] = {kManufacturingDate, kManufacturer, kSerialNumber,
                                        kPartNumber, kRevision};
inline constexpr ObjectLayout kLayout{kType, "fruIdentity", kFields};
}  // namespace fru_identity

}  // namespace tqcim::layout
