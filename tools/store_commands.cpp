#include <memory>
#include <string>

#include "store/files.h"
#include "store/firmware_table.h"
#include "store/store_file.h"
#include "tools/commands.h"
#include "tools/store_failure.h"
#include "tools/text.h"

namespace tqcim::tools {
namespace {

std::string Summary(const std::string& file, const store::Snapshot& snapshot) {
  const size_t count = snapshot.Objects().size();
  return Printable(file) + ": " + std::to_string(count) + (count == 1 ? " object" : " objects") +
         "\n";
}

}  // namespace

CommandResult Run(const ConvertCommand& command) {
  const std::unique_ptr<store::Snapshot> snapshot = FailingWith(ExitStatus::kBadInput, [&] {
    return command.source.kind == SourceOption::Kind::kFirmware
               ? store::LoadFirmware()
               : store::LoadFirmwareTable(store::PathOf(command.source.file));
  });
  FailingWith(ExitStatus::kOutputFailed,
              [&] { store::WriteStoreFile(*snapshot, store::PathOf(command.output)); });
  return {.output = Summary(command.output, *snapshot)};
}

CommandResult Run(const CheckCommand& command) {
  const std::unique_ptr<store::Snapshot> snapshot = FailingWith(
      ExitStatus::kBadInput, [&] { return store::LoadStoreFile(store::PathOf(command.file)); });
  return {.output = Summary(command.file, *snapshot)};
}

}  // namespace tqcim::tools
