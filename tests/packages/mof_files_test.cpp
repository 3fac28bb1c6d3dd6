// The texts for the platform's MOF compiler, against the schema that the program carries.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>

#include "host/mof_parser.h"
#include "host/schema.h"
#include "tests/support/temporary_folder.h"

namespace tqcim::testing {
namespace {

using host::ClassDefinition;
using host::MofSource;
using host::PropertyDefinition;
using host::Qualifiers;
using host::Schema;

void ExpectSame(Qualifiers expected, Qualifiers actual, std::string_view owner) {
  ASSERT_EQ(expected.size(), actual.size()) << owner;
  for (size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(expected[i].name, actual[i].name) << owner;
    EXPECT_TRUE(expected[i].value() == actual[i].value()) << owner << " " << expected[i].name;
  }
}

void ExpectSame(const ClassDefinition& expected, const ClassDefinition& actual) {
  EXPECT_EQ(expected.name, actual.name);
  EXPECT_EQ(expected.superclass, actual.superclass) << expected.name;
  ExpectSame(expected.qualifiers, actual.qualifiers, expected.name);
  ASSERT_EQ(expected.properties.size(), actual.properties.size()) << expected.name;
  for (size_t i = 0; i < expected.properties.size(); ++i) {
    const PropertyDefinition& one = *expected.properties[i];
    const PropertyDefinition& other = *actual.properties[i];
    EXPECT_EQ(one.name, other.name) << expected.name;
    EXPECT_EQ(one.TypeText(), other.TypeText()) << expected.name << "." << one.name;
    EXPECT_TRUE(one.default_value == other.default_value) << expected.name << "." << one.name;
    ExpectSame(one.qualifiers, other.qualifiers,
               std::string(expected.name).append(".").append(one.name));
  }
}

void ExpectShipped(std::string_view text) {
  const MofSource source{"tqcim.mof", text};
  const Schema assembled = Schema::FromSources({&source, 1});
  const Schema shipped = Schema::Embedded();
  ASSERT_EQ(shipped.Classes().size(), assembled.Classes().size());
  for (size_t i = 0; i < shipped.Classes().size(); ++i) {
    ExpectSame(shipped.Classes()[i], assembled.Classes()[i]);
  }
  ASSERT_EQ(shipped.Instances().size(), assembled.Instances().size());
  for (size_t i = 0; i < shipped.Instances().size(); ++i) {
    EXPECT_EQ(shipped.Instances()[i].class_name, assembled.Instances()[i].class_name);
    EXPECT_TRUE(shipped.Instances()[i].properties == assembled.Instances()[i].properties);
  }
}

TEST(AssembledMof, MakesTheSchemaOfTheProgram) {
  const std::string text = ContentsOf(TQCIM_BUILD "/tqcim.mof");
  ExpectShipped(text);
  // The package's own has the line ends of Windows.
  ExpectShipped(std::regex_replace(text, std::regex("\n"), "\r\n"));
}

/// The compiler takes the file in the code page of the machine.
TEST(AssembledMof, IsAscii) {
  for (const char* name : {"/tqcim.mof", "/tqcim-remove.mof"}) {
    const std::string text = ContentsOf(std::string(TQCIM_BUILD) + name);
    EXPECT_TRUE(std::all_of(text.begin(), text.end(), [](char c) { return c > 0; })) << name;
  }
}

/// The classes that the removal file deletes, in its order.
std::vector<std::string> DeletedClasses(const std::string& text) {
  const std::regex directive("#pragma deleteclass\\(\"([A-Za-z0-9_]+)\", NOFAIL\\)\n");
  std::vector<std::string> names;
  for (std::sregex_iterator found(text.begin(), text.end(), directive), end; found != end;
       ++found) {
    names.push_back((*found)[1]);
  }
  return names;
}

TEST(RemovalMof, NamesEveryClassOnceAssociationsFirstSubclassesBeforeSuperclasses) {
  const std::vector<std::string> deleted =
      DeletedClasses(ContentsOf(TQCIM_BUILD "/tqcim-remove.mof"));
  std::map<std::string_view, size_t> places;
  for (const std::string& name : deleted) {
    EXPECT_TRUE(places.emplace(name, places.size()).second) << name;
  }
  const Schema shipped = Schema::Embedded();
  EXPECT_EQ(shipped.Classes().size(), deleted.size());
  size_t associations = 0;
  for (const ClassDefinition& definition : shipped.Classes()) {
    ASSERT_TRUE(places.contains(definition.name)) << definition.name;
    if (definition.association) ++associations;
    if (definition.superclass.empty()) continue;
    EXPECT_LT(places.at(definition.name), places.at(definition.superclass)) << definition.name;
  }
  for (size_t i = 0; i < deleted.size(); ++i) {
    EXPECT_EQ(i < associations, shipped.Find(deleted[i])->association) << deleted[i];
  }
}

TEST(RemovalMof, BeginsWithTheRegistrationAndEndsWithTheNamespace) {
  const std::string text = ContentsOf(TQCIM_BUILD "/tqcim-remove.mof");
  const std::string beginning =
      R"(// Deletes what tqcim.mof makes. What is not there is passed over.

#pragma namespace("\\\\.\\root\\cimv2\\vorn")

#pragma deleteinstance("__InstanceProviderRegistration.Provider=\"__Win32Provider.Name=\\\"tqcim\\\"\"", NOFAIL)
#pragma deleteinstance("__Win32Provider.Name=\"tqcim\"", NOFAIL)

#pragma deleteclass(")";
  const std::string end = R"(
#pragma deleteclass("CIM_ManagedElement", NOFAIL)

#pragma namespace("\\\\.\\root\\cimv2")

#pragma deleteinstance("__Namespace.Name=\"vorn\"", NOFAIL)
)";
  EXPECT_TRUE(text.starts_with(beginning)) << text.substr(0, beginning.size());
  EXPECT_TRUE(text.ends_with(end)) << text.substr(text.size() - end.size());
}

TEST(RemovalMof, IsValidAndMakesNothing) {
  const std::string text = ContentsOf(TQCIM_BUILD "/tqcim-remove.mof");
  host::MofDocument document;
  host::ParseMof({"tqcim-remove.mof", text}, document);
  EXPECT_TRUE(document.classes.empty());
  EXPECT_TRUE(document.instances.empty());
}

}  // namespace
}  // namespace tqcim::testing
