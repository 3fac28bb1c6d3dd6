/// Sources: where the objects of a store come from, and the texts that name them.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "store/snapshot.h"

namespace tqcim::store {

/// Loads the source that a text names:
///
/// - `sample`: the embedded sample server
/// - `store-file:PATH`: a store file (store_file.h)
/// - `firmware-table:PATH`: an SMBIOS table in files (firmware_table.h)
/// - `firmware`: the SMBIOS table of the running machine, and its network adapters
///
/// Relative paths count from `folder`. Throws StoreError.
std::unique_ptr<Snapshot> LoadSource(std::string_view text, const std::filesystem::path& folder);

}  // namespace tqcim::store
