/// Times whole processes against each other: "commands OUTPUT-FILE COMMAND... -- COMMAND...".
#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/timing.h"
#include "tests/tools/child_process.h"

namespace tqcim::bench {
namespace {

using Command = std::vector<std::string>;

std::vector<Command> CommandsOf(char** begin, char** end) {
  std::vector<Command> commands(1);
  for (char** argument = begin; argument != end; ++argument) {
    if (std::string(*argument) == "--") {
      commands.emplace_back();
    } else {
      commands.back().emplace_back(*argument);
    }
  }
  return commands;
}

void Run(const Command& command, const std::filesystem::path& output) {
  const Command arguments(command.begin() + 1, command.end());
  const int status =
      testing::RunChild(command.front(), arguments, output, output.string() + ".error");
  if (status != 0)
    throw std::runtime_error(command.front() + " ended with " + std::to_string(status));
}

void PrintTimes(const std::vector<Command>& commands, const std::filesystem::path& output) {
  std::vector<Work> works;
  for (const Command& command : commands) {
    works.push_back({std::to_string(works.size()), [&] { Run(command, output); }});
  }
  const std::vector<double> times = BestTimes(works);
  std::printf("| command | ms | against the last |\n|---|--:|--:|\n");
  for (size_t i = 0; i < times.size(); ++i) {
    std::printf("| `%s` | %.2f | %.2f |\n",
                std::filesystem::path(commands[i].front()).filename().string().c_str(),
                times[i] * 1000, times[i] / times.back());
  }
}

}  // namespace
}  // namespace tqcim::bench

int main(int count, char** arguments) {
  if (count < 3) {
    std::fprintf(stderr, "usage: commands OUTPUT-FILE COMMAND... -- COMMAND...\n");
    return 2;
  }
  try {
    tqcim::bench::PrintTimes(tqcim::bench::CommandsOf(arguments + 2, arguments + count),
                             arguments[1]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "commands: %s\n", error.what());
    return 1;
  }
  return 0;
}
