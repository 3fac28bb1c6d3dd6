#include "store/firmware_table.h"

#include <string>
#include <utility>

#include "store/files.h"
#include "store/smbios_source.h"
#include "store/store_error.h"

namespace tqcim::store {

namespace fs = std::filesystem;

namespace {

constexpr const char* kEntryPointName = "smbios_entry_point";
constexpr const char* kTableName = "DMI";

smbios::Bytes BytesOf(std::string_view contents) {
  return {reinterpret_cast<const uint8_t*>(contents.data()), contents.size()};
}

/// The snapshot of the table at the start of `available`, which begins at `offset` of `file`.
std::unique_ptr<Snapshot> SnapshotOfTable(smbios::Bytes available,
                                          const smbios::EntryPoint& entryPoint,
                                          const std::string& file, size_t offset,
                                          SnapshotBuilder builder) {
  if (available.size() > entryPoint.tableLength) {
    available = available.first(entryPoint.tableLength);
  }
  return smbios::SnapshotOf(available, entryPoint, file, offset, std::move(builder));
}

std::unique_ptr<Snapshot> LoadBareTable(smbios::Bytes table, const fs::path& path,
                                        SnapshotBuilder builder) {
  const fs::path entryPointPath = path.parent_path() / kEntryPointName;
  std::error_code error;
  if (!fs::exists(entryPointPath, error)) {
    throw StoreError(TextOf(path), "neither begins with an SMBIOS entry point nor has one in " +
                                       std::string(kEntryPointName) + " beside it");
  }
  const std::string contents = ReadFile(entryPointPath);
  const std::string entryPointFile = TextOf(entryPointPath);
  if (!smbios::HasEntryPoint(BytesOf(contents))) {
    throw StoreError(smbios::PlaceAt(entryPointFile, 0), "not an SMBIOS entry point");
  }
  return SnapshotOfTable(table, smbios::ReadEntryPoint(BytesOf(contents), entryPointFile),
                         TextOf(path), 0, std::move(builder));
}

}  // namespace

std::unique_ptr<Snapshot> ParseFirmwareDump(std::string_view contents, const std::string& file,
                                            SnapshotBuilder builder) {
  const smbios::Bytes bytes = BytesOf(contents);
  const smbios::EntryPoint entryPoint = smbios::ReadEntryPoint(bytes, file);
  const bool isInside = entryPoint.tableAddress < entryPoint.length;
  if (isInside || entryPoint.tableAddress >= bytes.size()) {
    throw StoreError(smbios::PlaceAt(file, 0),
                     "the entry point gives the table an address, " +
                         std::to_string(entryPoint.tableAddress) +
                         (isInside ? ", inside itself" : ", past the end of the file"));
  }
  const auto offset = static_cast<size_t>(entryPoint.tableAddress);
  return SnapshotOfTable(bytes.subspan(offset), entryPoint, file, offset, std::move(builder));
}

std::unique_ptr<Snapshot> LoadFirmwareTable(const fs::path& path, SnapshotBuilder builder) {
  std::error_code error;
  const fs::path file = fs::is_directory(path, error) ? path / kTableName : path;
  const std::string contents = ReadFile(file);
  return smbios::HasEntryPoint(BytesOf(contents))
             ? ParseFirmwareDump(contents, TextOf(file), std::move(builder))
             : LoadBareTable(BytesOf(contents), file, std::move(builder));
}

}  // namespace tqcim::store
