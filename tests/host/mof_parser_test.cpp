// MOF text is read as written, and what is wrong with it is told with its place.
#include "host/mof_parser.h"

#include <gtest/gtest.h>

namespace tqcim::host {
namespace {

MofDocument Parse(std::string_view text) {
  const MofSource source{"x.mof", text};
  MofDocument document;
  ParseMof(source, document);
  return document;
}

std::string MofErrorOf(std::string_view text) {
  try {
    Parse(text);
  } catch (const MofError& error) {
    return error.what();
  }
  return "no error";
}

const PropertyDefinition& OnlyProperty(const MofDocument& document) {
  return document.classes.at(0).properties.at(0);
}

Value DefaultOf(std::string_view property) {
  return OnlyProperty(Parse("class A { " + std::string(property) + "; };")).default_value;
}

TEST(MofParser, ReadsAClassWithItsSuperclassQualifiersAndProperties) {
  const MofDocument document = Parse(R"(
      [Abstract, Description("one " "text"), Version("2") : ToSubclass Translatable]
      class Lid : Base {
        [Key] string Name;
        uint16 Codes[];
        sint32 Fixed[4];
        Lid REF Other;
      };)");
  ASSERT_EQ(1u, document.classes.size());
  const ParsedClass& parsed = document.classes[0];
  EXPECT_EQ("Lid", parsed.name);
  EXPECT_EQ("Base", parsed.superclass);
  ASSERT_EQ(3u, parsed.qualifiers.size());
  EXPECT_EQ("Abstract", parsed.qualifiers[0].name);
  EXPECT_EQ(Value(true), parsed.qualifiers[0].value());
  EXPECT_EQ(Value("one text"), parsed.qualifiers[1].value());
  EXPECT_EQ(Value("2"), parsed.qualifiers[2].value());
  ASSERT_EQ(4u, parsed.properties.size());
  EXPECT_EQ("Name", parsed.properties[0].name);
  EXPECT_EQ(CimType::kString, parsed.properties[0].type);
  EXPECT_FALSE(parsed.properties[0].array);
  EXPECT_EQ("Key", parsed.properties[0].qualifiers[0].name);
  EXPECT_EQ(CimType::kUint16, parsed.properties[1].type);
  EXPECT_TRUE(parsed.properties[1].array);
  EXPECT_EQ(CimType::kSint32, parsed.properties[2].type);
  EXPECT_TRUE(parsed.properties[2].array);
  EXPECT_EQ(CimType::kReference, parsed.properties[3].type);
  EXPECT_EQ("Lid", parsed.properties[3].reference_class);
}

TEST(MofParser, GivesTheValueOfAQualifierWhenItIsAskedFor) {
  const MofDocument document = Parse(R"(
      instance of Base as $One {};
      [Alias($One), Off(false), None(NULL), Code('A'), Many{1, -2, "two /*\x41"  /* joined */ "!"},
       Empty{}, Real(2.5)]
      class Lid {};)");
  const Qualifiers qualifiers = document.classes.at(0).qualifiers;
  const auto value_of = [&](const char* name) { return FindQualifier(qualifiers, name)->value(); };
  EXPECT_EQ(Value("$One"), value_of("alias"));
  EXPECT_EQ(Value(false), value_of("Off"));
  EXPECT_EQ(Value(), value_of("None"));
  EXPECT_EQ(Value(int64_t{65}), value_of("Code"));
  EXPECT_EQ(Value(Array{int64_t{1}, int64_t{-2}, std::string("two /*A!")}), value_of("Many"));
  EXPECT_EQ(Value(Array{}), value_of("Empty"));
  EXPECT_EQ(Value(2.5), value_of("Real"));
}

TEST(MofParser, KnowsEveryScalarTypeInAnyCase) {
  const std::pair<const char*, CimType> types[] = {
      {"boolean", CimType::kBoolean},   {"char16", CimType::kChar16},
      {"DateTime", CimType::kDatetime}, {"real32", CimType::kReal32},
      {"real64", CimType::kReal64},     {"sint8", CimType::kSint8},
      {"sint16", CimType::kSint16},     {"SINT32", CimType::kSint32},
      {"sint64", CimType::kSint64},     {"String", CimType::kString},
      {"uint8", CimType::kUint8},       {"uint16", CimType::kUint16},
      {"uint32", CimType::kUint32},     {"uint64", CimType::kUint64}};
  for (const auto& [name, type] : types) {
    EXPECT_EQ(type, OnlyProperty(Parse("class A { " + std::string(name) + " P; };")).type) << name;
  }
}

TEST(MofParser, ReadsDefaultValuesOfEveryKind) {
  EXPECT_EQ(Value(uint64_t{255}), DefaultOf("uint8 P = 255"));
  EXPECT_EQ(Value(int64_t{-128}), DefaultOf("sint8 P = -128"));
  EXPECT_EQ(Value(uint64_t{0x1F}), DefaultOf("uint32 P = 0x1F"));
  EXPECT_EQ(Value(uint64_t{5}), DefaultOf("uint32 P = 101b"));
  EXPECT_EQ(Value(uint64_t{8}), DefaultOf("uint32 P = 010"));
  EXPECT_EQ(Value(uint64_t{18446744073709551615u}), DefaultOf("uint64 P = 18446744073709551615"));
  EXPECT_EQ(Value(INT64_MIN), DefaultOf("sint64 P = -9223372036854775808"));
  EXPECT_EQ(Value(-2.5), DefaultOf("real64 P = -2.5"));
  EXPECT_EQ(Value(1500.0), DefaultOf("real32 P = 1.5e+3"));
  EXPECT_EQ(Value(2.0), DefaultOf("real32 P = 2"));
  EXPECT_EQ(Value(-0.5), DefaultOf("real32 P = -.5"));
  EXPECT_EQ(Value(0.25), DefaultOf("real64 P = +.25"));
  EXPECT_EQ(Value(true), DefaultOf("boolean P = TRUE"));
  EXPECT_EQ(Value(false), DefaultOf("boolean P = false"));
  EXPECT_EQ(Value(uint64_t{65}), DefaultOf("char16 P = 'A'"));
  EXPECT_EQ(Value(uint64_t{10}), DefaultOf("char16 P = '\\n'"));
  EXPECT_EQ(Value("20150314092653.000000+000"),
            DefaultOf("datetime P = \"20150314092653.000000+000\""));
  EXPECT_EQ(Value(Array{uint64_t{1}, uint64_t{2}}), DefaultOf("uint16 P[] = {1, 2}"));
  EXPECT_EQ(Value(Array{}), DefaultOf("string P[] = {}"));
  EXPECT_EQ(Value(), DefaultOf("string P = NULL"));
}

TEST(MofParser, ReadsEscapesInTexts) {
  EXPECT_EQ(Value("a\"b\\c\td\r\n"), DefaultOf(R"(string P = "a\"b\\c\td\r\n")"));
  EXPECT_EQ(Value("\xC3\xA9x"), DefaultOf(R"(string P = "\x00E9x")"));
  EXPECT_EQ(Value("\xC3\xA9"), DefaultOf("string P = \"\xC3\xA9\""));
  EXPECT_EQ(Value("a\xF0\x9F\x98\x80z"), DefaultOf(R"(string P = "a\xD83D\xDE00z")"));
  EXPECT_EQ(Value("A\xEF\xBF\xBD\nB"), DefaultOf(R"(string P = "\X41\xD83D\n\x42")"));
}

TEST(MofParser, SkipsCommentsBlanksAndDirectives) {
  const MofDocument document = Parse(
      "\xEF\xBB\xBF// one\r\n/* two\n * three */ #pragma namespace(\"\\\\\\\\.\\\\root\")\n"
      "#pragma autorecover\n#pragma deleteclass(\"A\", NOFAIL)\nclass A/**/{};//end");
  ASSERT_EQ(1u, document.classes.size());
  EXPECT_EQ("A", document.classes[0].name);
}

TEST(MofParser, ReadsInstancesWithAliases) {
  const MofDocument document = Parse(R"(
      instance of __Win32Provider as $P { Name = "n"; Flags = {1, 2}; On = TRUE; None = NULL; };
      instance of Other { Provider = $P; };)");
  ASSERT_EQ(2u, document.instances.size());
  EXPECT_EQ("__Win32Provider", document.instances[0].class_name);
  ASSERT_EQ(4u, document.instances[0].assignments.size());
  EXPECT_EQ("Name", document.instances[0].assignments[0].first);
  EXPECT_EQ(Value("n"), document.instances[0].assignments[0].second);
  EXPECT_EQ(Value(Array{int64_t{1}, int64_t{2}}), document.instances[0].assignments[1].second);
  EXPECT_EQ(Value(true), document.instances[0].assignments[2].second);
  EXPECT_EQ(Value(), document.instances[0].assignments[3].second);
  EXPECT_EQ(Value("$P"), document.instances[1].assignments[0].second);
}

TEST(MofParser, PassesOverTheQualifiersOfAnInstance) {
  const MofDocument document = Parse("[Description(\"one\")] instance of A as $One { P = 1; };");
  ASSERT_EQ(1u, document.instances.size());
  EXPECT_EQ("A", document.instances[0].class_name);
  EXPECT_EQ("One", document.instances[0].alias);
}

TEST(MofParser, NamesThePlaceAndTheReasonOfAnError) {
  const std::pair<const char*, const char*> errors[] = {
      {"class A {\n  uint17 P;\n};", "x.mof:2:3: uint17 is not a CIM type"},
      {"class A { string P }", "x.mof:1:20: ';' should stand here, not '}'"},
      {"class A { string P; }", "x.mof:1:22: ';' should stand here, not the end of the text"},
      {"class A {",
       "x.mof:1:10: the type of a property or '}' should stand here, not the end of "
       "the text"},
      {"class 5 {};", "x.mof:1:7: the name of a class should stand here, not a number"},
      {"[Key, key] class A {};", "x.mof:1:7: qualifier key stands twice"},
      {"\xEF\xBB\xBF[Key, key] class A {};", "x.mof:1:7: qualifier key stands twice"},
      {"[Note(\"\\q\")] class A {};", "x.mof:1:8: MOF has no such escape"},
      {"[Note{1, 0x}] class A {};", "x.mof:1:10: '0x' is not a number that fits 64 bits"},
      {"[Note($Q)] class A {};", "x.mof:1:8: alias $Q is not declared"},
      {"[Key(] class A {};", "x.mof:1:6: a value should stand here, not ']'"},
      {"[Key] #pragma autorecover", "x.mof:1:7: a class or an instance should stand here, not '#'"},
      {"struct A {};",
       "x.mof:1:1: a class, an instance or a directive should stand here, not 'struct'"},
      {"class A { string P; sint8 p; };", "x.mof:1:27: property p stands twice"},
      {"class A { uint8 P = 256; };", "x.mof:1:21: the value is not of the type of P"},
      {"class A { sint8 P = -129; };", "x.mof:1:21: the value is not of the type of P"},
      {"class A { uint64 P = -1; };", "x.mof:1:22: the value is not of the type of P"},
      {"class A { uint8 P = \"1\"; };", "x.mof:1:21: the value is not of the type of P"},
      {"class A { uint8 P[] = 1; };", "x.mof:1:23: the value is not of the type of P"},
      {"class A { uint8 P = {1}; };", "x.mof:1:21: the value is not of the type of P"},
      {"class A { boolean P = 1; };", "x.mof:1:23: the value is not of the type of P"},
      {"class A { string P = 18446744073709551616; };",
       "x.mof:1:22: '18446744073709551616' is not a number that fits 64 bits"},
      {"class A { sint64 P = -9223372036854775809; };",
       "x.mof:1:22: '-9223372036854775809' is not a number that fits 64 bits"},
      {"class A { real32 P = -..5; };", "x.mof:1:22: a character that MOF has no use for"},
      {"class A { string P = \"\\x41\\xg\"; };", "x.mof:1:27: MOF has no such escape"},
      {"class A { uint8 P = 0x; };", "x.mof:1:21: '0x' is not a number that fits 64 bits"},
      {"class A { real32 P = 1.5x; };", "x.mof:1:22: '1.5x' is not a number that fits 64 bits"},
      {"class A { uint8 P[] = {NULL}; };", "x.mof:1:24: an array holds no null"},
      {"class A { uint8 P[] = {{1}}; };", "x.mof:1:24: a value should stand here, not '{'"},
      {"class A { uint32 Do(); };", "x.mof:1:20: methods are not supported"},
      {"instance of A { P = $Q; };", "x.mof:1:22: alias $Q is not declared"},
      {"instance of A { P = Q; };", "x.mof:1:21: a value should stand here, not 'Q'"},
      {"instance A {};", "x.mof:1:10: 'of' should stand here, not 'A'"},
      {"#include", "x.mof:1:2: 'pragma' should stand here, not 'include'"},
      {"#pragma include(\"y.mof\")", "x.mof:1:9: files cannot be included: give them one by one"},
      {"#pragma namespace(;",
       "x.mof:1:19: an argument of the directive or ')' should stand here, "
       "not ';'"},
      {"class A { string P = \"open\n\"; };", "x.mof:1:22: the text is not closed on its line"},
      {"class A { string P = \"open", "x.mof:1:22: the text is not closed on its line"},
      {"class A { string P = \"a\\\"b\n\"; };", "x.mof:1:22: the text is not closed on its line"},
      {"class A { string P = \"a\\tb\n\\t\"; };", "x.mof:1:22: the text is not closed on its line"},
      {"class A { string P = \"a\\", "x.mof:1:24: MOF has no such escape"},
      {"class A { string P = \"\\q\"; };", "x.mof:1:23: MOF has no such escape"},
      {"class A { char16 P = 'ab'; };", "x.mof:1:22: between single quotes stands one character"},
      {"class A {};\n/* open", "x.mof:2:1: the comment is not closed"},
      {"class A { } ; %", "x.mof:1:15: a character that MOF has no use for"},
  };
  for (const auto& [text, error] : errors) EXPECT_EQ(error, MofErrorOf(text)) << text;
}

TEST(MofParser, TakesDeepNestingAndEndlessTextWithoutTrouble) {
  EXPECT_EQ("x.mof:1:22: a value should stand here, not '{'",
            MofErrorOf("instance of A { P = {" + std::string(1'000'000, '{')));
  EXPECT_EQ("x.mof:1:2: the name of a qualifier should stand here, not '['",
            MofErrorOf(std::string(1'000'000, '[')));
}

}  // namespace
}  // namespace tqcim::host
