#include "tools/source.h"

#include <array>
#include <string_view>

#include "store/configuration.h"
#include "store/store_control.h"
#include "tools/store_failure.h"
#include "tools/text.h"

namespace tqcim::tools {
namespace {

constexpr std::string_view kStoreFile = "store-file:";
constexpr std::string_view kFirmwareTable = "firmware-table:";
constexpr std::string_view kFirmware = "firmware";
constexpr std::string_view kSample = "sample";

std::string ChosenByLibrary() {
  return FailingWith(ExitStatus::kBadInput, [] { return store::ConfiguredSource().text; });
}

/// The source as the library names it.
std::string SourceText(const SourceOption& option) {
  switch (option.kind) {
    case SourceOption::Kind::kStoreFile:
      return std::string(kStoreFile) + option.file;
    case SourceOption::Kind::kFirmwareTable:
      return std::string(kFirmwareTable) + option.file;
    case SourceOption::Kind::kFirmware:
      return std::string(kFirmware);
    default:
      return ChosenByLibrary();
  }
}

std::string Description(std::string_view source) {
  if (source.starts_with(kStoreFile)) {
    return "the store file " + Printable(source.substr(kStoreFile.size()));
  }
  if (source.starts_with(kFirmwareTable)) {
    return "the firmware table " + Printable(source.substr(kFirmwareTable.size()));
  }
  return source == kSample ? "the embedded sample, an invented server"
                           : "the firmware table of this machine";
}

}  // namespace

Source OpenSource(const SourceOption& option) {
  const std::string source = SourceText(option);
  // The library knows the folder from which the paths of its own choice count.
  const bool chosen_by_library = option.kind == SourceOption::Kind::kLibraryChoice;
  std::array<char, 4096> message{};
  if (TQStoreOpen(chosen_by_library ? nullptr : source.c_str(), message.data(), message.size()) !=
      0) {
    const std::string reason = message.data();
    throw Failure(ExitStatus::kBadInput,
                  chosen_by_library ? reason + " (chosen by TQCIM_SOURCE or tqcim.json)" : reason);
  }
  return {.description = Description(source), .sample = source == kSample};
}

std::string SampleRemark(const Source& source) {
  if (!source.sample) return {};
  return "this is " + source.description +
         "; --store, --firmware-table and --firmware choose another source";
}

}  // namespace tqcim::tools
