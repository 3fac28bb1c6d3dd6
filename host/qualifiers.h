/// Qualifiers of classes and properties.
#pragma once

#include <memory>
#include <memory_resource>
#include <span>
#include <string>
#include <string_view>

#include "host/value.h"

namespace tqcim::host {

/// A qualifier as MOF writes it: few are ever looked at.
struct Qualifier {
  std::string_view name;
  std::string_view text;  ///< of the value; empty where MOF gives none

  /// `true` where MOF gives none.
  Value value() const;
};

using Qualifiers = std::span<const Qualifier>;

/// The qualifier of that name in any case, or null.
const Qualifier* FindQualifier(Qualifiers qualifiers, std::string_view name);
/// Its value; null without it.
Value QualifierValue(Qualifiers qualifiers, std::string_view name);
/// Its text; empty without it.
std::string QualifierText(Qualifiers qualifiers, std::string_view name);

/// Lists of qualifiers, one behind the other: a schema has a thousand, and gives them back
/// together.
class QualifierLists {
 public:
  /// A copy that lives as long as this does, wherever it is moved.
  Qualifiers Keep(Qualifiers list);

 private:
  std::unique_ptr<std::pmr::monotonic_buffer_resource> memory_ =
      std::make_unique<std::pmr::monotonic_buffer_resource>();
};

}  // namespace tqcim::host
