#include "store/sources.h"

#include <string>

#include "embedded/samples.h"
#include "store/files.h"
#include "store/firmware_table.h"
#include "store/store_error.h"
#include "store/store_file.h"
#include "store/text.h"

namespace tqcim::store {

std::unique_ptr<Snapshot> LoadSource(std::string_view text, const std::filesystem::path& folder) {
  constexpr std::string_view kStoreFile = "store-file:";
  constexpr std::string_view kFirmwareTable = "firmware-table:";
  if (text == "sample") {
    const embedded::samples::File& sample = embedded::samples::kFiles[0];
    return ParseStoreFile(sample.contents, std::string(sample.name));
  }
  if (text == "firmware") return LoadFirmware();
  if (text.size() > kStoreFile.size() && text.starts_with(kStoreFile)) {
    return LoadStoreFile(folder / PathOf(text.substr(kStoreFile.size())));
  }
  if (text.size() > kFirmwareTable.size() && text.starts_with(kFirmwareTable)) {
    return LoadFirmwareTable(folder / PathOf(text.substr(kFirmwareTable.size())));
  }
  throw StoreError("there is no source " + Quoted(text) +
                   "; there are sample, store-file:PATH, firmware-table:PATH and firmware");
}

}  // namespace tqcim::store
