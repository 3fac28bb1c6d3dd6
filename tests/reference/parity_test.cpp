// The same classes everywhere: schema, registry, tests, notes, pages and golden outputs.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "core/class_registry.h"
#include "host/schema.h"
#include "platform/layouts/catalogue.h"
#include "tests/reference/class_notes.h"
#include "tests/reference/reference_file.h"
#include "tests/support/temporary_folder.h"

namespace tqcim::testing {
namespace {

using Names = std::set<std::string>;

/// The classes that the schema gives to the provider.
Names SchemaNames() {
  Names names;
  const host::Schema schema = host::Schema::Embedded();
  for (const host::ClassDefinition& definition : schema.Classes()) {
    if (!definition.provider.empty()) names.emplace(definition.name);
  }
  return names;
}

/// The files of a folder with that extension, without it.
Names FilesOf(const char* folder, const char* extension) {
  Names names;
  for (const auto& file : std::filesystem::directory_iterator(RepositoryPath(folder))) {
    if (file.path().extension() == extension) names.insert(file.path().stem().string());
  }
  return names;
}

TEST(Parity, TheRegistryServesTheClassesOfTheSchema) {
  Names names;
  for (const RegisteredClass& row : kRegisteredClasses) names.insert(row.name);
  EXPECT_EQ(SchemaNames(), names);
  EXPECT_EQ(47u, names.size());
  EXPECT_EQ(48u, kRegisteredClasses.size()) << "one class is registered twice";
}

TEST(Parity, EveryClassHasAPageNotesAndAGoldenOutput) {
  Names pages = FilesOf("docs/classes", ".md");
  pages.erase("README");
  EXPECT_EQ(SchemaNames(), pages);
  EXPECT_EQ(SchemaNames(), FilesOf("tests/reference/golden", ".json"));
  Names noted;
  for (const auto& [name, notes] : AllClassNotes()) noted.insert(name);
  EXPECT_EQ(SchemaNames(), noted);
}

TEST(Parity, EveryClassHasTestsOfItsHandler) {
  std::string tests;
  const auto folder = RepositoryPath("tests/classes");
  for (const auto& file : std::filesystem::recursive_directory_iterator(folder)) {
    const std::string name = file.path().filename().string();
    // The registry's test names every class there is.
    if (name == "registered_classes_test.cpp") continue;
    if (name.ends_with("_test.cpp")) tests += ContentsOf(file.path());
  }
  for (const std::string& name : SchemaNames()) {
    EXPECT_NE(std::string::npos, tests.find("\"" + name + "\"")) << name;
  }
}

/// The names "object.field" that stand in backticks in a text.
std::vector<std::pair<std::string, std::string>> FieldsIn(const std::string& text) {
  std::vector<std::pair<std::string, std::string>> fields;
  for (size_t at = text.find('`'); at != std::string::npos;) {
    const size_t end = text.find('`', at + 1);
    const std::string quoted = text.substr(at + 1, end - at - 1);
    const size_t dot = quoted.find('.');
    const bool isField = dot != std::string::npos && std::ranges::all_of(quoted, [](char c) {
                           return c == '.' || (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') ||
                                  (c >= 'A' && c <= 'Z');
                         });
    if (isField) fields.emplace_back(quoted.substr(0, dot), quoted.substr(dot + 1));
    at = end == std::string::npos ? end : text.find('`', end + 1);
  }
  return fields;
}

TEST(Parity, NotesNameObjectsAndFieldsOfTheCatalogue) {
  std::set<std::pair<std::string, std::string>> fields;
  Names objects;
  for (const layout::ObjectLayout& layout : layout::kCatalogue) {
    objects.insert(layout.name);
    for (const layout::FieldInfo& field : layout.fields) fields.emplace(layout.name, field.name);
  }
  for (const auto& [name, notes] : AllClassNotes()) {
    for (const std::string& object : notes.objects) {
      EXPECT_TRUE(objects.contains(object)) << name << ": " << object;
    }
    for (const auto& [property, source] : notes.values) {
      for (const auto& field : FieldsIn(source)) {
        EXPECT_TRUE(fields.contains(field))
            << name << "." << property << ": " << field.first << "." << field.second;
      }
    }
  }
}

}  // namespace
}  // namespace tqcim::testing
