#include "tools/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
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

std::string ScalarText(const host::Scalar& scalar) {
  return std::visit(Overloaded{[](bool value) { return std::string(value ? "true" : "false"); },
                               [](const std::string& text) { return text; },
                               [](auto number) { return NumberText(number); }},
                    scalar);
}

/// The texts of a qualifier that is an array of them; none without it.
host::Array ListOf(const host::PropertyDefinition& property, std::string_view qualifier) {
  const host::Value value = host::QualifierValue(property.qualifiers, qualifier);
  const auto* list = std::get_if<host::Array>(&value);
  return list ? *list : host::Array();
}

/// What a code stands for, by the class's ValueMap and Values; empty where they don't tell.
std::string ListedMeaning(const std::string& code, const host::PropertyDefinition& property) {
  const host::Array codes = ListOf(property, "ValueMap");
  const auto found = std::find(codes.begin(), codes.end(), host::Scalar(code));
  if (found == codes.end()) return {};
  const host::Array meanings = ListOf(property, "Values");
  const auto position = static_cast<size_t>(found - codes.begin());
  return position < meanings.size() ? ScalarText(meanings[position]) : std::string();
}

/// A number of bytes in the largest unit that divides it; empty below 1 KiB.
std::string BinaryUnits(uint64_t bytes) {
  constexpr std::array kUnits = {"", " KiB", " MiB", " GiB", " TiB", " PiB", " EiB"};
  size_t unit = 0;
  while (bytes != 0 && bytes % 1024 == 0) {
    bytes /= 1024;
    ++unit;
  }
  return unit == 0 ? std::string() : NumberText(bytes) + kUnits[unit];
}

/// What a number means; empty for what speaks for itself.
std::string MeaningOf(const host::Scalar& scalar, const host::PropertyDefinition& property) {
  if (std::holds_alternative<std::string>(scalar)) return {};
  const auto* number = std::get_if<uint64_t>(&scalar);
  if (number != nullptr && property.Units() == "Bytes") return BinaryUnits(*number);
  return ListedMeaning(ScalarText(scalar), property);
}

std::string ReadableScalar(const host::Scalar& scalar, const host::PropertyDefinition& property,
                           bool with_units) {
  std::string readable = ScalarText(scalar);
  const std::string units = with_units ? property.Units() : std::string();
  if (!units.empty()) readable += ' ' + units;
  const std::string meaning = MeaningOf(scalar, property);
  if (!meaning.empty()) readable += " (" + meaning + ")";
  return Printable(readable);
}

/// The elements of an array, or the one value of what isn't one.
template <typename Function>
std::string Joined(const host::Value& value, std::string_view separator, Function text_of) {
  const auto* array = std::get_if<host::Array>(&value);
  if (array == nullptr) return text_of(*host::ToScalar(value));
  std::string joined;
  for (const host::Scalar& element : *array) {
    if (&element != array->data()) joined += separator;
    joined += text_of(element);
  }
  return joined;
}

std::string Readable(const host::Value& value, const host::PropertyDefinition& property,
                     bool with_units) {
  if (host::IsNull(value)) return "-";
  return Joined(value, "; ", [&](const host::Scalar& scalar) {
    return ReadableScalar(scalar, property, with_units);
  });
}

bool Continues(char byte) {
  return (static_cast<uint8_t>(byte) & 0xC0) == 0x80;
}

}  // namespace

std::string PlainText(const host::Value& value) {
  return host::IsNull(value) ? std::string() : Joined(value, "; ", ScalarText);
}

std::string ReadableText(const host::Value& value, const host::PropertyDefinition& property) {
  return Readable(value, property, false);
}

std::string ReadableTextWithUnits(const host::Value& value,
                                  const host::PropertyDefinition& property) {
  return Readable(value, property, true);
}

std::string MeaningText(const host::Value& value, const host::PropertyDefinition& property) {
  const std::string code = PlainText(value);
  const std::string meaning = ListedMeaning(code, property);
  return meaning.empty() ? code : meaning;
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
