/// The hardware of the management services: storage device, SD cards, remote-access controller.
#pragma once

#include "platform/layout.h"

namespace tqcim::layout {

/// The embedded storage device of the management services.
namespace services_device {
inline constexpr uint16_t kType = 50;

inline constexpr Field<uint8_t> kDeviceType{"deviceType", 16};
inline constexpr Field<uint8_t> kStoragePresent{"storagePresent", 17};
inline constexpr Field<uint32_t> kDeviceSize{"deviceSize", 20};

inline constexpr FieldInfo kFields[] = {kDeviceType, kStoragePresent, kDeviceSize};
inline constexpr ObjectLayout kLayout{kType, "servicesDevice", kFields};
}  // namespace services_device

namespace sd_card {
inline constexpr uint16_t kType = 52;

/// A free size of this value or the one below is not known.
inline constexpr uint32_t kFreeSizeNone = 0xFFFF'FFFF;

inline constexpr Field<uint8_t> kCardType{"cardType", 16};
/// 0 not certified, 1 certified, 254 unknown; 255 and the rest say nothing.
inline constexpr Field<uint8_t> kCertified{"certified", 17, 0xFF};
inline constexpr Field<uint16_t> kPresent{"present", 18};
inline constexpr Field<uint32_t> kSizeMb{"sizeMB", 20};
inline constexpr Field<uint32_t> kFreeSizeMb{"freeSizeMB", 24, kFreeSizeNone};
inline constexpr Field<uint32_t> kState{"state", 28};
inline constexpr Ucs2Field kName{"name", 40};

inline constexpr FieldInfo kFields[] = {kCardType,   kCertified, kPresent, kSizeMb,
                                        kFreeSizeMb, kState,     kName};
inline constexpr ObjectLayout kLayout{kType, "sdCard", kFields};
}  // namespace sd_card

/// The network port of the remote-access controller.
namespace remote_access_port {
inline constexpr uint16_t kType = 320;

inline constexpr Field<uint8_t> kAccessType{"accessType", 19};
inline constexpr Field<uint8_t> kBladeFormFactor{"bladeFormFactor", 24};
inline constexpr Ucs2Field kName{"name", 52};
inline constexpr Ucs2Field kFirmwareVersion{"firmwareVersion", 60};
inline constexpr Ucs2Field kIpv4Address{"ipv4Address", 68};
inline constexpr Ucs2Field kIpv6Address{"ipv6Address", 72};

inline constexpr FieldInfo kFields[] = {kAccessType,      kBladeFormFactor, kName,
                                        kFirmwareVersion, kIpv4Address,     kIpv6Address};
inline constexpr ObjectLayout kLayout{kType, "remoteAccessPort", kFields};
}  // namespace remote_access_port

/// Where the remote-access controller is reached; the first one counts.
namespace remote_access_address {
inline constexpr uint16_t kType = 322;

inline constexpr Ucs2Field kAccessInfo{"accessInfo", 44};

inline constexpr FieldInfo kFields[] = {kAccessInfo};
inline constexpr ObjectLayout kLayout{kType, "remoteAccessAddress", kFields};
}  // namespace remote_access_address

}  // namespace tqcim::layout
