/// Object paths as text and as parts.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "host/value.h"

namespace tqcim::host {

/// The text of a path that can't be read. `position` counts characters from 0; `what()` is the
/// reason.
class PathError : public std::runtime_error {
 public:
  PathError(size_t position, const std::string& reason)
      : std::runtime_error(reason), position_(position) {}
  size_t position() const { return position_; }

 private:
  size_t position_;
};

/// One key of an instance path. The name is empty where the path gives a single value without one.
struct PathKey {
  std::string name;
  Scalar value;  ///< std::string for quoted text, int64_t or uint64_t for a number, or bool

  bool operator==(const PathKey&) const = default;
};

/// A path of the form \\SERVER\NAMESPACE\...:CLASS.KEY=VALUE,..., with everything optional but
/// either a class or a namespace.
struct ObjectPath {
  std::string server;                   ///< empty when the path doesn't name one
  std::vector<std::string> namespaces;  ///< from the root down; empty when the path has none
  std::string class_name;               ///< empty for the path of a namespace
  std::vector<PathKey> keys;
  bool singleton = false;  ///< CLASS=@

  bool NamesInstance() const { return singleton || !keys.empty(); }
  /// The namespaces with backslashes between them.
  std::string Namespace() const;
};

/// Reads a path. Quotes are " or '; inside them \" \' and \\ stand for the character after the
/// backslash. / stands for \ outside of quotes. Blanks may stand around '=' and ','. Throws
/// PathError.
ObjectPath ParseObjectPath(std::string_view text);

/// CLASS.KEY="VALUE",..., keys in the path's order.
std::string RelativeText(const ObjectPath& path);

}  // namespace tqcim::host
