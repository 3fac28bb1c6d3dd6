/// Network adapters.
#pragma once

#include "platform/layout.h"

namespace tqcim::layout::network_adapter {

inline constexpr uint16_t kType = 96;

inline constexpr Field<uint8_t> kPciBus{"pciBus", 16};
inline constexpr Field<uint8_t> kPciDevice{"pciDevice", 17};
inline constexpr Field<uint8_t> kPciFunction{"pciFunction", 18};
inline constexpr Field<uint32_t> kAdapterStatus{"adapterStatus", 24};
inline constexpr Field<uint32_t> kCapabilities{"capabilities", 140};
inline constexpr Field<uint32_t> kToeCapability{"toeCapability", 144};
inline constexpr Field<uint32_t> kIscsiCapability{"iscsiCapability", 148};
inline constexpr Field<uint32_t> kRdmaCapability{"rdmaCapability", 152};
inline constexpr Field<uint16_t> kToeEnabled{"toeEnabled", 156};
inline constexpr Field<uint16_t> kIscsiEnabled{"iscsiEnabled", 158};
inline constexpr Field<uint16_t> kRdmaEnabled{"rdmaEnabled", 160};
/// 0 = there is no partition end-point information.
inline constexpr Field<uint16_t> kPartitionPresent{"partitionPresent", 162};
inline constexpr Field<int16_t> kPartitionEnabled{"partitionEnabled", 164};
inline constexpr Utf8Field kOsDescription{"osDescription", 172};
inline constexpr Utf8Field kOsVendor{"osVendor", 176};
inline constexpr Utf8Field kOsProductName{"osProductName", 180};
inline constexpr Utf8Field kDriverVersion{"driverVersion", 192};
inline constexpr Utf8Field kServiceName{"serviceName", 200};
inline constexpr Utf8Field kCurrentMacAddress{"currentMacAddress", 208};
inline constexpr Utf8Field kPermanentMacAddress{"permanentMacAddress", 212};
inline constexpr Utf8Field kIpAddress{"ipAddress", 216};
inline constexpr Utf8Field kSubnetMask{"subnetMask", 220};
inline constexpr Utf8Field kDhcpServer{"dhcpServer", 224};
inline constexpr Utf8Field kDefaultGateway{"defaultGateway", 228};

inline constexpr FieldInfo kFields[] = {
    kPciBus,        kPciDevice,        kPciFunction,      kAdapterStatus,     kCapabilities,
    kToeCapability, kIscsiCapability,  kRdmaCapability,   kToeEnabled,        kIscsiEnabled,
    kRdmaEnabled,   kPartitionPresent, kPartitionEnabled, kOsDescription,     kOsVendor,
    kOsProductName, kDriverVersion,    kServiceName,      kCurrentMacAddress, kPermanentMacAddress,
    kIpAddress,     kSubnetMask,       kDhcpServer,       kDefaultGateway};
inline constexpr ObjectLayout kLayout{kType, "networkAdapter", kFields};

}  // namespace tqcim::layout::network_adapter
