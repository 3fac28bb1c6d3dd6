#include "tools/reference.h"

#include <algorithm>
#include <optional>

#include "host/object_path.h"
#include "host/text.h"
#include "tools/text.h"

namespace tqcim::tools {
namespace {

/// How much a key tells of its instance: every instance of a class has the same class names, every
/// one of a system the same system.
int Weight(const host::PathKey& key) {
  if (host::EqualNames(key.name, "CreationClassName")) return 0;
  if (host::EqualNames(key.name, "SystemCreationClassName")) return 0;
  return host::EqualNames(key.name, "SystemName") ? 1 : 2;
}

std::string JoinedKeys(const host::ObjectPath& path) {
  int heaviest = 0;
  for (const host::PathKey& key : path.keys) heaviest = std::max(heaviest, Weight(key));
  std::string joined;
  for (const host::PathKey& key : path.keys) {
    if (Weight(key) < heaviest) continue;
    joined += (joined.empty() ? "" : ", ") + PlainText(key.value);
  }
  return joined;
}

std::optional<host::ObjectPath> InstancePath(std::string_view text) {
  try {
    host::ObjectPath path = host::ParseObjectPath(text);
    if (!path.keys.empty()) return path;
  } catch (const host::PathError&) {
    // Some references are bare names.
  }
  return std::nullopt;
}

}  // namespace

std::string ReadableReference(std::string_view text) {
  const std::optional<host::ObjectPath> path = InstancePath(text);
  return Printable(path ? path->class_name + " " + JoinedKeys(*path) : std::string(text));
}

std::string IdentifyingKeys(std::string_view path) {
  const std::optional<host::ObjectPath> parsed = InstancePath(path);
  return parsed ? JoinedKeys(*parsed) : std::string();
}

}  // namespace tqcim::tools
