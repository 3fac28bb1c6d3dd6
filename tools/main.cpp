/// tqcim, the command-line program: the instances of the provider's classes, asked for as the
/// management service asks.
#include <charconv>
#include <exception>
#include <string>

#include "store/process.h"
#include "tools/commands.h"
#include "tools/console.h"
#include "tools/text.h"

namespace tqcim::tools {
namespace {

/// COLUMNS, as the user's own word, goes before what the terminal says.
size_t OutputWidth() {
  constexpr size_t kDefaultWidth = 80;
  constexpr size_t kLargestWidth = 10000;
  const std::string columns = store::EnvironmentText("COLUMNS").value_or("");
  size_t width = 0;
  const auto parsed = std::from_chars(columns.data(), columns.data() + columns.size(), width);
  if (parsed.ptr == columns.data() + columns.size() && width > 0 && width <= kLargestWidth) {
    return width;
  }
  return static_cast<size_t>(OutputTerminalWidth().value_or(kDefaultWidth));
}

/// Whoever sets NO_COLOR to anything wants none.
Layout OutputLayout() {
  return {.width = OutputWidth(),
          .colour = !store::EnvironmentText("NO_COLOR") && OutputTakesColour()};
}

CommandResult Run(const ShowText& text, const Layout&) {
  return {.output = text.text};
}
CommandResult Run(const ExportCommand& command, const Layout&) {
  return Run(command);
}
CommandResult Run(const ConvertCommand& command, const Layout&) {
  return Run(command);
}
CommandResult Run(const CheckCommand& command, const Layout&) {
  return Run(command);
}

void Tell(const std::string& sentence) {
  WriteError("tqcim: " + Printable(sentence) + "\n");
}

int RunProgram(const std::vector<std::string>& arguments) {
  const CommandResult result = std::visit(
      [](const auto& command) { return Run(command, OutputLayout()); }, ReadCommandLine(arguments));
  if (!result.remark.empty()) Tell(result.remark);
  try {
    WriteOutput(result.output);
  } catch (const Failure& failure) {
    Tell(failure.what());
    return result.status_when_unwritten;
  }
  return result.status;
}

}  // namespace
}  // namespace tqcim::tools

int main(int count, char** values) {
  using namespace tqcim::tools;
  ExitStatus status = ExitStatus::kProviderFailed;
  try {
    return RunProgram(Arguments(count, values));
  } catch (const Failure& failure) {
    Tell(failure.what());
    status = failure.status();
  } catch (const std::exception& error) {
    Tell(error.what());
  }
  return static_cast<int>(status);
}
