#include "tools/options.h"

#include <CLI/CLI.hpp>
#include <array>
#include <functional>
#include <map>
#include <optional>
#include <vector>

#include "host/module.h"
#include "tools/failure.h"
#include "tools/provider.h"

namespace tqcim::tools {
namespace {

constexpr const char* kProgramFooter =
    R"(Without a source option the environment variable TQCIM_SOURCE decides, else
the file tqcim.json beside the program, else the embedded sample answers: an
invented server, and every output says so.

Exit status (tqcim health has its own):
  0  fine
  1  there is no such class or instance
  2  the command line or an object path on it is not valid
  3  a store file, firmware table or other source can't be read or is damaged
  4  the provider can't be loaded or answered with an error
  5  the output can't be written

Examples:
  tqcim health
  tqcim classes
  tqcim list CIM_PhysicalMemory --firmware
  tqcim get 'CIM_Processor.DeviceID="0"'
  tqcim list --help)";

constexpr const char* kClassesFooter =
    R"(The worst status is that of the instances, in the order Other, Unknown, OK,
Stressed, Error, NonRecover; a class whose instances have none shows "-". A
class that the provider failed to give is left out (told on standard error, exit
status 4).

Examples:
  tqcim classes
  tqcim classes --store server.json
  tqcim classes --format json)";

constexpr const char* kListFooter =
    R"(A table shows the columns that fit the terminal, keys and Status first, and
names those that don't. A single instance is shown in full. In a table "-"
stands for a value that the instance doesn't have: null in JSON, an empty field
in CSV.

Examples:
  tqcim list VORN_Chassis
  tqcim list CIM_PhysicalMemory --firmware-table dmidecode.bin
  tqcim list CIM_Processor --store server.json --format csv)";

constexpr const char* kGetFooter =
    R"(A path is CLASS.KEY="VALUE",KEY="VALUE",... and may have \\SERVER\NAMESPACE:
in front. Quote it for the shell. Some classes can only be listed, as their
pages in the documentation say.

Examples:
  tqcim get 'CIM_Processor.DeviceID="0"'
  tqcim get 'VORN_Chassis.Tag="mainsystemchassis"' --format json)";

constexpr const char* kHealthFooter =
    R"(What is wrong, the worst first, with readings, thresholds and the newest log
records that name it; then the newest log records of other faults. Every class
with a status counts but the logs, each part once. A redundancy group that isn't
fully redundant is degraded; the states Unknown and Other are no faults.
Readings are numbers as the system reports them; a threshold of 0 is none.

Exit status, as monitoring systems take it from their check plugins:
  0  OK
  1  WARNING: something is degraded (Stressed)
  2  CRITICAL: something has failed (Error, NonRecover)
  3  UNKNOWN: it could not be told, whatever the reason; the reason is in the
     first line of the output, with --format json on standard error

JSON is one object: "verdict", "status" (of the system), "source", "checked",
"ok", "untold", "logRecords" (numbers), "findings" (each with "class", "path",
"name", "verdict", "property", "status", "reading", "unit", "thresholds",
"error", "records") and "records" (each with "class", "path", "time", "status",
"text"). What there isn't is null.

Examples:
  tqcim health
  tqcim health --store server.json
  tqcim health --firmware --format json)";

constexpr const char* kExportFooter =
    R"(One JSON object: under each class's name the array that tqcim list --format json
shows, empty for a class without instances, null for one that the provider
failed to give (told on standard error, exit status 4). With -o the file is
written as a whole or not at all.

Examples:
  tqcim export --firmware -o inventory.json
  tqcim export --store server.json
  tqcim export --store server.json | jq '.CIM_PhysicalMemory[].SerialNumber')";

constexpr const char* kStoreFooter = R"(A store file is a whole machine as JSON: what --store reads.

Examples:
  tqcim store convert --firmware-table dmidecode.bin -o server.json
  tqcim store check server.json)";

constexpr const char* kConvertFooter = R"(The file is written as a whole or not at all.

Examples:
  tqcim store convert --firmware-table dmidecode.bin -o server.json
  tqcim store convert --firmware -o server.json)";

constexpr const char* kCheckFooter = R"(Examples:
  tqcim store check server.json)";

/// A file whose name is empty is a variable of the shell that was never set.
CLI::Validator NamesAFile() {
  return {[](std::string& name) { return name.empty() ? "names no file" : ""; }, ""};
}

/// An option that names a source's file.
CLI::Option* AddSourceFile(CLI::App& command, SourceOption& source, SourceOption::Kind kind,
                           const char* name, const char* type, const char* description) {
  const auto take = [&source, kind](const std::string& file) { source = {kind, file}; };
  return command.add_option_function<std::string>(name, take, description)
      ->type_name(type)
      ->option_text(type)
      ->check(NamesAFile());
}

/// The options of the two sources that are firmware tables.
std::array<CLI::Option*, 2> AddTableOptions(CLI::App& command, SourceOption& source) {
  CLI::Option* dump =
      AddSourceFile(command, source, SourceOption::Kind::kFirmwareTable, "--firmware-table", "DUMP",
                    "the firmware table in a dump file");
  CLI::Option* firmware = command.add_flag_callback(
      "--firmware", [&source] { source.kind = SourceOption::Kind::kFirmware; },
      "this machine's firmware table");
  firmware->option_text(" ")->disable_flag_override();
  dump->excludes(firmware);
  return {dump, firmware};
}

/// The three source options, of which one may be given.
void AddSourceOptions(CLI::App& command, SourceOption& source) {
  CLI::Option* store = AddSourceFile(command, source, SourceOption::Kind::kStoreFile, "--store",
                                     "FILE", "the machine in a store file (JSON)");
  for (CLI::Option* table : AddTableOptions(command, source)) store->excludes(table);
}

void AddFormatOption(CLI::App& command, Format& format, bool with_csv = true) {
  std::map<std::string, Format> formats = {{"table", Format::kTable}, {"json", Format::kJson}};
  if (with_csv) formats["csv"] = Format::kCsv;
  const char* description = with_csv ? "table (default), json or csv" : "table (default) or json";
  const char* names = with_csv ? ", only table, json and csv" : ", only table and json";
  const auto take = [&format, formats](const std::string& name) { format = formats.at(name); };
  command.add_option_function<std::string>("--format", take, description)
      ->type_name("FORMAT")
      ->option_text("FORMAT")
      ->check(CLI::Validator(
          [formats, names](std::string& name) {
            return formats.contains(name) ? "" : "there is no format " + name + names;
          },
          ""));
}

CLI::Option* AddOutputOption(CLI::App& command, std::string& output, const char* description) {
  return command.add_option("-o,--output", output, description)
      ->type_name("FILE")
      ->option_text("FILE")
      ->check(NamesAFile());
}

void AddRegisteredOption(CLI::App& app) {
  const auto take = [] {
    if (!host::kHasComRegistry) {
      throw CLI::ValidationError("--registered", "COM registration exists on Windows only");
    }
    UseRegisteredProvider();
  };
  app.add_flag_callback("--registered", take, "the provider registered with COM (on Windows)")
      ->option_text(" ")
      ->disable_flag_override();
}

/// Whether the arguments have "--format json", however far they could be read.
bool AskForJson(std::span<const std::string> arguments) {
  for (size_t i = 0; i < arguments.size(); ++i) {
    if (arguments[i] == "--format=json") return true;
    if (arguments[i] == "--format" && i + 1 < arguments.size() && arguments[i + 1] == "json") {
      return true;
    }
  }
  return false;
}

/// A command whose options are made when it is the one that is given.
void Add(CLI::App& parent, const char* name, const char* description, const char* footer,
         const std::function<void(CLI::App&)>& add_options) {
  CLI::App* command = parent.add_subcommand(name, description);
  command->footer(footer);
  command->preparse_callback([command, add_options](size_t) { add_options(*command); });
}

/// The commands as CLI11 knows them, and where it puts what it reads.
class CommandLine {
 public:
  CommandLine() {
    app_.footer(kProgramFooter);
    app_.allow_windows_style_options(false);
    app_.set_version_flag("--version", "tqcim " TQCIM_VERSION);
    app_.get_help_ptr()->description("print this help");
    app_.get_version_ptr()->description("print the version");
    app_.get_formatter()->column_width(26);
    app_.require_subcommand(1);
    AddRegisteredOption(app_);
    AddShowCommands();
    Add(app_, "store", "Make and check store files", kStoreFooter,
        [this](CLI::App& command) { AddStoreCommands(command); });
  }

  Command Read(std::span<const std::string> arguments) {
    try {
      // CLI11 takes them from the back.
      app_.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
      if (const auto* convert = std::get_if<ConvertCommand>(&*chosen_);
          convert && convert->source.kind == SourceOption::Kind::kLibraryChoice) {
        throw CLI::RequiredError("--firmware-table or --firmware");
      }
      return *chosen_;
    } catch (const CLI::CallForHelp&) {
      return ShowText{app_.help()};
    } catch (const CLI::CallForVersion& version) {
      return ShowText{std::string(version.what()) + "\n"};
    } catch (const CLI::ParseError& error) {
      if (app_.got_subcommand("health")) {
        health_.mistake = Sentence(error);
        if (AskForJson(arguments)) health_.format = Format::kJson;
        return health_;
      }
      throw Failure(ExitStatus::kUsage, Sentence(error));
    }
  }

 private:
  template <typename T>
  void Choose(CLI::App& command, const T& values) {
    command.callback([this, &values] { chosen_ = values; });
  }

  void AddShowCommands() {
    Add(app_, "classes", "Every class: how many instances, and the worst status", kClassesFooter,
        [this](CLI::App& command) {
          AddSourceOptions(command, classes_.source);
          AddFormatOption(command, classes_.format);
          Choose(command, classes_);
        });
    Add(app_, "list", "All instances of a class", kListFooter, [this](CLI::App& command) {
      command.add_option("CLASS", list_.class_name, "the class, in any case")
          ->option_text(" ")
          ->required();
      AddSourceOptions(command, list_.source);
      AddFormatOption(command, list_.format);
      command
          .add_flag("--full", list_.full, "no table: one property on a line, null ones left out")
          ->disable_flag_override();
      Choose(command, list_);
    });
    Add(app_, "get", "The instance that an object path names", kGetFooter,
        [this](CLI::App& command) {
          command.add_option("PATH", get_.path, "the object path")->option_text(" ")->required();
          AddSourceOptions(command, get_.source);
          AddFormatOption(command, get_.format);
          Choose(command, get_);
        });
    Add(app_, "health", "What is wrong with the system", kHealthFooter, [this](CLI::App& command) {
      AddSourceOptions(command, health_.source);
      AddFormatOption(command, health_.format, false);
      Choose(command, health_);
    });
    Add(app_, "export", "All instances of all classes", kExportFooter, [this](CLI::App& command) {
      AddSourceOptions(command, export_.source);
      AddOutputOption(command, export_.output, "the file to write, not standard output");
      Choose(command, export_);
    });
  }

  void AddStoreCommands(CLI::App& store) {
    store.require_subcommand(1);
    Add(store, "convert", "Write a firmware table as a store file", kConvertFooter,
        [this](CLI::App& command) {
          AddTableOptions(command, convert_.source);
          AddOutputOption(command, convert_.output, "the store file to write")->required();
          Choose(command, convert_);
        });
    Add(store, "check", "Check a store file", kCheckFooter, [this](CLI::App& command) {
      command.add_option("FILE", check_.file, "the store file")->option_text(" ")->required();
      Choose(command, check_);
    });
  }

  /// The failure, and the command whose help has the answer.
  std::string Sentence(const CLI::ParseError& error) const {
    std::string command = "tqcim";
    for (const CLI::App* app = &app_; !app->get_subcommands().empty();) {
      app = app->get_subcommands().back();
      command += " " + app->get_name();
    }
    const std::vector<std::string> unexpected = app_.remaining(true);
    const std::string reason = unexpected.empty()
                                   ? error.what()
                                   : unexpected.front() + " is not expected after " + command;
    return reason + " (see " + command + " --help)";
  }

  CLI::App app_{"The hardware of a server as instances of CIM classes.", "tqcim"};
  ClassesCommand classes_;
  ListCommand list_;
  GetCommand get_;
  HealthCommand health_;
  ExportCommand export_;
  ConvertCommand convert_;
  CheckCommand check_;
  std::optional<Command> chosen_;
};

}  // namespace

Command ReadCommandLine(std::span<const std::string> arguments) {
  return CommandLine().Read(arguments);
}

}  // namespace tqcim::tools
