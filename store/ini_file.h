/// INI files as the support library reads them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace tqcim::store {

/// The value of a key as a 16-bit number, decimal; nothing where the file, the section or the key
/// is missing or the value isn't such a number. Section and key match without regard to case; the
/// first match counts. Lines that begin with ';' or '#' are comments.
std::optional<uint16_t> ReadIniNumber(const std::filesystem::path& file, std::string_view section,
                                      std::string_view key);

}  // namespace tqcim::store
