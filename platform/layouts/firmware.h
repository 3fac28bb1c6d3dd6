/// BIOS, other firmware, the management agent and the BIOS setup settings.
#pragma once

#include "platform/layout.h"

namespace tqcim::layout {

namespace bios {
inline constexpr uint16_t kType = 212;

inline constexpr Field<uint8_t> kExtension1{"characteristicsExtension1", 30};
inline constexpr Field<uint8_t> kExtension2{"characteristicsExtension2", 31};
inline constexpr Ucs2Field kManufacturer{"manufacturer", 32};
inline constexpr Ucs2Field kVersion{"version", 36};
/// Month, day and year as decimal numbers separated by slashes.
inline constexpr Utf8Field kReleaseDate{"releaseDate", 40};
inline constexpr Field<uint64_t> kCharacteristics{"characteristics", 48};

inline constexpr FieldInfo kFields[] = {kExtension1, kExtension2,  kManufacturer,
                                        kVersion,    kReleaseDate, kCharacteristics};
inline constexpr ObjectLayout kLayout{kType, "bios", kFields};
}  // namespace bios

namespace firmware {
inline constexpr uint16_t kType = 19;

inline constexpr Field<uint8_t> kFirmwareType{"firmwareType", 20};
inline constexpr Ucs2Field kVersion{"version", 32};
inline constexpr Ucs2Field kName{"name", 36};

inline constexpr FieldInfo kFields[] = {kFirmwareType, kVersion, kName};
inline constexpr ObjectLayout kLayout{kType, "firmware", kFields};
}  // namespace firmware

namespace management_agent {
inline constexpr uint16_t kType = 257;

inline constexpr Field<uint32_t> kIdentifyingNumber{"identifyingNumber", 16};
inline constexpr Ucs2Field kProductName{"productName", 32};
inline constexpr Ucs2Field kAgentVersion{"agentVersion", 36};
inline constexpr Ucs2Field kVendor{"vendor", 40};
inline constexpr Ucs2Field kDescription{"description", 44};
inline constexpr Ucs2Field kUrl{"url", 52};
inline constexpr Ucs2Field kLanguage{"language", 56};
inline constexpr Ucs2Field kVersion{"version", 60};

inline constexpr FieldInfo kFields[] = {kIdentifyingNumber, kProductName, kAgentVersion, kVendor,
                                        kDescription,       kUrl,         kLanguage,     kVersion};
inline constexpr ObjectLayout kLayout{kType, "managementAgent", kFields};
}  // namespace management_agent

namespace bios_settings {
inline constexpr uint16_t kType = 45057;

/// Trusted Platform Module state: 0, 1 or 2.
inline constexpr Field<uint32_t> kTpmState{"tpmState", 16};

inline constexpr FieldInfo kFields[] = {kTpmState};
inline constexpr ObjectLayout kLayout{kType, "biosSettings", kFields};
}  // namespace bios_settings

}  // namespace tqcim::layout
