/// Firmware tables (SMBIOS, DMTF DSP0134) as sources.
#pragma once

#include <filesystem>
#include <memory>

#include "store/snapshot.h"

namespace tqcim::store {

/// The table at `path`, which is one of
/// - a dump file: an entry point, and the table where the entry point's address says, counted from
///   the start of the file,
/// - a bare table with the file of its entry point, `smbios_entry_point`, beside it,
/// - a folder with those two, the table being called `DMI`.
///
/// Throws StoreError "FILE: byte OFFSET: reason".
std::unique_ptr<Snapshot> LoadFirmwareTable(const std::filesystem::path& path);

/// The table of the running machine.
std::unique_ptr<Snapshot> LoadFirmware();

}  // namespace tqcim::store
