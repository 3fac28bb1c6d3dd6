/// A delivered instance as plain values.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/schema.h"
#include "host/value.h"

namespace tqcim::host {

/// One property of a delivered instance.
struct Property {
  std::string_view name;  ///< as declared
  CimType type;           ///< as declared
  bool array = false;
  bool key = false;
  bool put = false;  ///< whether the provider put it (a null may have been put, too)
  Value value;
};

/// One delivered instance; a copy that outlives the host.
struct Instance {
  std::shared_ptr<const Schema> schema;  ///< whose definition and names these are
  const ClassDefinition* definition = nullptr;
  std::vector<Property> properties;  ///< every declared property, in the class's order
  /// Names that the provider put and the schema refused: one that doesn't look at the result of a
  /// put loses the property without a word.
  std::vector<std::string> refused_puts;

  /// The relative object path, "CLASS.KEY=\"...\",..."; empty where a key is null.
  std::string Path() const;

  /// The property of that name in any case, or null.
  const Property* Find(std::string_view property) const;
};

}  // namespace tqcim::host
