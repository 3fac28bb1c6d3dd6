// What clients were promised: classes, their properties, types and keys change on purpose only.
#include <gtest/gtest.h>

#include "host/schema.h"
#include "tests/reference/reference_file.h"
#include "tools/text.h"

namespace tqcim::testing {
namespace {

/// One class: its name and superclass, then a line for each property, the keys marked.
std::string TextOf(const host::ClassDefinition& definition) {
  std::string text(definition.name);
  if (!definition.superclass.empty()) text.append(" : ").append(definition.superclass);
  if (definition.association) text += " (association)";
  if (definition.singleton) text += " (singleton)";
  for (const auto& property : definition.properties) {
    text.append("\n  ").append(property->name).append(" ").append(property->TypeText());
    if (property->key) text += " key";
  }
  return text + "\n";
}

/// The registration of the namespace and of the provider.
std::string TextOf(const host::DeclaredInstance& instance) {
  std::string text = "instance of " + std::string(instance.class_name);
  for (const auto& [property, value] : instance.properties) {
    text.append("\n  ").append(property).append(" = ").append(tools::PlainText(value));
  }
  return text + "\n";
}

TEST(PublishedSchema, ChangesOnPurposeOnly) {
  std::string text;
  const host::Schema schema = host::Schema::Embedded();
  for (const host::ClassDefinition& definition : schema.Classes()) {
    if (!definition.provider.empty()) text += TextOf(definition);
  }
  for (const host::DeclaredInstance& instance : schema.Instances()) text += TextOf(instance);
  ExpectReferenceFile("tests/reference/golden/schema.txt", text);
}

}  // namespace
}  // namespace tqcim::testing
