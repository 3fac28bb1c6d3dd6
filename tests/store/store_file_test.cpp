#include "store/store_file.h"

#include <gtest/gtest.h>

#include <string>

#include "store/store_error.h"
#include "tests/store/raw_bytes.h"
#include "tests/support/temporary_folder.h"

namespace tqcim::store {
namespace {

using testing::BytesOf;
using testing::Oids;
using testing::Text;
using testing::U16;
using testing::U32;
using testing::U64;
using testing::U8;

/// A store file whose objects are a system, a chassis and these; they begin on line 6.
std::string WithObjects(const std::string& objects) {
  return R"({"format": "tqcim-store", "version": 1,
"objects": [
{"oid": 1, "type": "system"},
{"oid": 2, "type": "chassis", "parents": [1]},

)" + objects +
         "]}";
}

/// An object 3 of a type with these fields.
std::string WithFields(const std::string& type, const std::string& fields) {
  return WithObjects(R"({"oid": 3, "type": ")" + type + R"(", "parents": [2], "fields": {)" +
                     fields + "}}");
}

std::string FailureOf(const std::string& contents) {
  try {
    ParseStoreFile(contents, "f.json");
  } catch (const StoreError& error) {
    return error.what();
  }
  return "no failure";
}

std::string ObjectFailure(const std::string& object) {
  return FailureOf(WithObjects(object));
}

std::string FieldFailure(const std::string& type, const std::string& fields) {
  return FailureOf(WithFields(type, fields));
}

TEST(StoreFile, EveryKindOfFieldIsRead) {
  const auto snapshot = ParseStoreFile(WithObjects(R"(
{"oid": 3, "type": "temperatureProbe", "status": "nonCritical", "parents": [2],
 "fields": {"currentReading": -12, "settableThresholds": 65535, "name": "In\u006cet \u00e4"}},
{"oid": 4, "type": "bios", "status": 77, "parents": [2],
 "fields": {"characteristics": 18446744073709551615, "releaseDate": "03/15/2012",
            "characteristicsExtension1": 255}},
{"oid": 5, "type": "networkAdapter", "parents": [2], "fields": {"partitionEnabled": -32768}})"),
                                       "f.json");
  const std::byte* probe = BytesOf(*snapshot, 3);
  EXPECT_EQ(U8(probe, 10), 3);
  EXPECT_EQ(U32(probe, 20), 0xFFFFFFF4U);
  EXPECT_EQ(U16(probe, 70), 0xFFFF);
  EXPECT_EQ(Text(probe, 72), u"Inlet \u00E4");
  const std::byte* bios = BytesOf(*snapshot, 4);
  EXPECT_EQ(U8(bios, 10), 77);
  EXPECT_EQ(U64(bios, 48), 0xFFFFFFFFFFFFFFFFU);
  EXPECT_EQ(Text(bios, 40), u"03/15/2012");
  EXPECT_EQ(U8(bios, 30), 0xFF);
  EXPECT_EQ(U16(BytesOf(*snapshot, 5), 164), 0x8000);
  EXPECT_EQ(U8(BytesOf(*snapshot, 5), 10), 1) << "no status is unknown";
  EXPECT_EQ(Oids(snapshot->Children(2, 212)), std::vector<uint32_t>({4}));
}

TEST(StoreFile, EveryStatusWordIsRead) {
  const char* const words[] = {"other",       "unknown",  "ok",
                               "nonCritical", "critical", "nonRecoverable"};
  for (uint8_t status = 0; status < 6; ++status) {
    const auto snapshot =
        ParseStoreFile(WithObjects(std::string(R"({"oid": 3, "type": "chassis", "status": ")") +
                                   words[status] + R"(", "parents": [1]})"),
                       "f.json");
    EXPECT_EQ(U8(BytesOf(*snapshot, 3), 10), status) << words[status];
  }
}

TEST(StoreFile, AChildMayStandBeforeItsParent) {
  const auto snapshot = ParseStoreFile(WithObjects(R"(
{"oid": 4, "type": "processor", "parents": [3, 2]},
{"oid": 3, "type": "processorDevice", "parents": [2]})"),
                                       "f.json");
  EXPECT_EQ(Oids(snapshot->Children(3, 210)), std::vector<uint32_t>({4}));
  EXPECT_EQ(Oids(snapshot->Children(2, 210)), std::vector<uint32_t>({4}));
}

TEST(StoreFile, SyntaxErrorsNameTheLine) {
  EXPECT_EQ(FailureOf(""),
            "f.json:1: syntax error while parsing value - unexpected end of input; expected '[', "
            "'{', or a literal");
  EXPECT_EQ(FailureOf("{\n\"format\": \"tqcim-store\",\n\"version\" 1}"),
            "f.json:3: syntax error while parsing object separator - unexpected number literal; "
            "expected ':'");
  EXPECT_EQ(FailureOf("{\n\"format\":\n\n\"tqcim-store\"]"),
            "f.json:4: syntax error while parsing object - unexpected ']'; expected '}'");
  EXPECT_EQ(FailureOf(WithObjects("") + "\n x"),
            "f.json:6: syntax error while parsing value - unexpected ']'; expected '[', '{', or a "
            "literal");
}

TEST(StoreFile, NothingMayStandBehindTheEnd) {
  const std::string whole = WithObjects(R"({"oid": 3, "type": "chassis", "parents": [1]})");
  EXPECT_EQ(FailureOf(whole), "no failure");
  EXPECT_EQ(FailureOf(whole + "\n"), "no failure");
  EXPECT_EQ(FailureOf(whole + "\n1"),
            "f.json:7: syntax error while parsing value - unexpected number literal; expected end "
            "of input");
}

TEST(StoreFile, MalformedTextsAreSyntaxErrors) {
  const auto failure = [](const std::string& text) {
    const std::string sentence = FieldFailure("bios", "\n\"version\": \"" + text + "\"");
    EXPECT_EQ(sentence.find('\n'), std::string::npos);
    return sentence.substr(0, sentence.find(':', 8));
  };
  EXPECT_EQ(failure("\xFF"), "f.json:7");
  EXPECT_EQ(failure("\xED\xA0\x80"), "f.json:7") << "a surrogate in UTF-8";
  EXPECT_EQ(failure("\\ud800"), "f.json:7") << "half a pair";
  EXPECT_EQ(failure("\\udc00"), "f.json:7") << "the other half";
  EXPECT_EQ(failure("\\ud800\\ud800"), "f.json:7");
  EXPECT_EQ(failure("\\ud83d\\ude00"), "no failure") << "a pair is a character";
}

TEST(StoreFile, TheLineIsThatOfTheValueEvenBeforeALineBreak) {
  EXPECT_EQ(FailureOf("{\"format\": \"tqcim-store\",\n\"version\": 2\n}"),
            "f.json:2: version 2 of the format is not known; 1 is");
  EXPECT_EQ(FailureOf("{\"format\": \"tqcim-store\",\r\n\"version\":\r\n2\r\n\r\n}"),
            "f.json:3: version 2 of the format is not known; 1 is");
}

TEST(StoreFile, AnotherFormatIsRefused) {
  EXPECT_EQ(FailureOf("[]"), "f.json:1: a store file is an object");
  EXPECT_EQ(FailureOf("{}"), "f.json:1: \"format\" is missing");
  EXPECT_EQ(FailureOf(R"({"format": 1})"), "f.json:1: \"format\" takes a text");
  EXPECT_EQ(FailureOf(R"({"format": "other"})"),
            "f.json:1: the format \"other\" is not \"tqcim-store\"");
  EXPECT_EQ(FailureOf(R"({"format": "tqcim-store"})"), "f.json:1: \"version\" is missing");
  EXPECT_EQ(FailureOf(R"({"format": "tqcim-store", "version": 1})"),
            "f.json:1: \"objects\" is missing");
  EXPECT_EQ(FailureOf(R"({"format": "tqcim-store", "version": 1, "objects": []})"),
            "f.json:1: a store has at least its system object");
  EXPECT_EQ(FailureOf(R"({"format": "tqcim-store", "version": 1, "objects": {}})"),
            "f.json:1: \"objects\" takes a list");
  EXPECT_EQ(FailureOf(R"({"format": "tqcim-store", "versoin": 1})"),
            "f.json:1: a store file has no \"versoin\"");
}

TEST(StoreFile, UnknownNamesAreRefused) {
  EXPECT_EQ(ObjectFailure(R"({"oid": 3, "type": "chassis", "parent": [1]})"),
            "f.json:6: an object of the store has no \"parent\"");
  EXPECT_EQ(ObjectFailure(R"({"oid": 3, "type": "chasis", "parents": [1]})"),
            "f.json:6: there is no object type \"chasis\"");
  EXPECT_EQ(ObjectFailure(R"({"oid": 3, "type": "chassis", "status": "good", "parents": [1]})"),
            "f.json:6: there is no status \"good\"");
  EXPECT_EQ(FieldFailure("bios", "\n\"versoin\": \"1\""),
            "f.json:7: a bios has no field \"versoin\"");
}

TEST(StoreFile, ObjectsOfAnotherShapeAreRefused) {
  EXPECT_EQ(ObjectFailure("3"), "f.json:6: an object of the store is an object");
  EXPECT_EQ(ObjectFailure(R"({"type": "chassis", "parents": [1]})"),
            "f.json:6: \"oid\" is missing");
  EXPECT_EQ(ObjectFailure(R"({"oid": 3, "parents": [1]})"), "f.json:6: \"type\" is missing");
  EXPECT_EQ(ObjectFailure(R"({"oid": "3", "type": "chassis", "parents": [1]})"),
            "f.json:6: \"oid\" takes a whole number");
  EXPECT_EQ(ObjectFailure(R"({"oid": -3, "type": "chassis", "parents": [1]})"),
            "f.json:6: \"oid\" takes a whole number");
  EXPECT_EQ(ObjectFailure(R"({"oid": 4294967296, "type": "chassis", "parents": [1]})"),
            "f.json:6: not a whole number from 0 to 4294967295");
  EXPECT_EQ(ObjectFailure(R"({"oid": 3, "type": "chassis", "parents": 1})"),
            "f.json:6: \"parents\" takes a list");
  EXPECT_EQ(ObjectFailure("{\"oid\": 3, \"type\": \"chassis\", \"parents\": [1,\ntrue]}"),
            "f.json:7: not a whole number from 0 to 4294967295");
  EXPECT_EQ(ObjectFailure(R"({"oid": 3, "type": "chassis", "status": 256, "parents": [1]})"),
            "f.json:6: not a whole number from 0 to 255");
  EXPECT_EQ(ObjectFailure(R"({"oid": 3, "type": "chassis", "status": null, "parents": [1]})"),
            "f.json:6: not a whole number from 0 to 255");
  EXPECT_EQ(ObjectFailure(R"({"oid": 3, "type": "chassis", "parents": [1], "fields": []})"),
            "f.json:6: \"fields\" takes an object");
}

TEST(StoreFile, NumbersOutsideTheirFieldAreRefused) {
  const struct {
    const char* type;
    const char* field;
    const char* smallest;
    const char* largest;
    const char* below;
    const char* above;
  } cases[] = {
      {"intrusion", "state", "0", "255", "-1", "256"},
      {"powerSupply", "state", "0", "65535", "-1", "65536"},
      {"memoryDevice", "speed", "0", "4294967295", "-1", "4294967296"},
      {"networkAdapter", "partitionEnabled", "-32768", "32767", "-32769", "32768"},
      {"fanProbe", "currentReading", "-2147483648", "2147483647", "-2147483649", "2147483648"},
      {"powerConsumption", "peakWattsTime", "-9223372036854775808", "9223372036854775807",
       "-9223372036854775809", "9223372036854775808"},
      {"fru", "manufacturingDate", "0", "18446744073709551615", "-1", "18446744073709551616"},
      {"bios", "characteristics", "0", "18446744073709551615", "-1", "18446744073709551616"},
  };
  for (const auto& c : cases) {
    const std::string field = std::string("\"") + c.field + "\"";
    const std::string sentence =
        "f.json:6: " + field + " takes a whole number from " + c.smallest + " to " + c.largest;
    for (const char* value : {c.smallest, c.largest}) {
      EXPECT_EQ(FieldFailure(c.type, field + ": " + value), "no failure") << field << value;
    }
    for (const char* value : {c.below, c.above, "1.5", "1e3", "\"1\"", "true", "null", "[1]"}) {
      EXPECT_EQ(FieldFailure(c.type, field + ": " + value), sentence) << value;
    }
  }
}

TEST(StoreFile, OtherValuesThanTextsAreRefusedForATextField) {
  for (const char* value : {"1", "null", "true", "[\"x\"]", "{}"}) {
    EXPECT_EQ(FieldFailure("bios", std::string("\"version\": ") + value),
              "f.json:6: \"version\" takes a text");
  }
}

TEST(StoreFile, ANulInATextIsRefused) {
  EXPECT_EQ(FieldFailure("bios", R"("version": "1\u00002")"),
            "f.json:6: the text of version contains a NUL character");
}

TEST(StoreFile, ANameThatStandsTwiceIsRefused) {
  EXPECT_EQ(FieldFailure("bios", "\"version\": \"1\",\n\"version\": \"2\""),
            "f.json:7: \"version\" stands twice");
  EXPECT_EQ(ObjectFailure(R"({"oid": 3, "oid": 4, "type": "chassis", "parents": [1]})"),
            "f.json:6: \"oid\" stands twice");
}

TEST(StoreFile, FieldsThatShareBytesAreNotGivenTogether) {
  EXPECT_EQ(FieldFailure("voltageProbe", R"("currentReading": 500, "discreteState": 1)"),
            "f.json:6: \"discreteState\" stands in the same bytes as \"currentReading\": give one "
            "of them");
}

TEST(StoreFile, WhatMakesNoStoreIsRefusedWithTheLineOfTheObject) {
  EXPECT_EQ(ObjectFailure("\n{\"oid\": 2, \"type\": \"bios\", \"parents\": [1]}"),
            "f.json:7: OID 2 is already taken");
  EXPECT_EQ(ObjectFailure("\n{\"oid\": 3, \"type\": \"bios\", \"parents\": [9]}"),
            "f.json:7: the parent 9 of object 3 does not exist");
  EXPECT_EQ(ObjectFailure("\n{\"oid\": 3, \"type\": \"bios\"}"),
            "f.json:7: object 3 has no parent");
}

TEST(StoreFile, TheRecordsOfALogAreReadInTheirOrder) {
  const auto snapshot = ParseStoreFile(WithObjects(R"({"oid": 3, "type": "eventLog", "parents": [2],
"records": [{"time": -7, "severity": "critical", "text": "\u00e4"},
            {"time": 9223372036854775807, "severity": 9, "text": ""}, {"text": "c"}]})"),
                                       "f.json");
  EXPECT_EQ(
      snapshot->Find(3)->records,
      (std::vector<LogRecord>{{-7, 4, u"\u00e4"}, {9223372036854775807, 9, u""}, {0, 1, u"c"}}));
}

TEST(StoreFile, RecordsOfAnotherShapeAreRefused) {
  const auto failure = [](const std::string& record) {
    return ObjectFailure(R"({"oid": 3, "type": "eventLog", "parents": [2],)"
                         "\n\"records\": [" +
                         record + "]}");
  };
  EXPECT_EQ(failure(R"({"time": 9223372036854775808, "text": "a"})"),
            "f.json:7: \"time\" takes whole seconds since 1970-01-01 UTC");
  EXPECT_EQ(failure(R"({"time": "now", "text": "a"})"),
            "f.json:7: \"time\" takes whole seconds since 1970-01-01 UTC");
  EXPECT_NE(failure(R"({"time": 1})"), "no failure");
  EXPECT_NE(failure(R"({"text": "a", "words": 1})"), "no failure");
  EXPECT_NE(failure(R"({"text": "a", "severity": "grave"})"), "no failure");
  EXPECT_EQ(failure(R"({"text": "a\u0000b"})"),
            "f.json:6: the text of a record contains a NUL character");
}

TEST(StoreFile, OnlyALogHasRecords) {
  EXPECT_EQ(
      ObjectFailure(R"({"oid": 3, "type": "bios", "parents": [2], "records": [{"text": "a"}]})"),
      "f.json:6: a bios has no records");
}

TEST(StoreFile, DeepNestingIsRefusedAndDoesNotExhaustTheStack) {
  EXPECT_EQ(FailureOf(std::string(1000000, '[')), "f.json:1: values are nested too deep");
  std::string objects;
  for (int i = 0; i < 100000; ++i) objects += "{\"a\":";
  EXPECT_EQ(FailureOf(objects), "f.json:1: values are nested too deep");
}

TEST(StoreFile, AnObjectOfCountlessNamesIsRefused) {
  std::string names = "\"a\": 0";
  for (int i = 0; i < 100000; ++i) names += ", \"a" + std::to_string(i) + "\": 0";
  EXPECT_EQ(FailureOf("{" + names + "}"), "f.json:1: an object of too many names");
}

TEST(StoreFile, CountlessValuesAreRefused) {
  std::string parents = "1";
  for (int i = 0; i < 1000000; ++i) parents += ",1";
  EXPECT_EQ(ObjectFailure(R"({"oid": 3, "type": "slot", "parents": [)" + parents + "]}"),
            "f.json:6: more values than any store has");
}

TEST(StoreFile, LongAndUnprintableNamesMakeOneShortSentence) {
  const std::string sentence = FieldFailure("bios", "\"" + std::string(5000, 'x') + "\": 1");
  EXPECT_EQ(sentence, "f.json:6: a bios has no field \"" + std::string(60, 'x') + "...\"");
  EXPECT_EQ(FieldFailure("bios", "\"a\\nb\": 1"), "f.json:6: a bios has no field \"a\\nb\"");
}

TEST(StoreFile, FilesThatCannotBeReadAreToldByName) {
  const testing::TemporaryFolder folder;
  const auto failure = [](const std::filesystem::path& path) -> std::string {
    try {
      LoadStoreFile(path);
    } catch (const StoreError& error) {
      return error.what();
    }
    return "no failure";
  };
  const std::string missing = (folder.Path() / "missing.json").string();
  EXPECT_EQ(failure(missing), missing + ": no such file");
  EXPECT_EQ(failure(folder.Path()), folder.Path().string() + ": not a regular file");
  const auto broken = folder.Write("broken.json", "{\n");
  EXPECT_EQ(failure(broken).substr(0, broken.string().size() + 4), broken.string() + ":1: ");
}

}  // namespace
}  // namespace tqcim::store
