/// What the libraries ask of the process they live in; one implementation per platform.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace tqcim::store {

/// The folder of the library (or program) that this code is part of.
std::filesystem::path LibraryFolder();

/// Whether a file of that ASCII name stands in the folder. Many times faster than to ask for a path
/// that is put together first.
bool HasFile(const std::filesystem::path& folder, const char* name);

/// An environment variable as UTF-8; nothing where it is unset or empty.
std::optional<std::string> EnvironmentText(const char* name);

}  // namespace tqcim::store
