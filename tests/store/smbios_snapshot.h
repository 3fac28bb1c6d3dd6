/// Snapshots of tables put together from literal bytes.
#pragma once

#include <initializer_list>
#include <memory>

#include "store/smbios_source.h"
#include "tests/store/smbios_bytes.h"

namespace tqcim::testing {

/// The snapshot of a table of these structures, which a 64-bit entry point tells of.
inline std::unique_ptr<store::Snapshot> SnapshotOfStructures(
    std::initializer_list<ByteVector> structures) {
  const ByteVector table = Joined({Joined(structures), kEndOfTable});
  store::smbios::EntryPoint entryPoint;
  entryPoint.tableLength = static_cast<uint32_t>(table.size());
  return store::smbios::SnapshotOf(table, entryPoint, "f", 0x20);
}

}  // namespace tqcim::testing
