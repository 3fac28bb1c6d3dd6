/// Store files: a whole store as JSON, one named field per layout field.
///
///     {
///       "format": "tqcim-store",
///       "version": 1,
///       "objects": [
///         {"oid": 1, "type": "system", "status": "ok"},
///         {"oid": 2, "type": "chassis", "status": "ok", "parents": [1]},
///         {"oid": 3, "type": "firmware", "status": "ok", "parents": [2],
///          "fields": {"name": "BMC", "version": "2.41"}},
///         {"oid": 4, "type": "eventLog", "status": "ok", "parents": [2],
///          "records": [{"time": 1779158825, "severity": "critical", "text": "AC input lost"}]}
///       ]
///     }
///
/// Object and field names are those of the layout catalogue. `oid` and `type` are required, and so
/// is `parents` for all but the system, which has none. An object is listed under each of its
/// parents, in the order of the file. `status` is one of "other", "unknown", "ok", "nonCritical",
/// "critical", "nonRecoverable" or a number from 0 to 255; left out, it is "unknown". A field that
/// is left out holds its layout's "none"; of fields that share bytes only one may be given.
///
/// An event log alone has `records`, the oldest first; left out, there are none. Of a record `text`
/// is required, `time` is in seconds since 1970-01-01 UTC and 0, for none, where it is left out,
/// and `severity` is told as `status` is.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "store/snapshot.h"

namespace tqcim::store {

/// Throws StoreError "FILE:LINE: reason" for whatever is not a complete store file.
std::unique_ptr<Snapshot> LoadStoreFile(const std::filesystem::path& path);
/// The same for contents at hand; `file` is the name that errors carry.
std::unique_ptr<Snapshot> ParseStoreFile(std::string_view contents, const std::string& file);

/// Writes the file as a whole or not at all. The same snapshot always gives the same bytes, and
/// loading them gives the same snapshot.
void WriteStoreFile(const Snapshot& snapshot, const std::filesystem::path& path);
/// The contents of that file.
std::string FormatStoreFile(const Snapshot& snapshot);

}  // namespace tqcim::store
