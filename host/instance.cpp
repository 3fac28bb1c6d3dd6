#include "host/instance.h"

#include <algorithm>

#include "host/object_path.h"
#include "host/text.h"

namespace tqcim::host {

const Property* Instance::Find(std::string_view property) const {
  const auto found = std::find_if(
      properties.begin(), properties.end(),
      [property](const Property& candidate) { return EqualNames(candidate.name, property); });
  return found == properties.end() ? nullptr : &*found;
}

std::string Instance::Path() const {
  ObjectPath path;
  path.class_name = definition->name;
  path.singleton = definition->singleton;
  for (const Property& property : properties) {
    if (!property.key) continue;
    const auto value = ToScalar(property.value);
    if (!value) return {};
    path.keys.push_back({std::string(property.name), *value});
  }
  return path.NamesInstance() ? RelativeText(path) : std::string();
}

}  // namespace tqcim::host
