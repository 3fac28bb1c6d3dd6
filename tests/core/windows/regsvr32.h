/// The platform's own registration program.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "tests/support/temporary_folder.h"
#include "tests/tools/child_process.h"

namespace tqcim::testing {

/// Runs it with the arguments, without any window. Returns its exit status.
inline int RunRegsvr32(std::vector<std::string> arguments) {
  char folder[MAX_PATH] = {};
  GetSystemDirectoryA(folder, MAX_PATH);
  const TemporaryFolder streams;
  arguments.insert(arguments.begin(), "/s");
  return RunChild(std::filesystem::path(folder) / "regsvr32.exe", arguments,
                  streams.Path() / "output", streams.Path() / "error");
}

}  // namespace tqcim::testing
