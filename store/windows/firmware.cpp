#include <windows.h>

#include <string>
#include <utility>
#include <vector>

#include "store/firmware_table.h"
#include "store/network_adapters.h"
#include "store/smbios_source.h"
#include "store/store_error.h"

namespace tqcim::store {
namespace {

constexpr DWORD kRawSmbios = 'R' << 24 | 'S' << 16 | 'M' << 8 | 'B';
/// What stands before the table: calling method, major and minor version, revision (a byte each)
/// and the table's length (four bytes).
constexpr size_t kPreambleSize = 8;

}  // namespace

std::unique_ptr<Snapshot> LoadFirmware() {
  const std::string place = "the firmware table of this machine";
  std::vector<uint8_t> data(GetSystemFirmwareTable(kRawSmbios, 0, nullptr, 0));
  data.resize(GetSystemFirmwareTable(kRawSmbios, 0, data.data(), static_cast<DWORD>(data.size())));
  if (data.size() < kPreambleSize) throw StoreError(place, "the system does not show it");
  const uint32_t length = data[4] | data[5] << 8 | data[6] << 16 | uint32_t{data[7]} << 24;
  smbios::Bytes table = smbios::Bytes(data).subspan(kPreambleSize);
  if (length < table.size()) table = table.first(length);
  smbios::EntryPoint entryPoint;
  entryPoint.tableLength = length;
  SnapshotBuilder builder;
  AddNetworkAdapters(ReadNetworkAdapters(), builder);
  return smbios::SnapshotOf(table, entryPoint, place, kPreambleSize, std::move(builder));
}

}  // namespace tqcim::store
