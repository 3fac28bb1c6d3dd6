/// From each structure of an SMBIOS table to its objects: one source for each subject. Chassis and
/// BIOS come first, the others in the order of the table (smbios_source.cpp). `position` counts
/// from 1 among the structures of one type. Every field is gated on its structure's own length, and
/// what isn't told, or is told in words that the store has no code for, stays at the layout's
/// "none".
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/layouts/system.h"
#include "store/smbios_table.h"
#include "store/snapshot_builder.h"

namespace tqcim::store::smbios {

inline constexpr uint32_t kMainChassisOid = layout::system::kMainChassisOid;

/// The OID of what the structure at `position` tells of an object of type `type`.
constexpr uint32_t OidOf(uint16_t type, uint32_t position) {
  return uint32_t{type} << 16 | position;
}

/// Sets a field to what a structure tells, if it tells.
template <typename Field, typename Value>
void SetKnown(ObjectDraft& draft, const Field& field, const std::optional<Value>& value) {
  if (value) draft.Set(field, *value);
}

template <typename T>
std::optional<T> Unless(std::optional<T> value, T unknown) {
  return value == unknown ? std::nullopt : value;
}

/// System and chassis, with description and identity: DSP0134 7.4, System Enclosure (type 3), and
/// 7.2, System Information (type 1), either of which may be missing. `place` is where errors about
/// these objects point.
void AddChassis(const Structure* enclosure, const Structure* system, SnapshotBuilder& builder,
                const std::string& place);

/// DSP0134 7.1, BIOS Information (type 0).
void AddBios(const Structure& structure, SnapshotBuilder& builder);

/// DSP0134 7.3, Baseboard Information (type 2).
void AddBaseboard(const Structure& structure, uint32_t position, SnapshotBuilder& builder);

/// DSP0134 7.5, Processor Information (type 4).
void AddProcessor(const Structure& structure, uint32_t position, SnapshotBuilder& builder);

/// DSP0134 7.9, Port Connector Information (type 8).
void AddPort(const Structure& structure, uint32_t position, SnapshotBuilder& builder);

/// DSP0134 7.10, System Slots (type 9).
void AddSlot(const Structure& structure, uint32_t position, SnapshotBuilder& builder);

/// DSP0134 7.18, Memory Device (type 17). A size of 0 is an empty socket.
void AddMemoryDevice(const Structure& structure, uint32_t position, SnapshotBuilder& builder);

/// DSP0134 7.22, Built-in Pointing Device (type 21).
void AddPointingDevice(const Structure& structure, uint32_t position, SnapshotBuilder& builder);

/// DSP0134 7.40, System Power Supply (type 39).
void AddPowerSupply(const Structure& structure, uint32_t position, SnapshotBuilder& builder);

}  // namespace tqcim::store::smbios
