#include "tools/console.h"

#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <cstdlib>
#include <system_error>

#include "store/text.h"
#include "tools/failure.h"

namespace tqcim::tools {
namespace {

std::u16string_view AsUtf16(const wchar_t* text) {
  static_assert(sizeof(wchar_t) == sizeof(char16_t));
  return reinterpret_cast<const char16_t*>(text);
}

/// A console takes wide text, whatever code page is set.
DWORD WriteConsoleText(HANDLE console, std::string_view text) {
  constexpr size_t kAtOnce = 8192;
  const std::u16string wide = store::Utf16FromUtf8(text).value_or(u"");
  for (size_t position = 0; position < wide.size();) {
    const auto count = static_cast<DWORD>(std::min(kAtOnce, wide.size() - position));
    DWORD written = 0;
    if (!WriteConsoleW(console, wide.data() + position, count, &written, nullptr)) {
      return GetLastError();
    }
    position += written;
  }
  return ERROR_SUCCESS;
}

DWORD WriteBytes(HANDLE file, std::string_view text) {
  constexpr size_t kAtOnce = 1 << 20;
  while (!text.empty()) {
    DWORD written = 0;
    const auto count = static_cast<DWORD>(std::min(kAtOnce, text.size()));
    if (!WriteFile(file, text.data(), count, &written, nullptr)) return GetLastError();
    text.remove_prefix(written);
  }
  return ERROR_SUCCESS;
}

DWORD WriteAll(DWORD stream, std::string_view text) {
  const HANDLE handle = GetStdHandle(stream);
  DWORD mode = 0;
  return GetConsoleMode(handle, &mode) ? WriteConsoleText(handle, text) : WriteBytes(handle, text);
}

}  // namespace

std::vector<std::string> Arguments(int, char**) {
  int count = 0;
  wchar_t** values = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; i < count; ++i) arguments.push_back(store::Utf8FromUtf16(AsUtf16(values[i])));
  LocalFree(values);
  return arguments;
}

void UseOwnLibraries() {
  // The module takes this word for a search path that has its libraries' folder already. The
  // program's own folder is searched before any path.
  _putenv_s("SKLIBPATH_ADDED_TO_PATH", "TRUE");
}

std::optional<int> OutputTerminalWidth() {
  CONSOLE_SCREEN_BUFFER_INFO info{};
  if (!GetConsoleScreenBufferInfo(GetStdHandle(STD_OUTPUT_HANDLE), &info)) return std::nullopt;
  // A line that fills the last column makes the console start another one.
  return std::max(1, info.srWindow.Right - info.srWindow.Left);
}

bool OutputTakesColour() {
  const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  return GetConsoleMode(output, &mode) &&
         SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

void WriteOutput(std::string_view text) {
  if (const DWORD error = WriteAll(STD_OUTPUT_HANDLE, text)) {
    throw Failure(ExitStatus::kOutputFailed,
                  "standard output: can't be written: " +
                      std::system_category().message(static_cast<int>(error)));
  }
}

void WriteError(std::string_view text) {
  WriteAll(STD_ERROR_HANDLE, text);
}

}  // namespace tqcim::tools
