#include "host/schema.h"

#include <utility>

#include "embedded/schema.h"
#include "host/class_builder.h"
#include "host/mof_parser.h"
#include "host/text.h"

namespace tqcim::host {
std::string PropertyDefinition::Description() const {
  return QualifierText(qualifiers, "Description");
}

std::string PropertyDefinition::Units() const {
  return QualifierText(qualifiers, "Units");
}

std::string ClassDefinition::Description() const {
  return QualifierText(qualifiers, "Description");
}

std::string PropertyDefinition::TypeText() const {
  std::string text(TypeName(type));
  if (type == CimType::kReference) text.append(" ").append(reference_class);
  return array ? text + "[]" : text;
}

std::optional<size_t> ClassDefinition::IndexOf(std::string_view property) const {
  for (size_t i = 0; i < properties.size(); ++i) {
    if (EqualNames(properties[i]->name, property)) return i;
  }
  return std::nullopt;
}

const PropertyDefinition* ClassDefinition::Find(std::string_view property) const {
  const std::optional<size_t> index = IndexOf(property);
  return index ? properties[*index] : nullptr;
}

Schema Schema::Embedded() {
  std::vector<MofSource> sources;
  for (const embedded::schema::File& file : embedded::schema::kFiles) {
    sources.push_back({std::string(file.name), file.contents});
  }
  return FromSources(sources);
}

Schema Schema::FromSources(std::span<const MofSource> sources) {
  MofDocument document;
  for (const MofSource& source : sources) ParseMof(source, document);
  Schema schema;
  BuiltClasses built = BuildClasses(std::move(document.classes), document.qualifier_lists);
  schema.qualifier_lists_ = std::move(document.qualifier_lists);
  schema.classes_ = std::move(built.classes);
  schema.by_name_ = std::move(built.by_name);
  schema.instances_ = BuildInstances(document.instances, schema);
  return schema;
}

const ClassDefinition* Schema::Find(std::string_view class_name) const {
  const auto found = by_name_.find(class_name);
  return found == by_name_.end() ? nullptr : &classes_[found->second];
}

}  // namespace tqcim::host
