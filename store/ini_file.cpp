#include "store/ini_file.h"

#include <charconv>

// The packaged header holds the library's own code behind this name.
#define SI_IMPLEMENTATION
#define SI_NO_CONVERSION
#include <SimpleIni.h>

#include "store/files.h"

namespace tqcim::store {
namespace {

std::optional<uint16_t> NumberOf(std::string_view text) {
  uint16_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

}  // namespace

std::optional<uint16_t> ReadIniNumber(const std::filesystem::path& file, const char* section,
                                      const char* key) {
  return ParseIniNumber(ReadFile(file), section, key);
}

std::optional<uint16_t> ParseIniNumber(std::string_view contents, const char* section,
                                       const char* key) {
  constexpr bool kUtf8 = true;
  // Without this a later value of a key would take the place of the first.
  constexpr bool kSeveralValues = true;
  CSimpleIniA ini(kUtf8, kSeveralValues);
  ini.LoadData(contents.data(), contents.size());
  CSimpleIniA::TNamesDepend values;
  ini.GetAllValues(section, key, values);
  if (values.empty()) return std::nullopt;
  values.sort(CSimpleIniA::Entry::LoadOrder());
  return NumberOf(values.front().pItem);
}

}  // namespace tqcim::store
