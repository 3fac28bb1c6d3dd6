// Classes inherit by the platform's rules, and what breaks them is refused with its place.
#include <gtest/gtest.h>

#include "host/mof_lexer.h"
#include "host/schema.h"

namespace tqcim::host {
namespace {

Schema FromText(std::string_view text) {
  const MofSource source{"x.mof", text};
  return Schema::FromSources({&source, 1});
}

std::string SchemaErrorOf(std::string_view text) {
  try {
    FromText(text);
  } catch (const MofError& error) {
    return error.what();
  }
  return "no error";
}

std::vector<std::string> PropertyNames(const ClassDefinition& definition) {
  std::vector<std::string> names;
  for (const auto& property : definition.properties) names.emplace_back(property->name);
  return names;
}

TEST(SchemaRules, InheritedPropertiesStandFirstWhateverTheOrderOfTheClasses) {
  const Schema schema = FromText(R"(
      class C : B { string Z; };
      class B : A { string Y; uint8 W; };
      class A { string X; };)");
  const ClassDefinition* c = schema.Find("C");
  ASSERT_NE(nullptr, c);
  EXPECT_EQ("B", c->superclass);
  EXPECT_EQ((std::vector<std::string>{"X", "Y", "W", "Z"}), PropertyNames(*c));
  EXPECT_EQ("A", c->Find("X")->origin);
  EXPECT_EQ("B", c->Find("w")->origin);
  EXPECT_EQ("C", c->Find("Z")->origin);
  EXPECT_EQ("C", schema.Classes().at(0).name);
}

TEST(SchemaRules, LookupIsCaseless) {
  const Schema schema = FromText("class Vorn_Thing { string Name; };");
  EXPECT_EQ("Vorn_Thing", schema.Find("VORN_THING")->name);
  EXPECT_EQ("Name", schema.Find("vorn_thing")->Find("nAME")->name);
  EXPECT_EQ(nullptr, schema.Find("Vorn_Thin"));
  EXPECT_EQ(nullptr, schema.Find(""));
  EXPECT_EQ(nullptr, schema.Find("Vorn_Thing")->Find("Nam"));
}

TEST(SchemaRules, APropertyDeclaredAgainKeepsItsPlaceAndTakesTheNewWords) {
  const Schema schema = FromText(R"(
      class A { [Description("old"), Units("Bits")] uint16 P = 1; string Q; };
      class B : A { [Key, Override("P"), Description("new")] uint16 p; };)");
  const ClassDefinition* b = schema.Find("B");
  EXPECT_EQ((std::vector<std::string>{"p", "Q"}), PropertyNames(*b));
  const PropertyDefinition& property = *b->properties[0];
  EXPECT_TRUE(property.key);
  EXPECT_EQ("A", property.origin);
  EXPECT_EQ("new", property.Description());
  EXPECT_EQ("Bits", property.Units());
  EXPECT_EQ(Value(uint64_t{1}), property.default_value);
  EXPECT_FALSE(schema.Find("A")->properties[0]->key);
}

TEST(SchemaRules, AReferenceDeclaredAgainMayPointToAnotherClass) {
  const Schema schema = FromText(R"(
      class A { A ref X; };
      class B : A { B ref X; };)");
  EXPECT_EQ("ref A", schema.Find("A")->Find("X")->TypeText());
  EXPECT_EQ("ref B", schema.Find("B")->Find("X")->TypeText());
  EXPECT_EQ("A", schema.Find("B")->Find("X")->origin);
}

TEST(SchemaRules, ClassQualifiersAreInheritedAsThePlatformDoes) {
  const Schema schema = FromText(R"(
      [Abstract, Association, Description("d"), Provider("p")] class A { A ref X; };
      class B : A {};
      [Singleton] class S {};
      class T : S {};)");
  EXPECT_TRUE(schema.Find("A")->abstract);
  EXPECT_EQ("p", schema.Find("A")->provider);
  EXPECT_TRUE(schema.Find("B")->association);
  EXPECT_FALSE(schema.Find("B")->abstract);
  EXPECT_EQ("", schema.Find("B")->provider);
  EXPECT_EQ("", schema.Find("B")->Description());
  EXPECT_TRUE(schema.Find("T")->singleton);
}

TEST(SchemaRules, TypesReadAsPeopleWriteThem) {
  const Schema schema = FromText("class A { uint32 P; uint32 Q[]; A ref R; };");
  EXPECT_EQ("uint32", schema.Find("A")->Find("P")->TypeText());
  EXPECT_EQ("uint32[]", schema.Find("A")->Find("Q")->TypeText());
  EXPECT_EQ("ref A", schema.Find("A")->Find("R")->TypeText());
}

TEST(SchemaRules, ViolationsAreRefusedWithTheirPlace) {
  const std::pair<const char*, const char*> errors[] = {
      {"class A {};\nclass a {};", "x.mof:2:7: class a stands twice"},
      {"class A : B {};", "x.mof:1:11: there is no class B"},
      {"class A : A {};", "x.mof:1:11: class A is its own superclass"},
      {"class A : B {};\nclass B : C {};\nclass C : A {};",
       "x.mof:1:11: class A is its own superclass"},
      {"class A { uint16 P; };\nclass B : A { uint32 P; };",
       "x.mof:2:22: property P is inherited as uint16 and cannot become uint32"},
      {"class A { uint16 P; };\nclass B : A { uint16 P[]; };",
       "x.mof:2:22: property P is inherited as uint16 and cannot become uint16[]"},
      {"class A { [Key] string P; };\nclass B : A { [Key] string Q; };",
       "x.mof:2:28: class B inherits its keys and cannot add Q"},
      {"[Singleton] class A { [Key] string P; };",
       "x.mof:1:36: class A is a singleton and has no keys"},
      {"class A { [Key] string P[]; };", "x.mof:1:24: an array or a real number cannot be a key"},
      {"class A { [Key] real32 P; };", "x.mof:1:24: an array or a real number cannot be a key"},
      {"instance of A {};", "x.mof:1:13: there is no class A"},
      {"class A {};\ninstance of A { P = 1; };", "x.mof:2:17: class A has no property P"},
      {"class A { uint8 P; };\ninstance of A { P = 256; };",
       "x.mof:2:17: the value is not of the type of P"},
  };
  for (const auto& [text, error] : errors) EXPECT_EQ(error, SchemaErrorOf(text)) << text;
}

TEST(SchemaRules, AKeyMayBeDeclaredAgain) {
  const Schema schema =
      FromText("class A { [Key] string P; };\nclass B : A { [Key, Override(\"P\")] string P; };");
  EXPECT_TRUE(schema.Find("B")->Find("P")->key);
}

}  // namespace
}  // namespace tqcim::host
