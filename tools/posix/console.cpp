#include "tools/console.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <system_error>

#include "tools/failure.h"

namespace tqcim::tools {
namespace {

/// 0, or the error number: a reader that went away is told like any other failure, not by the
/// signal.
int WriteAll(int descriptor, std::string_view text) {
  std::signal(SIGPIPE, SIG_IGN);
  while (!text.empty()) {
    const ssize_t written = write(descriptor, text.data(), text.size());
    if (written >= 0) {
      text.remove_prefix(static_cast<size_t>(written));
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

}  // namespace

std::vector<std::string> Arguments(int count, char** values) {
  return count > 0 ? std::vector<std::string>(values + 1, values + count)
                   : std::vector<std::string>();
}

void UseOwnLibraries() {
  // The module finds them by its run path.
}

std::optional<int> OutputTerminalWidth() {
  winsize size{};
  if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return std::nullopt;
  return size.ws_col;
}

bool OutputTakesColour() {
  const char* terminal = std::getenv("TERM");
  return isatty(STDOUT_FILENO) == 1 && terminal != nullptr && std::string_view(terminal) != "dumb";
}

void WriteOutput(std::string_view text) {
  int error = WriteAll(STDOUT_FILENO, text);
  // Some file systems report a full disk no earlier than here.
  if (close(STDOUT_FILENO) != 0 && error == 0 && !text.empty()) error = errno;
  if (error != 0) {
    throw Failure(ExitStatus::kOutputFailed,
                  "standard output: can't be written: " + std::generic_category().message(error));
  }
}

void WriteError(std::string_view text) {
  WriteAll(STDERR_FILENO, text);
}

}  // namespace tqcim::tools
