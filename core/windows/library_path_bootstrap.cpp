/// Finding the three libraries when the first of their functions is called. They lie in the
/// product's shared directory, which is not on the system's search path: the hook of the delayed
/// loading puts it in front of the process's PATH, once, and ends the process where a library is
/// still missing. Supervisors of existing installations match on the messages and on the exit
/// status.

#include <windows.h>

#include <delayimp.h>
#include <shellapi.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>

namespace tqcim {
namespace {

using Text = std::unique_ptr<char[]>;

constexpr const char* kSharedKey = "SOFTWARE\\Vorn Computer Corporation\\Steadmark\\Shared";
constexpr const char* kLibraryPath = "SKLIBPATH";
constexpr const char* kAddedToPath = "SKLIBPATH_ADDED_TO_PATH";
constexpr const char* kPath = "PATH";
constexpr int kMissingLibrary = 126;

/// Room for a text whose size counts its terminator or, in the registry, may not: another one
/// stands behind it. Null where there is no memory.
Text Allocate(size_t size) {
  return Text(new (std::nothrow) char[size + 1]());
}

template <typename... Arguments>
void Report(const char* format, Arguments... arguments) {
  std::fprintf(stderr, format, arguments...);
  std::fflush(stderr);
}
void Report(const char* message) {
  Report("%s", message);
}

/// The value of an environment variable, and its size with the terminator; null where it is unset.
Text NTDelayLoadGetEnv(const char* name, size_t* size) {
  // Some runtime libraries call an unset variable a failure, and asking for nothing but the size.
  if (std::getenv(name) == nullptr) return nullptr;
  size_t needed = 0;
  int result = getenv_s(&needed, nullptr, 0, name);
  if (result != 0 && !(result == ERANGE && needed != 0)) {
    Report("NTDelayLoadGetEnv: failed to get num chars: retVal: %d varName: %s\n", result, name);
    return nullptr;
  }
  if (needed == 0) return nullptr;
  Text value = Allocate(needed);
  if (!value) {
    Report("NTDelayLoadGetEnv: failed to allocate pVarVal\n");
    return nullptr;
  }
  result = getenv_s(&needed, value.get(), needed, name);
  if (result != 0) {
    Report("NTDelayLoadGetEnv: failed to get value: retVal: %d varName: %s\n", result, name);
    return nullptr;
  }
  if (size) *size = needed;
  return value;
}

/// A registry value as it stands.
struct RegistryValue {
  Text text;
  DWORD size = 0;
  DWORD type = 0;
};

/// An open registry key.
class Key {
 public:
  bool Open(const char* path) {
    return RegOpenKeyExA(HKEY_LOCAL_MACHINE, path, 0, KEY_QUERY_VALUE, &key_) == ERROR_SUCCESS;
  }
  Key() = default;
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  ~Key() {
    if (key_) RegCloseKey(key_);
  }
  HKEY get() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

RegistryValue QueryLibraryPath(HKEY key) {
  RegistryValue value;
  if (RegQueryValueExA(key, kLibraryPath, nullptr, nullptr, nullptr, &value.size) !=
      ERROR_SUCCESS) {
    Report("NTDelayLoadGetSharedPath: failed RegQueryValueEx: %s\n", kLibraryPath);
    return {};
  }
  value.text = Allocate(value.size);
  if (!value.text) {
    Report("NTDelayLoadGetSharedPath: failed to allocate pSKLIBPATH\n");
    return {};
  }
  if (RegQueryValueExA(key, kLibraryPath, nullptr, &value.type,
                       reinterpret_cast<BYTE*>(value.text.get()), &value.size) != ERROR_SUCCESS) {
    Report("NTDelayLoadGetSharedPath: failed RegQueryValueEx: %s\n", kLibraryPath);
    return {};
  }
  return value;
}

/// The shared directory from the registry, and its size with the terminator; null without one.
Text NTDelayLoadGetSharedPath(size_t* size) {
  Key key;
  if (!key.Open(kSharedKey)) {
    Report("NTDelayLoadGetSharedPath: failed RegOpenKeyEx: %s\n", kSharedKey);
    return nullptr;
  }
  RegistryValue value = QueryLibraryPath(key.get());
  if (!value.text) return nullptr;
  const bool expands = value.type == REG_EXPAND_SZ;
  const DWORD sharedSize =
      expands ? ExpandEnvironmentStringsA(value.text.get(), nullptr, 0) : value.size;
  Text shared = Allocate(sharedSize);
  if (!shared) {
    Report("NTDelayLoadGetSharedPath: failed to allocate pSharedPath\n");
    return nullptr;
  }
  if (expands) {
    *size = ExpandEnvironmentStringsA(value.text.get(), shared.get(), sharedSize);
  } else {
    std::memcpy(shared.get(), value.text.get(), value.size);
    *size = value.size;
  }
  return shared;
}

/// Puts a directory in front of PATH and notes it for child processes. False where that can't be
/// done.
bool PutInFrontOfPath(const Text& directory, size_t directorySize) {
  Text oldPath = NTDelayLoadGetEnv(kPath, nullptr);
  if (!oldPath) oldPath = Allocate(1);
  if (!oldPath) {
    Report("NTDelayLoadPutEnvSharedPath: failed to duplicate empty path\n");
    return false;
  }
  const size_t newPathSize = std::strlen(oldPath.get()) + 1 + directorySize + 6;
  const Text newPath = Allocate(newPathSize);
  if (!newPath) {
    Report("NTDelayLoadPutEnvSharedPath: failed to allocate pNewPath\n");
    return false;
  }
  std::snprintf(newPath.get(), newPathSize, "%s=%s;%s", kPath, directory.get(), oldPath.get());
  _putenv(newPath.get());

  constexpr size_t kNoteSize = 29;
  char note[kNoteSize];
  std::snprintf(note, kNoteSize, "%s=%s", kAddedToPath, "TRUE");
  _putenv(note);
  return true;
}

/// The work of NTDelayLoadPutEnvSharedPath, without its memory of having been done.
bool AddSharedDirectory() {
  const Text added = NTDelayLoadGetEnv(kAddedToPath, nullptr);
  if (added && _stricmp(added.get(), "TRUE") == 0) return true;
  size_t directorySize = 0;
  Text directory = NTDelayLoadGetEnv(kLibraryPath, &directorySize);
  if (!directory) directory = NTDelayLoadGetSharedPath(&directorySize);
  if (!directory) {
    Report("NTDelayLoadPutEnvSharedPath: failed NTDelayLoadGetSharedPath\n");
    return false;
  }
  return PutInFrontOfPath(directory, directorySize);
}

/// Puts the shared directory in front of PATH, at most once with success in a process, and not
/// where a parent process did it already. 1 on success; a failed attempt is repeated at the next
/// delayed call.
int NTDelayLoadPutEnvSharedPath() {
  static bool done = false;
  if (done) return 1;
  // Before the work, and without a lock: a thread that comes meanwhile goes on with the PATH that
  // it finds.
  done = true;
  done = AddSharedDirectory();
  return done ? 1 : 0;
}

/// The first word of the command line; empty where there is none.
void GetProgramName(char (&name)[256]) {
  name[0] = '\0';
  int count = 0;
  LPWSTR* const words = CommandLineToArgvW(GetCommandLineW(), &count);
  if (!words) return;
  if (count > 0) {
    WideCharToMultiByte(CP_ACP, 0, words[0], -1, name, sizeof name - 1, nullptr, nullptr);
    name[sizeof name - 1] = '\0';
  }
  LocalFree(words);
}

[[noreturn]] void EndWithoutLibrary(const char* library) {
  Report("NTDelayLoadHook: failed dliFailLoadLib: %s\n", library);
  char program[256] = {};
  GetProgramName(program);
  const Text path = NTDelayLoadGetEnv(kPath, nullptr);
  Report("%s was unable to locate %s in the search path %s\nThe application has terminated.\n",
         static_cast<const char*>(program), library,
         static_cast<const char*>(path ? path.get() : ""));
  ExitProcess(kMissingLibrary);
}

FARPROC WINAPI NTDelayLoadHook(unsigned notification, PDelayLoadInfo info) {
  if (notification == dliNotePreLoadLibrary) NTDelayLoadPutEnvSharedPath();
  if (notification == dliFailLoadLib) EndWithoutLibrary(info->szDll);
  return nullptr;
}

}  // namespace
}  // namespace tqcim

PfnDliHook __pfnDliNotifyHook2 = tqcim::NTDelayLoadHook;
PfnDliHook __pfnDliFailureHook2 = tqcim::NTDelayLoadHook;
