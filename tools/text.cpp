#include "tools/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
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

bool Continues(char byte) {
  return (static_cast<uint8_t>(byte) & 0xC0) == 0x80;
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
  constexpr const char* kHex = "0123456789ABCDEF";
  const std::string valid = host::ToUtf8(host::ToWide(text));
  std::string printable;
  for (size_t i = 0; i < valid.size(); ++i) {
    // The controls beyond ASCII are U+0080 to U+009F.
    const bool wide_control = valid[i] == '\xC2' && static_cast<uint8_t>(valid[i + 1]) < 0xA0;
    const auto byte = static_cast<uint8_t>(valid[wide_control ? ++i : i]);
    if (wide_control || byte < 0x20 || byte == 0x7F) {
      printable += {'\\', 'x', kHex[byte >> 4], kHex[byte & 0xF]};
    } else {
      printable += valid[i];
    }
  }
  return printable;
}

size_t ColumnCount(std::string_view text) {
  return text.size() - static_cast<size_t>(std::count_if(text.begin(), text.end(), Continues));
}

std::string CutToColumns(std::string_view text, size_t columns) {
  if (ColumnCount(text) <= columns) return std::string(text);
  if (columns == 0) return {};
  // The character in the last column makes room for the ellipsis.
  size_t end = 0;
  for (size_t kept = 0; kept < columns; ++end) kept += Continues(text[end]) ? 0 : 1;
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
