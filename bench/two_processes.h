/// What two processes reach that share nothing; one implementation per platform.
#pragma once

#include <functional>

namespace tqcim::bench {

/// Runs the first work here and the second in a copy of the process, and waits for both. Throws
/// std::runtime_error where a process can't be copied.
void RunInTwoProcesses(const std::function<void()>& first, const std::function<void()>& second);

}  // namespace tqcim::bench
