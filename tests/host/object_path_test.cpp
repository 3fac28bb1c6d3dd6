// Object paths are read with their quoting, and what is wrong with one is told with its place.
#include "host/object_path.h"

#include <gtest/gtest.h>

namespace tqcim::host {
namespace {

struct Row {
  const char* text;
  const char* server;
  const char* name_space;
  const char* class_name;
  std::vector<PathKey> keys;
  bool singleton = false;
};

TEST(ObjectPath, IsReadIntoItsParts) {
  const Row rows[] = {
      {"VORN_System", "", "", "VORN_System", {}},
      {"CIM_Processor.DeviceID=\"1\"", "", "", "CIM_Processor", {{"DeviceID", "1"}}},
      {"CIM_Processor.DeviceID='1'", "", "", "CIM_Processor", {{"DeviceID", "1"}}},
      {"\\\\.\\root\\cimv2\\vorn:C.a=\"1\",b=5",
       ".",
       "root\\cimv2\\vorn",
       "C",
       {{"a", "1"}, {"b", int64_t{5}}}},
      {"//HOST/root/cimv2:C.a=-7", "HOST", "root\\cimv2", "C", {{"a", int64_t{-7}}}},
      {"root\\cimv2:C.k=\"x\"", "", "root\\cimv2", "C", {{"k", "x"}}},
      {"\\root\\cimv2:C", "", "root\\cimv2", "C", {}},
      {"root\\cimv2\\vorn", "", "root\\cimv2\\vorn", "", {}},
      {"\\\\.\\root", ".", "root", "", {}},
      {"ns:C", "", "ns", "C", {}},
      {"C=@", "", "", "C", {}, true},
      {"C=\"x\"", "", "", "C", {{"", "x"}}},
      {"C=5", "", "", "C", {{"", int64_t{5}}}},
      {"C.k=TRUE,l=false", "", "", "C", {{"k", true}, {"l", false}}},
      {"C.k=\"a\\\"b\\\\c\\'d\"", "", "", "C", {{"k", "a\"b\\c'd"}}},
      {"C.k='a\"b'", "", "", "C", {{"k", "a\"b"}}},
      {"C.k=\"a'b\"", "", "", "C", {{"k", "a'b"}}},
      {"C.k=\"\"", "", "", "C", {{"k", ""}}},
      {"C.k=\"a,b=c.d:e/f\"", "", "", "C", {{"k", "a,b=c.d:e/f"}}},
      {"C.k = \"x\" ,\tj = 2", "", "", "C", {{"k", "x"}, {"j", int64_t{2}}}},
      {"C.k=9223372036854775807", "", "", "C", {{"k", INT64_MAX}}},
      {"C.k=9223372036854775808", "", "", "C", {{"k", uint64_t{9223372036854775808u}}}},
      {"C.k=18446744073709551615", "", "", "C", {{"k", UINT64_MAX}}},
      {"C.k=-9223372036854775808", "", "", "C", {{"k", INT64_MIN}}},
      {"C.k=+5", "", "", "C", {{"k", int64_t{5}}}},
      {"Kl\xC3\xA4sse.Schl\xC3\xBCssel=\"\xE4\xB8\x96\"",
       "",
       "",
       "Kl\xC3\xA4sse",
       {{"Schl\xC3\xBCssel", "\xE4\xB8\x96"}}},
  };
  for (const Row& row : rows) {
    const ObjectPath path = ParseObjectPath(row.text);
    EXPECT_EQ(row.server, path.server) << row.text;
    EXPECT_EQ(row.name_space, path.Namespace()) << row.text;
    EXPECT_EQ(row.class_name, path.class_name) << row.text;
    EXPECT_TRUE(row.keys == path.keys) << row.text;
    EXPECT_EQ(row.singleton, path.singleton) << row.text;
    EXPECT_EQ(row.singleton || !row.keys.empty(), path.NamesInstance()) << row.text;
  }
}

TEST(ObjectPath, ErrorsHaveTheirPlaceAndReason) {
  struct Bad {
    const char* text;
    size_t position;
    const char* reason;
  };
  const char* const no_value =
      "the value of the key should stand here: text in quotes, a number, TRUE or FALSE";
  const Bad rows[] = {
      {"", 0, "it is empty"},
      {"5C", 0, "the name of a class should stand here"},
      {".k=1", 0, "the name of a class should stand here"},
      {"C.", 2, "the name of a key should stand here"},
      {"C.=\"x\"", 2, "the name of a key should stand here"},
      {"C.k", 3, "'=' should follow the name of the key"},
      {"C.k=", 4, no_value},
      {"C=", 2, no_value},
      {"C.k=@", 4, no_value},
      {"C.k=yes", 4, no_value},
      {"C.k=\"x", 4, "the quotes are not closed"},
      {"C.k=\"x'", 4, "the quotes are not closed"},
      {"C.k=\"x\\", 6, "a backslash in quotes is written twice"},
      {"C.k=\"a\\d\"", 6, "a backslash in quotes is written twice"},
      {"C.k=\"x\",", 8, "the name of a key should stand here"},
      {"C.k=\"x\"junk", 7, "it should end here"},
      {"C.k=5x", 5, "the number should end here"},
      {"C.k=1.5", 5, "the number should end here"},
      {"C.k=18446744073709551616", 4, "a number of at most 64 bits should stand here"},
      {"C.k=-", 4, "a number of at most 64 bits should stand here"},
      {"C=@x", 3, "it should end here"},
      {"C D", 2, "it should end here"},
      {"C.k=1:D.l=2", 5, "it should end here"},
      {"root\\cimv2:", 11, "a class should follow the colon"},
      {"\\\\", 2, "the name of a server should stand here"},
      {"\\\\.", 3, "a namespace should follow the server"},
      {"\\\\.:C", 3, "a namespace should follow the server"},
      {"\\\\.\\", 4, "the name of a namespace should stand here"},
      {"root\\\\cimv2:C", 5, "the name of a namespace should stand here"},
      {":C", 0, "the name of a namespace should stand here"},
      {"C.\xC3\xA4\xE4\xB8\x96\xF0\x9F\x98\x80='x", 6, "the quotes are not closed"},
  };
  for (const Bad& bad : rows) {
    try {
      ParseObjectPath(bad.text);
      ADD_FAILURE() << bad.text << " was read";
    } catch (const PathError& error) {
      EXPECT_EQ(bad.position, error.position()) << bad.text;
      EXPECT_STREQ(bad.reason, error.what()) << bad.text;
    }
  }
}

TEST(ObjectPath, IsWrittenInOneForm) {
  const std::pair<const char*, const char*> forms[] = {
      {"VORN_System", "VORN_System"},
      {"C.k='a\"b\\\\c'", "C.k=\"a\\\"b\\\\c\""},
      {"C.k = 'x' , j = +2", "C.k=\"x\",j=2"},
      {"C=@", "C=@"},
      {"C = 'x'", "C=\"x\""},
      {"C.k=true", "C.k=TRUE"},
      {"C.k=18446744073709551615", "C.k=18446744073709551615"},
  };
  for (const auto& [text, written] : forms) {
    EXPECT_EQ(written, RelativeText(ParseObjectPath(text)));
    EXPECT_EQ(written, RelativeText(ParseObjectPath(written)));
  }
}

TEST(ObjectPath, LongTextsAreRead) {
  const std::string value(1'000'000, 'x');
  EXPECT_TRUE((PathKey{"k", value}) == ParseObjectPath("C.k=\"" + value + "\"").keys.at(0));
  std::string many = "C.k=1";
  for (int i = 0; i < 10'000; ++i) many += ",k=1";
  EXPECT_EQ(10'001u, ParseObjectPath(many).keys.size());
}

}  // namespace
}  // namespace tqcim::host
