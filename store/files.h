/// Files as the store reads and writes them. All functions throw StoreError with the file's name.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace tqcim::store {

/// No store file or firmware table comes near this size; a file that does is not one.
inline constexpr size_t kLargestFile = size_t{64} << 20;

/// The path as UTF-8.
std::string TextOf(const std::filesystem::path& path);
std::filesystem::path PathOf(std::string_view utf8);

/// The whole file, which must be a regular one and no larger than kLargestFile.
std::string ReadFile(const std::filesystem::path& path);

/// Writes the file as a whole or not at all: what stood there before stays until the new contents
/// are complete. A link's file is written, with its permissions; what isn't a regular file (a
/// device, a pipe) is written to as it stands.
void WriteFile(const std::filesystem::path& path, std::string_view contents);

}  // namespace tqcim::store
