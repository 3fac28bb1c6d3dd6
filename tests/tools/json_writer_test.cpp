// JSON as the program writes it: the layout, numbers, and texts of all kinds.
#include "tools/json_writer.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace tqcim::tools {
namespace {

std::string DocumentOf(const host::Value& value) {
  JsonWriter json;
  json.Value(value);
  return std::move(json).Document();
}

TEST(JsonWriter, GivesEachItemALineAndEmptyListsNone) {
  JsonWriter json;
  json.Object([&] {
    json.Member("text", "one");
    json.Member("nothing", {});
    json.Member("list", host::Array{true, "two"});
    json.Member("empty list", host::Array{});
    json.Name("no members");
    json.Object([] {});
    json.Name("nested");
    json.Array([&] {
      json.Array([&] { json.Value(false); });
      json.Object([&] { json.Member("last", "three"); });
    });
  });
  EXPECT_EQ(std::move(json).Document(), R"({
  "text": "one",
  "nothing": null,
  "list": [
    true,
    "two"
  ],
  "empty list": [],
  "no members": {},
  "nested": [
    [
      false
    ],
    {
      "last": "three"
    }
  ]
}
)");
}

TEST(JsonWriter, NumbersHaveAllTheirDigits) {
  EXPECT_EQ(DocumentOf(INT64_MIN), "-9223372036854775808\n");
  EXPECT_EQ(DocumentOf(UINT64_MAX), "18446744073709551615\n");
  EXPECT_EQ(DocumentOf(uint64_t{0}), "0\n");
  EXPECT_EQ(DocumentOf(0.1), "0.1\n");
  EXPECT_EQ(DocumentOf(2.0), "2.0\n");
}

TEST(JsonWriter, TextsAreEscapedWhereJsonAsksForIt) {
  EXPECT_EQ(DocumentOf("\" \\ /"), "\"\\\" \\\\ /\"\n");
  EXPECT_EQ(DocumentOf("\b\f\n\r\t\x01\x1F\x7F"), "\"\\b\\f\\n\\r\\t\\u0001\\u001f\x7F\"\n");
  EXPECT_EQ(DocumentOf(std::string("a\0b", 3)), "\"a\\u0000b\"\n");
  EXPECT_EQ(DocumentOf("\xC3\xA4 \xF0\x9F\x98\x80"), "\"\xC3\xA4 \xF0\x9F\x98\x80\"\n");
  EXPECT_EQ(DocumentOf(" ~"), "\" ~\"\n");
}

TEST(JsonWriter, WhatIsNotUtf8BecomesReplacementCharacters) {
  EXPECT_EQ(DocumentOf("a\xFFz"), "\"a\xEF\xBF\xBDz\"\n");
}

TEST(JsonWriter, NamesAreEscapedAsTexts) {
  JsonWriter json;
  json.Object([&] { json.Member("a \"name\"", "x"); });
  EXPECT_EQ(std::move(json).Document(), "{\n  \"a \\\"name\\\"\": \"x\"\n}\n");
}

}  // namespace
}  // namespace tqcim::tools
