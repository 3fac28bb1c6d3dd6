/// INI files as the support library reads them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace tqcim::store {

/// The value of a key as a 16-bit number, decimal; nothing where the section or the key is
/// missing or the value isn't such a number. Section and key match without regard to case; the
/// first match counts. Lines that begin with ';' or '#' are comments. Throws StoreError for a file
/// that can't be read.
std::optional<uint16_t> ReadIniNumber(const std::filesystem::path& file, const char* section,
                                      const char* key);
/// The same for contents at hand.
std::optional<uint16_t> ParseIniNumber(std::string_view contents, const char* section,
                                       const char* key);

}  // namespace tqcim::store
