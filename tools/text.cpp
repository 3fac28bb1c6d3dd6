#include "tools/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <variant>

#include "host/text.h"

namespace tqcim::tools {
namespace {

template <typename... Functions>
struct Overloaded : Functions... {
  using Functions::operator()...;
};
template <typename... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

std::string NumberText(auto number) {
  std::array<char, 32> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  return std::string(digits.data(), end);
}

bool IsControl(OLECHAR unit) {
  return unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
}

/// Separators of lines, and what changes the direction of the text (Unicode 15.0, tables 9-2 and
/// 23-2): a terminal may show what follows elsewhere.
bool MovesText(OLECHAR unit) {
  return unit == 0x061C || unit == 0x200E || unit == 0x200F || (unit >= 0x2028 && unit <= 0x202E) ||
         (unit >= 0x2066 && unit <= 0x2069);
}

}  // namespace

std::string PlainText(const host::Scalar& scalar) {
  return std::visit(Overloaded{[](bool value) { return std::string(value ? "true" : "false"); },
                               [](const std::string& text) { return text; },
                               [](auto number) { return NumberText(number); }},
                    scalar);
}

std::string PlainText(const host::Value& value) {
  const auto plain = [](const host::Scalar& scalar) { return PlainText(scalar); };
  return host::IsNull(value) ? std::string() : Joined(value, plain);
}

std::string Printable(std::string_view text) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  host::WideText printable;
  const auto escape = [&](char kind, OLECHAR unit, int digits) {
    printable += {OLECHAR{'\\'}, static_cast<OLECHAR>(kind)};
    while (digits-- > 0) printable += static_cast<OLECHAR>(kHex[unit >> 4 * digits & 0xF]);
  };
  for (const OLECHAR unit : host::ToWide(text)) {
    if (IsControl(unit)) {
      escape('x', unit, 2);
    } else if (MovesText(unit)) {
      escape('u', unit, 4);
    } else {
      printable += unit;
    }
  }
  return host::ToUtf8(printable);
}

size_t ColumnCount(std::string_view text) {
  return host::CharacterCount(text);
}

std::string CutToColumns(std::string_view text, size_t columns) {
  if (ColumnCount(text) <= columns) return std::string(text);
  if (columns == 0) return {};
  // The character in the last column makes room for the ellipsis.
  size_t end = 0;
  for (size_t kept = 0; kept < columns; ++end) kept += host::ContinuesCharacter(text[end]) ? 0 : 1;
  return std::string(text.substr(0, end - 1)) + "\xE2\x80\xA6";
}

std::string Wrapped(std::string_view text, size_t indent, size_t width) {
  std::string wrapped;
  size_t column = indent;
  for (size_t begin = 0; begin < text.size();) {
    const size_t blank = std::min(text.find(' ', begin), text.size());
    const std::string_view word = text.substr(begin, blank - begin);
    if (column > indent && column + 1 + ColumnCount(word) >= width) {
      wrapped += '\n';
      wrapped.append(indent, ' ');
      column = indent;
    } else if (begin > 0) {
      wrapped += ' ';
      ++column;
    }
    wrapped += word;
    column += ColumnCount(word);
    begin = blank + 1;
  }
  return wrapped;
}

}  // namespace tqcim::tools
