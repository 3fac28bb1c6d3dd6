/// Runs programs as a shell would. All text is UTF-8.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tqcim::testing {

/// Runs a program and waits for it; it inherits the environment. What it writes goes to the two
/// files. Returns its exit status, and 128 and the signal's number for one that a signal ended;
/// throws std::runtime_error where it can't be started.
int RunChild(const std::filesystem::path& program, const std::vector<std::string>& arguments,
             const std::filesystem::path& output, const std::filesystem::path& error);

}  // namespace tqcim::testing
