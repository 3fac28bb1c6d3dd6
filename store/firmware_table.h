/// Firmware tables (SMBIOS, DMTF DSP0134) as sources.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "store/snapshot.h"
#include "store/snapshot_builder.h"

namespace tqcim::store {

/// The table at `path`, which is one of
/// - a dump file: an entry point, and the table where the entry point's address says, counted from
///   the start of the file,
/// - a bare table with the file of its entry point, `smbios_entry_point`, beside it,
/// - a folder with those two, the table being called `DMI`.
///
/// The objects that the builder already has are part of the snapshot, too. Throws StoreError
/// "FILE: byte OFFSET: reason".
std::unique_ptr<Snapshot> LoadFirmwareTable(const std::filesystem::path& path,
                                            SnapshotBuilder builder = {});

/// The same for the contents of a dump file at hand; `file` is the name that errors carry.
std::unique_ptr<Snapshot> ParseFirmwareDump(std::string_view contents, const std::string& file,
                                            SnapshotBuilder builder = {});

/// The running machine: its table, and its network adapters, of which the table doesn't tell.
std::unique_ptr<Snapshot> LoadFirmware();

}  // namespace tqcim::store
