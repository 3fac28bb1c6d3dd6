/// What ends a command early, and the exit statuses of the program.
#pragma once

#include <stdexcept>
#include <string>

namespace tqcim::tools {

/// The exit statuses of all commands but `health`, as --help and the README list them.
enum class ExitStatus {
  kFine = 0,
  kNotFound = 1,        ///< there is no such class or instance
  kUsage = 2,           ///< the command line (an object path included) is not valid
  kBadInput = 3,        ///< a source can't be read or is not valid
  kProviderFailed = 4,  ///< the provider can't be loaded or answered with an error
  kOutputFailed = 5,    ///< the output can't be written
};

/// `what()` is one sentence for the user.
class Failure : public std::runtime_error {
 public:
  Failure(ExitStatus status, const std::string& sentence)
      : std::runtime_error(sentence), status_(status) {}
  ExitStatus status() const { return status_; }

 private:
  ExitStatus status_;
};

/// What a command has to say.
struct CommandResult {
  /// All of standard output.
  std::string output;
  /// One line for standard error, or empty.
  std::string remark = {};
  /// The exit status.
  int status = static_cast<int>(ExitStatus::kFine);
  /// The exit status where the output can't be written.
  int status_when_unwritten = static_cast<int>(ExitStatus::kOutputFailed);
};

}  // namespace tqcim::tools
