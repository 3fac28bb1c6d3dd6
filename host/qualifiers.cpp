#include "host/qualifiers.h"

#include <algorithm>

#include "host/mof_parser.h"
#include "host/text.h"

namespace tqcim::host {

Value Qualifier::value() const {
  return text.empty() ? Value(true) : ValueOf(text);
}

const Qualifier* FindQualifier(Qualifiers qualifiers, std::string_view name) {
  const auto found =
      std::find_if(qualifiers.begin(), qualifiers.end(),
                   [name](const Qualifier& qualifier) { return EqualNames(qualifier.name, name); });
  return found == qualifiers.end() ? nullptr : &*found;
}

Value QualifierValue(Qualifiers qualifiers, std::string_view name) {
  const Qualifier* qualifier = FindQualifier(qualifiers, name);
  return qualifier ? qualifier->value() : Value();
}

std::string QualifierText(Qualifiers qualifiers, std::string_view name) {
  const Value value = QualifierValue(qualifiers, name);
  const auto* text = std::get_if<std::string>(&value);
  return text ? *text : std::string();
}

Qualifiers QualifierLists::Keep(Qualifiers list) {
  if (list.empty()) return {};
  auto* kept = std::pmr::polymorphic_allocator<Qualifier>(memory_.get()).allocate(list.size());
  std::uninitialized_copy(list.begin(), list.end(), kept);
  return {kept, list.size()};
}

}  // namespace tqcim::host
