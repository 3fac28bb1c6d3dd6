/// What is summed up over the children of a chassis.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/wmi.h"

namespace tqcim {

/// The worst object status of the children of a type; 1 (unknown) without any. Only list positions
/// 0 to 63 count.
uint8_t WorstStatus(uint32_t chassisOid, uint16_t objectType);

/// The worst status of the power supplies, OK at best; 1 (unknown) without any child of that type.
/// Voltage regulators don't count.
uint8_t PowerSupplyStatus(uint32_t chassisOid);

/// The same for the voltage regulators, among which the power supplies count too.
uint8_t RegulatorStatus(uint32_t chassisOid);

/// "Active", "Not active" or "Unknown"; empty where there is nothing to read.
const OLECHAR* MemoryRedundancyText(uint32_t chassisOid);

/// The status of the first redundancy group that has members of a type, if there is one.
std::optional<uint8_t> RedundancyStatus(uint32_t chassisOid, uint16_t memberType);

/// CIM's `SecurityBreach`: 2 unknown, 3 no breach, 4 breach attempted, 5 breached.
int32_t SecurityBreach(uint32_t chassisOid);

/// 2 where an event log has the current format, else 5.
int32_t LogFormat(uint32_t chassisOid);

}  // namespace tqcim
