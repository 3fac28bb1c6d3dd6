#include "store/configuration.h"

#include "store/files.h"
#include "store/json_document.h"
#include "store/process.h"

namespace tqcim::store {

Configuration LoadConfiguration(const std::filesystem::path& folder) {
  Configuration configuration{.source = std::nullopt, .iniFolder = folder / "ini"};
  const std::filesystem::path path = folder / "tqcim.json";
  std::error_code error;
  // A link whose file is gone was meant to configure something.
  if (std::filesystem::symlink_status(path, error).type() ==
      std::filesystem::file_type::not_found) {
    return configuration;
  }
  const JsonDocument document(ReadFile(path), TextOf(path));
  document.RequireMembers(document.Root(), "the configuration", {"source", "iniFolder"});
  using Kind = JsonValue::Kind;
  if (const JsonValue* source = document.Optional(document.Root(), "source", Kind::kText)) {
    configuration.source = source->text;
  }
  if (const JsonValue* ini = document.Optional(document.Root(), "iniFolder", Kind::kText)) {
    configuration.iniFolder = folder / PathOf(ini->text);
  }
  return configuration;
}

SourceChoice ConfiguredSource() {
  if (const auto source = EnvironmentText("TQCIM_SOURCE")) return {.text = *source, .folder = {}};
  const std::filesystem::path folder = LibraryFolder();
  return {.text = LoadConfiguration(folder).source.value_or("sample"), .folder = folder};
}

}  // namespace tqcim::store
