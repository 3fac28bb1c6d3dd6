/// From the structures of an SMBIOS table to the objects of a store (sections of DSP0134):
///
/// - system (OID 1) and chassis (OID 2): the states of the first System Enclosure (type 3, 7.4)
/// - chassis description and identity: the same, and System Information (type 1, 7.2)
/// - bios: the first BIOS Information (type 0, 7.1)
/// - baseboard: every Baseboard Information (type 2, 7.3)
/// - processor device: every Processor Information (type 4, 7.5), which is a socket
/// - processor: the same, where the socket is populated
/// - parallel port, serial port: every Port Connector Information (type 8, 7.9) of such a port
/// - slot: every System Slots structure (type 9, 7.10), which is one slot
/// - memory device: every Memory Device (type 17, 7.18) that is installed
/// - pointing device: every Built-in Pointing Device (type 21, 7.22)
/// - power supply: every System Power Supply (type 39, 7.40) that is present
///
/// Apart from OIDs 1 and 2, the OID of an object is its type in the upper 16 bits and, from 1, the
/// position of its structure among those of the same kind in the lower: what is fitted or removed
/// changes the OID of nothing else.
#pragma once

#include <memory>
#include <span>
#include <string>

#include "store/smbios_table.h"
#include "store/snapshot.h"
#include "store/snapshot_builder.h"

namespace tqcim::store::smbios {

/// The snapshot of the machine that the table describes. What the table doesn't tell stays at the
/// layout's "none". The objects that the builder already has are part of it, too. Throws StoreError
/// for a damaged table (ReadStructures).
std::unique_ptr<Snapshot> SnapshotOf(Bytes table, const EntryPoint& entryPoint,
                                     const std::string& file, size_t tableOffset,
                                     SnapshotBuilder builder = {});

}  // namespace tqcim::store::smbios
