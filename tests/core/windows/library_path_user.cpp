// A process that asks a provider module for its system: `library_path_user MODULE`. It tells how
// many instances came, where the object library was found, and the search path.
#include <windows.h>

#include <cstdio>

#include "host/management_host.h"

namespace {

std::string LibraryFile() {
  char name[MAX_PATH] = {};
  GetModuleFileNameA(GetModuleHandleA("tqsgen64.dll"), name, MAX_PATH);
  return name;
}

}  // namespace

int main(int, char** values) {
  using namespace tqcim::host;
  const auto host = ManagementHost::Open({.module = values[1], .schema = {}});
  int count = 0;
  host->Enumerate("VORN_System", [&](const Instance&) { ++count; });
  char path[1024] = {};
  GetEnvironmentVariableA("PATH", path, sizeof path);
  std::printf("%d\n%s\n%s\n", count, LibraryFile().c_str(), path);
}
