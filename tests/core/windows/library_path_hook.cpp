// The hook of the delayed loading, called as the loader calls it, in surroundings that fail as
// told. The words of the command line are done in their order:
//   fail-new N, fail-getenv N, fail-query N   the Nth allocation, reading of a variable or query of
//                                             a registry value from here fails
//   program long | ansi | none                the program's name: 300 letters, one with a letter
//                                             beyond ASCII, or none that can be told
//   a number                                  calls the hook with this notification, tells its
//                                             result and what the process's environment then holds
#include <windows.h>

#include <delayimp.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <new>
#include <string>

namespace {

/// Something that fails once, when its countdown ends.
class Failure {
 public:
  void Arm(int count) { left_ = count; }
  bool Strikes() { return left_ > 0 && --left_ == 0; }

 private:
  int left_ = 0;
};

Failure newFailure;
Failure getenvFailure;
Failure queryFailure;
std::string programName;

template <typename Function>
Function* Platform(const char* module, const char* name) {
  return reinterpret_cast<Function*>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA(module), name)));
}

/// The function without the overload for buffers of a known size.
using ReadVariable = errno_t __cdecl(size_t*, char*, size_t, const char*);

errno_t __cdecl GetVariable(size_t* size, char* value, size_t room, const char* name) {
  if (getenvFailure.Strikes()) return EINVAL;
  return Platform<ReadVariable>("msvcrt", "getenv_s")(size, value, room, name);
}

LSTATUS WINAPI QueryValue(HKEY key, LPCSTR name, LPDWORD reserved, LPDWORD type, LPBYTE data,
                          LPDWORD size) {
  if (queryFailure.Strikes()) return ERROR_FILE_NOT_FOUND;
  return Platform<decltype(RegQueryValueExA)>("advapi32", "RegQueryValueExA")(key, name, reserved,
                                                                              type, data, size);
}

/// One block, as the platform's function gives it.
LPWSTR* Words(const wchar_t* word) {
  auto* const words = static_cast<LPWSTR*>(
      LocalAlloc(LMEM_FIXED, sizeof(LPWSTR) + (std::wcslen(word) + 1) * sizeof(wchar_t)));
  words[0] = reinterpret_cast<LPWSTR>(words + 1);
  std::wcscpy(words[0], word);
  return words;
}

LPWSTR* WINAPI SplitCommandLine(LPCWSTR line, int* count) {
  if (programName == "none") return nullptr;
  *count = 1;
  if (programName == "long") return Words(std::wstring(300, L'x').c_str());
  if (programName == "ansi") return Words(L"caf\u00E9.exe");
  return Platform<decltype(CommandLineToArgvW)>("shell32", "CommandLineToArgvW")(line, count);
}

std::string Variable(const char* name) {
  char value[1024];
  const DWORD length = GetEnvironmentVariableA(name, value, sizeof value);
  return length == 0 ? "(unset)" : std::string(value, length);
}

void CallHook(unsigned notification) {
  DelayLoadInfo info{};
  info.cb = sizeof info;
  info.szDll = "missing.dll";
  const PfnDliHook hook = notification == dliFailLoadLib || notification == dliFailGetProc
                              ? __pfnDliFailureHook2
                              : __pfnDliNotifyHook2;
  const FARPROC result = hook(notification, &info);
  std::printf("%u: %s\nPATH=%s\nADDED=%s\n", notification, result ? "a result" : "0",
              Variable("PATH").c_str(), Variable("SKLIBPATH_ADDED_TO_PATH").c_str());
}

}  // namespace

/// What stands before the imports of the platform's functions.
extern "C" {
extern ReadVariable* const importedGetenv asm("__imp_getenv_s");
ReadVariable* const importedGetenv = GetVariable;
extern decltype(&RegQueryValueExA) const importedQuery asm("__imp_RegQueryValueExA");
decltype(&RegQueryValueExA) const importedQuery = QueryValue;
extern decltype(&CommandLineToArgvW) const importedSplit asm("__imp_CommandLineToArgvW");
decltype(&CommandLineToArgvW) const importedSplit = SplitCommandLine;
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return newFailure.Strikes() ? nullptr : ::operator new[](size);
}

int main(int count, char** values) {
  LoadLibraryA("advapi32");
  LoadLibraryA("shell32");
  for (int i = 1; i < count; ++i) {
    const std::string word = values[i];
    if (word == "fail-new") {
      newFailure.Arm(std::atoi(values[++i]));
    } else if (word == "fail-getenv") {
      getenvFailure.Arm(std::atoi(values[++i]));
    } else if (word == "fail-query") {
      queryFailure.Arm(std::atoi(values[++i]));
    } else if (word == "program") {
      programName = values[++i];
    } else {
      CallHook(static_cast<unsigned>(std::atoi(values[i])));
    }
  }
}
