/// Values and texts as people read them. All text is UTF-8.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "host/schema.h"
#include "host/value.h"

namespace tqcim::tools {

/// A value as plain text: numbers in decimal, booleans as true and false, the elements of an array
/// separated by "; ". Null is empty.
std::string PlainText(const host::Value& value);

/// A value as a person wants it: beside a code the meaning that the class gives it ("26 (DDR4)"),
/// beside bytes the larger unit ("34359738368 (32 GiB)"). Null is "-". On one line, printable.
std::string ReadableText(const host::Value& value, const host::PropertyDefinition& property);

/// The same with the unit of the property: "34359738368 Bytes (32 GiB)".
std::string ReadableTextWithUnits(const host::Value& value,
                                  const host::PropertyDefinition& property);

/// What a code means ("DDR4"), or the plain text of a value for which the class has no meaning.
std::string MeaningText(const host::Value& value, const host::PropertyDefinition& property);

/// The text on one line without anything that a terminal obeys: control characters become \xNN,
/// malformed UTF-8 becomes U+FFFD.
std::string Printable(std::string_view text);

/// How many columns a printable text takes, one for each character.
size_t ColumnCount(std::string_view text);

/// The text, cut to that many columns; the last one is an ellipsis then.
std::string CutToColumns(std::string_view text, size_t columns);

/// The words of a text on lines that begin at column `indent` and end before column `width`; the
/// first line is not indented. A longer word stands on a line of its own.
std::string Wrapped(std::string_view text, size_t indent, size_t width);

}  // namespace tqcim::tools
