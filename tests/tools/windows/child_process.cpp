#include "tests/tools/child_process.h"

#include <windows.h>

#include <stdexcept>

#include "store/text.h"

namespace tqcim::testing {
namespace {

std::wstring Wide(const std::string& utf8) {
  const std::u16string wide = store::Utf16FromUtf8(utf8).value();
  return std::wstring(wide.begin(), wide.end());
}

/// The argument so that CommandLineToArgvW takes it for one.
std::wstring Quoted(const std::wstring& argument) {
  std::wstring quoted = L"\"";
  size_t backslashes = 0;
  for (const wchar_t character : argument) {
    // Backslashes count double before a quote, and only there.
    if (character == L'"') quoted.append(backslashes + 1, L'\\');
    backslashes = character == L'\\' ? backslashes + 1 : 0;
    quoted += character;
  }
  quoted.append(backslashes, L'\\');
  return quoted + L'"';
}

HANDLE OpenInheritable(const std::filesystem::path& path) {
  SECURITY_ATTRIBUTES inheritable{sizeof(inheritable), nullptr, TRUE};
  return CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inheritable, CREATE_ALWAYS,
                     FILE_ATTRIBUTE_NORMAL, nullptr);
}

}  // namespace

int RunChild(const std::filesystem::path& program, const std::vector<std::string>& arguments,
             const std::filesystem::path& output, const std::filesystem::path& error) {
  std::wstring command_line = Quoted(program.wstring());
  for (const std::string& argument : arguments) command_line += L' ' + Quoted(Wide(argument));
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = OpenInheritable(output);
  startup.hStdError = OpenInheritable(error);
  PROCESS_INFORMATION process{};
  const BOOL started = CreateProcessW(program.c_str(), command_line.data(), nullptr, nullptr, TRUE,
                                      0, nullptr, nullptr, &startup, &process);
  CloseHandle(startup.hStdOutput);
  CloseHandle(startup.hStdError);
  if (!started) throw std::runtime_error(program.string() + " can't be run");
  DWORD status = 0;
  WaitForSingleObject(process.hProcess, INFINITE);
  GetExitCodeProcess(process.hProcess, &status);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return static_cast<int>(status);
}

}  // namespace tqcim::testing
