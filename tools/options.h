/// What a command line asks for.
#pragma once

#include <span>
#include <string>
#include <variant>
#include <vector>

namespace tqcim::tools {

enum class Format { kTable, kJson, kCsv };

/// Where the machine's data come from, as the options say.
struct SourceOption {
  enum class Kind { kLibraryChoice, kStoreFile, kFirmwareTable, kFirmware };
  Kind kind = Kind::kLibraryChoice;
  /// The store file or dump file.
  std::string file = {};
};

struct ShowText {
  std::string text;
};
struct ClassesCommand {
  SourceOption source;
  Format format = Format::kTable;
};
struct ListCommand {
  std::string class_name;
  SourceOption source;
  Format format = Format::kTable;
  bool full = false;
};
struct GetCommand {
  std::string path;
  SourceOption source;
  Format format = Format::kTable;
};
struct HealthCommand {
  SourceOption source;
  Format format = Format::kTable;
  /// What is wrong with the command line, for this command to tell; empty for nothing.
  std::string mistake = {};
};
struct ExportCommand {
  SourceOption source;
  /// The file to write; empty for standard output.
  std::string output;
};
struct ConvertCommand {
  /// One of the two firmware tables.
  SourceOption source;
  std::string output;
};
struct CheckCommand {
  std::string file;
};

using Command = std::variant<ShowText, ClassesCommand, ListCommand, GetCommand, HealthCommand,
                             ExportCommand, ConvertCommand, CheckCommand>;

/// Reads the command line; --help and --version become texts to show, a mistake in that of `health`
/// its own to tell. Throws Failure (kUsage).
Command ReadCommandLine(std::span<const std::string> arguments);

}  // namespace tqcim::tools
