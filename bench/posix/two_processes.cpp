#include "bench/two_processes.h"

#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>

namespace tqcim::bench {

void RunInTwoProcesses(const std::function<void()>& first, const std::function<void()>& second) {
  const pid_t copy = fork();
  if (copy < 0) throw std::runtime_error("the process cannot be copied");
  if (copy == 0) {
    second();
    _exit(0);
  }
  first();
  int status = 0;
  if (waitpid(copy, &status, 0) != copy || status != 0) {
    throw std::runtime_error("the copy of the process failed");
  }
}

}  // namespace tqcim::bench
