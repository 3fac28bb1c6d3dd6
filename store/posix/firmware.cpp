#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <utility>

#include "store/firmware_table.h"
#include "store/network_adapters.h"
#include "store/store_error.h"

namespace tqcim::store {

std::unique_ptr<Snapshot> LoadFirmware() {
  const std::filesystem::path folder = "/sys/firmware/dmi/tables";
  const std::filesystem::path table = folder / "DMI";
  errno = 0;
  if (access(table.c_str(), R_OK) != 0) {
    throw StoreError(table.string(), errno == EACCES
                                         ? "only root may read this machine's firmware table"
                                         : "this machine shows no firmware table");
  }
  SnapshotBuilder builder;
  AddNetworkAdapters(ReadNetworkAdapters(), builder);
  return LoadFirmwareTable(folder, std::move(builder));
}

}  // namespace tqcim::store
