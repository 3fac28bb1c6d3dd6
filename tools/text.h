/// Values and texts as people read them. All text is UTF-8.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "host/value.h"

namespace tqcim::tools {

/// The texts of an array's elements with "; " between them, or that of the one value of what isn't
/// one. Not for null.
template <typename Function>
std::string Joined(const host::Value& value, Function text_of) {
  const auto* array = std::get_if<host::Array>(&value);
  if (array == nullptr) return text_of(*host::ToScalar(value));
  std::string joined;
  for (const host::Scalar& element : *array) {
    if (&element != array->data()) joined += "; ";
    joined += text_of(element);
  }
  return joined;
}

/// A value as plain text: numbers in decimal, booleans as true and false, the elements of an array
/// as above. Null is empty.
std::string PlainText(const host::Scalar& scalar);
std::string PlainText(const host::Value& value);

/// The text on one line without anything that a terminal obeys: control characters become \xNN,
/// those that change the direction of text \uNNNN, malformed UTF-8 becomes U+FFFD.
std::string Printable(std::string_view text);

/// How many columns a printable text takes, one for each character.
size_t ColumnCount(std::string_view text);

/// The text, cut to that many columns; the last one is an ellipsis then.
std::string CutToColumns(std::string_view text, size_t columns);

/// The words of a text on lines that begin at column `indent` and end before column `width`; the
/// first line is not indented. A longer word stands on a line of its own.
std::string Wrapped(std::string_view text, size_t indent, size_t width);

}  // namespace tqcim::tools
