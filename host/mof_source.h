/// A MOF text, and the places in it that errors name.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace tqcim::host {

/// A text and the name that error messages give it. Nothing that is read from it is copied: names
/// and qualifiers are parts of the text, which outlives them.
struct MofSource {
  std::string name;
  std::string_view text;
};

/// The text without the mark that some editors begin a file with.
std::string_view WithoutByteOrderMark(std::string_view text);

/// "FILE:LINE:COLUMN: reason".
class MofError : public std::runtime_error {
 public:
  /// `part`, which may be empty, begins in the source's text where something is wrong. Line and
  /// column count from 1; a column is a byte.
  MofError(const MofSource& source, std::string_view part, const std::string& reason);
};

}  // namespace tqcim::host
