#include "tests/tools/child_process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>

namespace tqcim::testing {

int RunChild(const std::filesystem::path& program, const std::vector<std::string>& arguments,
             const std::filesystem::path& output, const std::filesystem::path& error) {
  std::vector<std::string> texts = {program.string()};
  texts.insert(texts.end(), arguments.begin(), arguments.end());
  std::vector<char*> values;
  for (std::string& text : texts) values.push_back(text.data());
  values.push_back(nullptr);

  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  constexpr int kFlags = O_WRONLY | O_CREAT | O_TRUNC;
  posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, output.c_str(), kFlags, 0600);
  posix_spawn_file_actions_addopen(&files, STDERR_FILENO, error.c_str(), kFlags, 0600);
  pid_t child = 0;
  const int failure = posix_spawn(&child, program.c_str(), &files, nullptr, values.data(), environ);
  posix_spawn_file_actions_destroy(&files);
  int status = 0;
  if (failure != 0 || waitpid(child, &status, 0) != child) {
    throw std::runtime_error(program.string() + " can't be run");
  }
  return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

}  // namespace tqcim::testing
