#include "host/class_builder.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "host/cim_type.h"
#include "host/text.h"

namespace tqcim::host {
namespace {

bool QualifierIsSet(Qualifiers qualifiers, std::string_view name) {
  return QualifierValue(qualifiers, name) == Value(true);
}

/// The own ones, and those of the inherited ones that don't stand among them.
Qualifiers Merged(Qualifiers own, Qualifiers inherited, QualifierLists& lists) {
  std::vector<Qualifier> all(own.begin(), own.end());
  std::copy_if(inherited.begin(), inherited.end(), std::back_inserter(all),
               [&](const Qualifier& qualifier) { return !FindQualifier(own, qualifier.name); });
  return lists.Keep(all);
}

/// A property that a subclass declares again: its type and its origin stay, the rest may change.
void Override(const PropertyDefinition& inherited, PropertyDefinition& own, const MofSource& source,
              QualifierLists& lists) {
  if (own.type != inherited.type || own.array != inherited.array) {
    throw MofError(source, own.name,
                   "property " + std::string(own.name) + " is inherited as " +
                       inherited.TypeText() + " and cannot become " + own.TypeText());
  }
  own.key = own.key || inherited.key;
  own.origin = inherited.origin;
  if (IsNull(own.default_value)) own.default_value = inherited.default_value;
  own.qualifiers = Merged(own.qualifiers, inherited.qualifiers, lists);
}

bool HasKey(const ClassDefinition& definition) {
  return std::any_of(definition.properties.begin(), definition.properties.end(),
                     [](const auto* property) { return property->key; });
}

/// Puts the property beside those that are inherited, or in the place of one of them, which it
/// gives then.
const PropertyDefinition* AddProperty(ClassDefinition& definition, PropertyDefinition& own,
                                      size_t inherited_count, const MofSource& source,
                                      QualifierLists& lists) {
  own.key = QualifierIsSet(own.qualifiers, "Key");
  own.origin = definition.name;
  auto& properties = definition.properties;
  const auto end = properties.begin() + static_cast<std::ptrdiff_t>(inherited_count);
  const auto found = std::find_if(properties.begin(), end, [&](const auto* property) {
    return EqualNames(property->name, own.name);
  });
  if (found == end) {
    properties.push_back(&own);
    return nullptr;
  }
  Override(**found, own, source, lists);
  return std::exchange(*found, &own);
}

void AddProperties(ClassDefinition& definition, const ClassDefinition* superclass,
                   const MofSource& source, QualifierLists& lists) {
  const size_t inherited_count = superclass ? superclass->properties.size() : 0;
  definition.properties.reserve(inherited_count + definition.declared.size());
  if (superclass) definition.properties = superclass->properties;
  const bool keys_are_fixed = superclass && HasKey(*superclass);
  for (PropertyDefinition& property : definition.declared) {
    const PropertyDefinition* inherited =
        AddProperty(definition, property, inherited_count, source, lists);
    if (!property.key) continue;
    if (property.array || property.type == CimType::kReal32 || property.type == CimType::kReal64) {
      throw MofError(source, property.name, "an array or a real number cannot be a key");
    }
    if (keys_are_fixed && !(inherited && inherited->key)) {
      throw MofError(source, property.name,
                     "class " + std::string(definition.name) +
                         " inherits its keys and cannot add " + std::string(property.name));
    }
    if (definition.singleton) {
      throw MofError(source, property.name,
                     "class " + std::string(definition.name) + " is a singleton and has no keys");
    }
  }
}

ClassDefinition Build(ParsedClass parsed, const ClassDefinition* superclass,
                      QualifierLists& lists) {
  ClassDefinition definition;
  definition.name = parsed.name;
  definition.provider = QualifierText(parsed.qualifiers, "Provider");
  definition.abstract = QualifierIsSet(parsed.qualifiers, "Abstract");
  definition.association = QualifierIsSet(parsed.qualifiers, "Association");
  definition.singleton = QualifierIsSet(parsed.qualifiers, "Singleton");
  definition.qualifiers = parsed.qualifiers;
  definition.declared = std::move(parsed.properties);
  if (superclass) {
    definition.superclass = superclass->name;
    definition.association = definition.association || superclass->association;
    definition.singleton = definition.singleton || superclass->singleton;
  }
  AddProperties(definition, superclass, *parsed.source, lists);
  return definition;
}

/// Builds classes, superclasses first, whatever their order.
class Builder {
 public:
  Builder(std::vector<ParsedClass> parsed, QualifierLists& lists)
      : parsed_(std::move(parsed)), lists_(lists), is_built_(parsed_.size()) {
    built_.classes.resize(parsed_.size());
    for (size_t i = 0; i < parsed_.size(); ++i) {
      const std::string_view name = parsed_[i].name;
      if (!built_.by_name.emplace(name, i).second) {
        throw MofError(*parsed_[i].source, name, "class " + std::string(name) + " stands twice");
      }
    }
  }

  BuiltClasses BuildAll() {
    for (size_t i = 0; i < parsed_.size(); ++i) BuildWithSuperclasses(i);
    return std::move(built_);
  }

 private:
  void BuildWithSuperclasses(size_t index) {
    std::vector<size_t> chain;
    for (std::optional<size_t> next = index; next && !is_built_[*next]; next = Superclass(*next)) {
      if (std::find(chain.begin(), chain.end(), *next) != chain.end()) {
        const ParsedClass& parsed = parsed_[*next];
        throw MofError(*parsed.source, parsed.superclass,
                       "class " + std::string(parsed.name) + " is its own superclass");
      }
      chain.push_back(*next);
    }
    std::reverse(chain.begin(), chain.end());
    for (const size_t next : chain) {
      const auto superclass = Superclass(next);
      built_.classes[next] = Build(std::move(parsed_[next]),
                                   superclass ? &built_.classes[*superclass] : nullptr, lists_);
      is_built_[next] = true;
    }
  }

  std::optional<size_t> Superclass(size_t index) const {
    const ParsedClass& parsed = parsed_[index];
    if (parsed.superclass.empty()) return std::nullopt;
    const auto found = built_.by_name.find(parsed.superclass);
    if (found == built_.by_name.end()) {
      throw MofError(*parsed.source, parsed.superclass,
                     "there is no class " + std::string(parsed.superclass));
    }
    return found->second;
  }

  std::vector<ParsedClass> parsed_;  // without its properties once it is built
  QualifierLists& lists_;
  std::vector<bool> is_built_;
  BuiltClasses built_;
};

Value CheckedValue(const MofSource& source, std::string_view name, const Value& value,
                   const ClassDefinition& definition) {
  const PropertyDefinition* property = definition.Find(name);
  if (!property) {
    throw MofError(
        source, name,
        "class " + std::string(definition.name) + " has no property " + std::string(name));
  }
  const auto converted = ConvertToType(value, property->type, property->array);
  if (!converted) {
    throw MofError(source, name, "the value is not of the type of " + std::string(property->name));
  }
  return *converted;
}

}  // namespace

BuiltClasses BuildClasses(std::vector<ParsedClass> parsed, QualifierLists& lists) {
  return Builder(std::move(parsed), lists).BuildAll();
}

std::vector<DeclaredInstance> BuildInstances(const std::vector<ParsedInstance>& parsed,
                                             const Schema& schema) {
  std::vector<DeclaredInstance> instances;
  for (const ParsedInstance& declaration : parsed) {
    const std::string_view class_name = declaration.class_name;
    const ClassDefinition* definition = schema.Find(class_name);
    if (!definition && !class_name.starts_with("__")) {
      throw MofError(*declaration.source, class_name,
                     "there is no class " + std::string(class_name));
    }
    DeclaredInstance instance{class_name, declaration.alias, {}};
    for (const auto& [name, value] : declaration.assignments) {
      instance.properties.emplace_back(
          name, definition ? CheckedValue(*declaration.source, name, value, *definition) : value);
    }
    instances.push_back(std::move(instance));
  }
  return instances;
}

}  // namespace tqcim::host
