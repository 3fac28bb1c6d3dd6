#include "host/class_builder.h"

#include <algorithm>
#include <map>
#include <optional>

#include "host/cim_type.h"
#include "host/text.h"

namespace tqcim::host {
namespace {

const Qualifier* FindQualifier(const std::vector<Qualifier>& qualifiers, std::string_view name) {
  const auto found =
      std::find_if(qualifiers.begin(), qualifiers.end(),
                   [name](const Qualifier& qualifier) { return EqualNames(qualifier.name, name); });
  return found == qualifiers.end() ? nullptr : &*found;
}

/// The text of a qualifier; empty without it.
std::string QualifierText(const std::vector<Qualifier>& qualifiers, std::string_view name) {
  const Qualifier* qualifier = FindQualifier(qualifiers, name);
  const auto* text = qualifier ? std::get_if<std::string>(&qualifier->value) : nullptr;
  return text ? *text : std::string();
}

bool QualifierIsSet(const std::vector<Qualifier>& qualifiers, std::string_view name) {
  const Qualifier* qualifier = FindQualifier(qualifiers, name);
  const auto* set = qualifier ? std::get_if<bool>(&qualifier->value) : nullptr;
  return set && *set;
}

PropertyDefinition OwnProperty(const ParsedProperty& parsed, const std::string& class_name) {
  PropertyDefinition property;
  property.name = parsed.name;
  property.type = parsed.type;
  property.array = parsed.array;
  property.key = QualifierIsSet(parsed.qualifiers, "Key");
  property.reference_class = parsed.reference_class;
  property.origin = class_name;
  property.description = QualifierText(parsed.qualifiers, "Description");
  property.units = QualifierText(parsed.qualifiers, "Units");
  property.default_value = parsed.default_value;
  property.qualifiers = parsed.qualifiers;
  return property;
}

/// A property that a subclass declares again: its type and its origin stay, the rest may change.
PropertyDefinition Overridden(const PropertyDefinition& inherited, PropertyDefinition own,
                              const MofPlace& place) {
  if (own.type != inherited.type || own.array != inherited.array) {
    throw MofError(place, "property " + own.name + " is inherited as " + inherited.TypeText() +
                              " and cannot become " + own.TypeText());
  }
  own.key = own.key || inherited.key;
  own.origin = inherited.origin;
  if (own.description.empty()) own.description = inherited.description;
  if (own.units.empty()) own.units = inherited.units;
  if (IsNull(own.default_value)) own.default_value = inherited.default_value;
  for (const Qualifier& qualifier : inherited.qualifiers) {
    if (!FindQualifier(own.qualifiers, qualifier.name)) own.qualifiers.push_back(qualifier);
  }
  return own;
}

bool HasKey(const ClassDefinition& definition) {
  return std::any_of(definition.properties.begin(), definition.properties.end(),
                     [](const PropertyDefinition& property) { return property.key; });
}

void AddProperty(ClassDefinition& definition, const ParsedProperty& parsed) {
  PropertyDefinition own = OwnProperty(parsed, definition.name);
  const auto inherited = std::find_if(
      definition.properties.begin(), definition.properties.end(),
      [&own](const PropertyDefinition& property) { return EqualNames(property.name, own.name); });
  if (inherited == definition.properties.end()) {
    definition.properties.push_back(std::move(own));
  } else {
    *inherited = Overridden(*inherited, std::move(own), parsed.place);
  }
}

ClassDefinition Build(const ParsedClass& parsed, const ClassDefinition* superclass) {
  ClassDefinition definition;
  definition.name = parsed.name;
  definition.description = QualifierText(parsed.qualifiers, "Description");
  definition.provider = QualifierText(parsed.qualifiers, "Provider");
  definition.abstract = QualifierIsSet(parsed.qualifiers, "Abstract");
  definition.association = QualifierIsSet(parsed.qualifiers, "Association");
  definition.singleton = QualifierIsSet(parsed.qualifiers, "Singleton");
  definition.qualifiers = parsed.qualifiers;
  if (superclass) {
    definition.superclass = superclass->name;
    definition.association = definition.association || superclass->association;
    definition.singleton = definition.singleton || superclass->singleton;
    definition.properties = superclass->properties;
  }
  const bool keys_are_fixed = superclass && HasKey(*superclass);
  for (const ParsedProperty& property : parsed.properties) {
    AddProperty(definition, property);
    if (!definition.Find(property.name)->key) continue;
    if (property.array || property.type == CimType::kReal32 || property.type == CimType::kReal64) {
      throw MofError(property.place, "an array or a real number cannot be a key");
    }
    if (keys_are_fixed &&
        !(superclass->Find(property.name) && superclass->Find(property.name)->key)) {
      throw MofError(property.place,
                     "class " + parsed.name + " inherits its keys and cannot add " + property.name);
    }
    if (definition.singleton) {
      throw MofError(property.place, "class " + parsed.name + " is a singleton and has no keys");
    }
  }
  return definition;
}

/// Builds classes, superclasses first, whatever their order.
class Builder {
 public:
  explicit Builder(const std::vector<ParsedClass>& parsed)
      : parsed_(parsed), built_(parsed.size()) {
    for (size_t i = 0; i < parsed.size(); ++i) {
      if (!by_name_.emplace(LowerCase(parsed[i].name), i).second) {
        throw MofError(parsed[i].place, "class " + parsed[i].name + " stands twice");
      }
    }
  }

  std::vector<ClassDefinition> BuildAll() {
    for (size_t i = 0; i < parsed_.size(); ++i) BuildWithSuperclasses(i);
    std::vector<ClassDefinition> classes;
    for (auto& definition : built_) classes.push_back(std::move(*definition));
    return classes;
  }

 private:
  void BuildWithSuperclasses(size_t index) {
    std::vector<size_t> chain;
    for (std::optional<size_t> next = index; next && !built_[*next]; next = Superclass(*next)) {
      if (std::find(chain.begin(), chain.end(), *next) != chain.end()) {
        throw MofError(parsed_[*next].superclass_place,
                       "class " + parsed_[*next].name + " is its own superclass");
      }
      chain.push_back(*next);
    }
    for (auto next = chain.rbegin(); next != chain.rend(); ++next) {
      const auto superclass = Superclass(*next);
      built_[*next] = Build(parsed_[*next], superclass ? &*built_[*superclass] : nullptr);
    }
  }

  std::optional<size_t> Superclass(size_t index) const {
    const ParsedClass& parsed = parsed_[index];
    if (parsed.superclass.empty()) return std::nullopt;
    const auto found = by_name_.find(LowerCase(parsed.superclass));
    if (found == by_name_.end()) {
      throw MofError(parsed.superclass_place, "there is no class " + parsed.superclass);
    }
    return found->second;
  }

  const std::vector<ParsedClass>& parsed_;
  std::vector<std::optional<ClassDefinition>> built_;
  std::map<std::string, size_t> by_name_;
};

Value CheckedValue(const ParsedAssignment& assignment, const ClassDefinition& definition) {
  const PropertyDefinition* property = definition.Find(assignment.property);
  if (!property) {
    throw MofError(assignment.place,
                   "class " + definition.name + " has no property " + assignment.property);
  }
  const auto value = ConvertToType(assignment.value, property->type, property->array);
  if (!value) {
    throw MofError(assignment.place, "the value is not of the type of " + property->name);
  }
  return *value;
}

}  // namespace

std::vector<ClassDefinition> BuildClasses(const std::vector<ParsedClass>& parsed) {
  return Builder(parsed).BuildAll();
}

std::vector<DeclaredInstance> BuildInstances(const std::vector<ParsedInstance>& parsed,
                                             const Schema& schema) {
  std::vector<DeclaredInstance> instances;
  for (const ParsedInstance& declaration : parsed) {
    const ClassDefinition* definition = schema.Find(declaration.class_name);
    if (!definition && !declaration.class_name.starts_with("__")) {
      throw MofError(declaration.place, "there is no class " + declaration.class_name);
    }
    DeclaredInstance instance{declaration.class_name, {}};
    for (const ParsedAssignment& assignment : declaration.assignments) {
      instance.properties.emplace_back(
          assignment.property,
          definition ? CheckedValue(assignment, *definition) : assignment.value);
    }
    instances.push_back(std::move(instance));
  }
  return instances;
}

}  // namespace tqcim::host
