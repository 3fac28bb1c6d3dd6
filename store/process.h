/// What the libraries ask of the process they live in; one implementation per platform.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace tqcim::store {

/// The folder of the library (or program) that this code is part of.
std::filesystem::path LibraryFolder();

/// Whether a file of that ASCII name stands in the folder. Many times faster than
/// `std::filesystem::exists(folder / name)`.
bool HasFile(const std::filesystem::path& folder, const char* name);

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
/// An open file of the C library: the streams of C++ bring their locales into every library.
using File = std::unique_ptr<std::FILE, CloseFile>;

/// For bytes, not text. Null and errno set where the file can't be opened.
File OpenToRead(const std::filesystem::path& path);
File OpenToWrite(const std::filesystem::path& path);

/// An environment variable as UTF-8; nothing where it is unset or empty.
std::optional<std::string> EnvironmentText(const char* name);

}  // namespace tqcim::store
