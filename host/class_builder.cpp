#include "host/class_builder.h"

#include <algorithm>
#include <map>
#include <optional>

#include "host/cim_type.h"
#include "host/text.h"

namespace tqcim::host {
namespace {

bool QualifierIsSet(const std::vector<Qualifier>& qualifiers, std::string_view name) {
  const Qualifier* qualifier = FindQualifier(qualifiers, name);
  const auto* set = qualifier ? std::get_if<bool>(&qualifier->value) : nullptr;
  return set && *set;
}

PropertyDefinition OwnProperty(ParsedProperty parsed, const std::string& class_name) {
  PropertyDefinition property;
  property.name = parsed.name;
  property.type = parsed.type;
  property.array = parsed.array;
  property.key = QualifierIsSet(parsed.qualifiers, "Key");
  property.reference_class = parsed.reference_class;
  property.origin = class_name;
  property.default_value = std::move(parsed.default_value);
  property.qualifiers = std::move(parsed.qualifiers);
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
  if (IsNull(own.default_value)) own.default_value = inherited.default_value;
  for (const Qualifier& qualifier : inherited.qualifiers) {
    if (!FindQualifier(own.qualifiers, qualifier.name)) own.qualifiers.push_back(qualifier);
  }
  return own;
}

bool HasKey(const ClassDefinition& definition) {
  return std::any_of(definition.properties.begin(), definition.properties.end(),
                     [](const auto& property) { return property->key; });
}

/// The property as the class now has it, of whose properties the first so many are inherited.
const PropertyDefinition& AddProperty(ClassDefinition& definition, ParsedProperty parsed,
                                      size_t inherited) {
  const MofPlace place = parsed.place;
  PropertyDefinition own = OwnProperty(std::move(parsed), definition.name);
  auto& properties = definition.properties;
  const auto end = properties.begin() + static_cast<std::ptrdiff_t>(inherited);
  const auto found = std::find_if(properties.begin(), end, [&](const auto& property) {
    return EqualNames(property->name, own.name);
  });
  if (found == end) {
    return *properties.emplace_back(std::make_shared<const PropertyDefinition>(std::move(own)));
  }
  *found = std::make_shared<const PropertyDefinition>(Overridden(**found, std::move(own), place));
  return **found;
}

ClassDefinition Build(ParsedClass parsed, const ClassDefinition* superclass) {
  ClassDefinition definition;
  definition.name = parsed.name;
  definition.provider = QualifierText(parsed.qualifiers, "Provider");
  definition.abstract = QualifierIsSet(parsed.qualifiers, "Abstract");
  definition.association = QualifierIsSet(parsed.qualifiers, "Association");
  definition.singleton = QualifierIsSet(parsed.qualifiers, "Singleton");
  definition.qualifiers = std::move(parsed.qualifiers);
  if (superclass) {
    definition.superclass = superclass->name;
    definition.association = definition.association || superclass->association;
    definition.singleton = definition.singleton || superclass->singleton;
    definition.properties = superclass->properties;
  }
  const size_t inherited_count = definition.properties.size();
  definition.properties.reserve(inherited_count + parsed.properties.size());
  const bool keys_are_fixed = superclass && HasKey(*superclass);
  for (ParsedProperty& parsed_property : parsed.properties) {
    const MofPlace place = parsed_property.place;
    const PropertyDefinition& property =
        AddProperty(definition, std::move(parsed_property), inherited_count);
    if (!property.key) continue;
    if (property.array || property.type == CimType::kReal32 || property.type == CimType::kReal64) {
      throw MofError(place, "an array or a real number cannot be a key");
    }
    const PropertyDefinition* inherited = superclass ? superclass->Find(property.name) : nullptr;
    if (keys_are_fixed && !(inherited && inherited->key)) {
      throw MofError(
          place, "class " + definition.name + " inherits its keys and cannot add " + property.name);
    }
    if (definition.singleton) {
      throw MofError(place, "class " + definition.name + " is a singleton and has no keys");
    }
  }
  return definition;
}

/// Builds classes, superclasses first, whatever their order.
class Builder {
 public:
  explicit Builder(std::vector<ParsedClass> parsed)
      : parsed_(std::move(parsed)), built_(parsed_.size()) {
    for (size_t i = 0; i < parsed_.size(); ++i) {
      if (!by_name_.emplace(parsed_[i].name, i).second) {
        throw MofError(parsed_[i].place, "class " + std::string(parsed_[i].name) + " stands twice");
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
                       "class " + std::string(parsed_[*next].name) + " is its own superclass");
      }
      chain.push_back(*next);
    }
    std::reverse(chain.begin(), chain.end());
    for (const size_t next : chain) {
      const auto superclass = Superclass(next);
      built_[next] = Build(std::move(parsed_[next]), superclass ? &*built_[*superclass] : nullptr);
    }
  }

  std::optional<size_t> Superclass(size_t index) const {
    const ParsedClass& parsed = parsed_[index];
    if (parsed.superclass.empty()) return std::nullopt;
    const auto found = by_name_.find(parsed.superclass);
    if (found == by_name_.end()) {
      throw MofError(parsed.superclass_place,
                     "there is no class " + std::string(parsed.superclass));
    }
    return found->second;
  }

  std::vector<ParsedClass> parsed_;  // without its properties once it is built
  std::vector<std::optional<ClassDefinition>> built_;
  std::map<std::string_view, size_t, NameOrder> by_name_;
};

Value CheckedValue(const ParsedAssignment& assignment, const ClassDefinition& definition) {
  const PropertyDefinition* property = definition.Find(assignment.property);
  if (!property) {
    throw MofError(assignment.place, "class " + definition.name + " has no property " +
                                         std::string(assignment.property));
  }
  const auto value = ConvertToType(assignment.value, property->type, property->array);
  if (!value) {
    throw MofError(assignment.place, "the value is not of the type of " + property->name);
  }
  return *value;
}

}  // namespace

std::vector<ClassDefinition> BuildClasses(std::vector<ParsedClass> parsed) {
  return Builder(std::move(parsed)).BuildAll();
}

std::vector<DeclaredInstance> BuildInstances(const std::vector<ParsedInstance>& parsed,
                                             const Schema& schema) {
  std::vector<DeclaredInstance> instances;
  for (const ParsedInstance& declaration : parsed) {
    const ClassDefinition* definition = schema.Find(declaration.class_name);
    if (!definition && !declaration.class_name.starts_with("__")) {
      throw MofError(declaration.place, "there is no class " + std::string(declaration.class_name));
    }
    DeclaredInstance instance{std::string(declaration.class_name), {}};
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
