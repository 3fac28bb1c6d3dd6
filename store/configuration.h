/// The one configuration file of the libraries, `tqcim.json` beside them:
///
///     {"source": "firmware", "iniFolder": "ini"}
///
/// Both names may be left out. Relative paths count from the file's own folder.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace tqcim::store {

struct Configuration {
  /// The source that the object library serves, as TQStoreOpen takes it.
  std::optional<std::string> source;
  /// The folder in which the support library finds INI files by their bare names.
  std::filesystem::path iniFolder;
};

/// The configuration in `folder`; without a file there, no source and the folder `ini`. Throws
/// StoreError for a file that is not a configuration.
Configuration LoadConfiguration(const std::filesystem::path& folder);

/// The source that a process is served which asks for none, and the folder from which its relative
/// paths count (empty: the current folder).
struct SourceChoice {
  std::string text;
  std::filesystem::path folder;
};

/// What the environment variable TQCIM_SOURCE names, else what the configuration beside this code
/// names, else "sample". Throws StoreError.
SourceChoice ConfiguredSource();

}  // namespace tqcim::store
