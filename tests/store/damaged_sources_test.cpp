// Sources that are damaged, or made to do damage: each is refused in one sentence that names file
// and place, and the store that was in service goes on serving.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "platform/libraries.h"
#include "store/store_control.h"
#include "tests/store/raw_bytes.h"
#include "tests/store/smbios_bytes.h"
#include "tests/support/temporary_folder.h"

namespace tqcim::store {
namespace {

using testing::ByteVector;
using testing::Dump64;
using testing::EntryPoint32;
using testing::Joined;
using testing::kEndOfTable;
using testing::U32;
using testing::WithStrings;

class DamagedSource : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(TQStoreOpen("sample", nullptr, 0), 0); }

  /// The sentence with which the file is refused, from the file's name on; what was in service must
  /// still be.
  std::string RefusalOf(const std::string& kind, const char* name, std::string_view contents) {
    const std::string path = folder_.Write(name, contents).string();
    char message[1024] = "";
    EXPECT_NE(TQStoreOpen((kind + ":" + path).c_str(), message, sizeof(message)), 0);
    EXPECT_EQ(NameInService(), "Tessera 2200");
    const std::string sentence = message;
    EXPECT_EQ(sentence.substr(0, path.size()), path);
    EXPECT_TRUE(std::all_of(sentence.begin() + static_cast<ptrdiff_t>(path.size()), sentence.end(),
                            [](char c) { return c >= ' ' && c <= '~'; }))
        << sentence;
    const size_t folder = path.size() - std::string(name).size();
    return sentence.substr(std::min(folder, sentence.size()));
  }

  std::string TableRefusal(const ByteVector& dump) {
    return RefusalOf("firmware-table", "f.bin", testing::TextOf(dump));
  }
  std::string FileRefusal(const std::string& contents) {
    return RefusalOf("store-file", "f.json", contents);
  }
  /// The refusal of a store of a system, a chassis and these objects, which begin on line 4.
  std::string ObjectRefusal(const std::string& objects) {
    return FileRefusal(WithObjects(objects));
  }

  static std::string WithObjects(const std::string& objects) {
    return R"({"format": "tqcim-store", "version": 1, "objects": [
{"oid": 1, "type": "system"},
{"oid": 2, "type": "chassis", "parents": [1]},
)" + objects +
           "\n]}";
  }

  /// So many objects below the main chassis, each on a line of its own.
  static std::string Children(uint32_t count) {
    std::string objects;
    for (uint32_t i = 0; i < count; ++i) {
      objects += (i == 0 ? "" : ",\n") + (R"({"oid": )" + std::to_string(i + 3)) +
                 R"(, "type": "slot", "parents": [2]})";
    }
    return objects;
  }

  /// The name of the main chassis, which is that of the sample server.
  static std::string NameInService() {
    uint32_t oid = 3;
    void* description = SMILGetObjByOID(&oid);
    if (description == nullptr) return "(nothing)";
    char* text = SMILDOGetByOffsetUTF8Str(description, U32(description, 40));
    const std::string name = text == nullptr ? "(null)" : text;
    SMILFreeGeneric(text);
    SMILFreeGeneric(description);
    return name;
  }

  const testing::TemporaryFolder folder_;
  const ByteVector table_ = Joined({WithStrings({1, 6, 1, 0, 1, 2}, {"Vorn", "T"}), kEndOfTable});
};

TEST_F(DamagedSource, ATableThatIsCutOffAnywhere) {
  const auto length = static_cast<uint16_t>(table_.size());
  for (const ByteVector& whole : {Dump64(table_), Joined({EntryPoint32(length, 2), table_})}) {
    for (size_t size = 0; size < whole.size(); ++size) {
      TableRefusal(ByteVector(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(size)));
    }
  }
}

TEST_F(DamagedSource, AChecksumThatIsWrong) {
  ByteVector dump = Dump64(table_);
  dump[5] ^= 1;
  EXPECT_EQ(TableRefusal(dump), "f.bin: byte 0x0: the entry point's checksum is wrong");
  dump = Joined({EntryPoint32(static_cast<uint16_t>(table_.size()), 2), table_});
  dump[4] ^= 1;
  EXPECT_EQ(TableRefusal(dump), "f.bin: byte 0x0: the entry point's checksum is wrong");
  dump[4] ^= 1;
  ++dump[0x15];
  --dump[4];
  EXPECT_EQ(TableRefusal(dump), "f.bin: byte 0x10: the intermediate checksum is wrong");
}

TEST_F(DamagedSource, AStructureShorterThanItsHeader) {
  for (const uint8_t length : ByteVector{0, 1, 2, 3}) {
    ByteVector dump = Dump64(table_);
    dump[0x21] = length;
    EXPECT_EQ(TableRefusal(dump),
              "f.bin: byte 0x20: structure 0 can't have a length of " + std::to_string(length));
  }
}

TEST_F(DamagedSource, StringsWithoutTheirEnd) {
  const ByteVector dump = Dump64({1, 6, 1, 0, 1, 2, 'V', 'o', 'r', 'n', 0, 'T'});
  EXPECT_EQ(TableRefusal(dump), "f.bin: byte 0x20: structure 0 reaches past the end of the table");
}

TEST_F(DamagedSource, ATextThatIsGivenAsAnOffset) {
  EXPECT_EQ(ObjectRefusal(R"({"oid": 3, "type": "bios", "parents": [2],
"fields": {"version": 4294967295}})"),
            "f.json:5: \"version\" takes a text");
}

TEST_F(DamagedSource, ChildrenPastTheLastPosition) {
  EXPECT_EQ(ObjectRefusal(Children(65537)),
            "f.json:65540: object 2 has more than 65536 children of type 228");
  const auto path = folder_.Write("most.json", WithObjects(Children(65535)));
  ASSERT_EQ(TQStoreOpen(("store-file:" + path.string()).c_str(), nullptr, 0), 0);
  uint32_t chassis = 2;
  void* slots = SMILListChildOIDByType(&chassis, 228);
  EXPECT_EQ(U32(slots, 0), 65535U);
  EXPECT_EQ(U32(slots, 4 * 65535), 65537U);
  SMILFreeGeneric(slots);
}

TEST_F(DamagedSource, ParentsThatLeadInACircle) {
  EXPECT_EQ(ObjectRefusal(R"({"oid": 3, "type": "bios", "parents": [2]},
{"oid": 4, "type": "slot", "parents": [2, 6]},
{"oid": 5, "type": "slot", "parents": [4]},
{"oid": 6, "type": "slot", "parents": [5]})"),
            "f.json:5: the parents of object 4 lead in a circle");
  EXPECT_EQ(ObjectRefusal(R"({"oid": 3, "type": "slot", "parents": [3]})"),
            "f.json:4: the parents of object 3 lead in a circle");
  // A long way round, too, which takes no stack.
  std::string chain = R"({"oid": 3, "type": "slot", "parents": [20002]})";
  for (uint32_t oid = 4; oid <= 20002; ++oid) {
    chain += ",\n{\"oid\": " + std::to_string(oid) + R"(, "type": "slot", "parents": [)" +
             std::to_string(oid - 1) + "]}";
  }
  EXPECT_EQ(ObjectRefusal(chain), "f.json:4: the parents of object 3 lead in a circle");
}

TEST_F(DamagedSource, AnOidThatIsTaken) {
  EXPECT_EQ(ObjectRefusal(R"({"oid": 3, "type": "bios", "parents": [2]},
{"oid": 3, "type": "slot", "parents": [2]})"),
            "f.json:5: OID 3 is already taken");
}

TEST_F(DamagedSource, ValuesThatAreNestedWithoutEnd) {
  EXPECT_EQ(FileRefusal(std::string(100000, '[') + std::string(100000, ']')),
            "f.json:1: values are nested too deep");
  EXPECT_EQ(ObjectRefusal(R"({"oid": 3, "type": "bios", "parents": )" + std::string(100000, '[')),
            "f.json:4: values are nested too deep");
}

TEST_F(DamagedSource, ATextThatNoReaderCouldHold) {
  const auto refusal = [&](const std::string& text) {
    return ObjectRefusal(R"({"oid": 3, "type": "bios", "parents": [2], "fields": {"version": ")" +
                         text + "\"}}");
  };
  EXPECT_EQ(refusal("1\\u00002"), "f.json:4: the text of version contains a NUL character");
  const std::string syntax = "f.json:4: syntax error while parsing value - invalid string: ";
  EXPECT_EQ(refusal(std::string("1\0002", 3)),
            syntax + "control character U+0000 (NUL) must be escaped to \\u0000");
  EXPECT_EQ(refusal("\\ud800!"),
            syntax + "surrogate U+D800..U+DBFF must be followed by U+DC00..U+DFFF");
  EXPECT_EQ(refusal("\\udc00"), syntax + "surrogate U+DC00..U+DFFF must follow U+D800..U+DBFF");
  EXPECT_EQ(refusal("\xED\xA0\x80"), syntax + "ill-formed UTF-8 byte");
}

TEST_F(DamagedSource, ANumberPastEveryRange) {
  // The parser quotes such a number in full.
  EXPECT_EQ(ObjectRefusal("\n{\"oid\": 1e" + std::string(5000, '9') + "}"),
            "f.json:5: a number is too large");
}

TEST_F(DamagedSource, NamesThatWouldUpsetATerminal) {
  EXPECT_EQ(ObjectRefusal("{\"o\x7Fid\": 3}"),
            "f.json:4: an object of the store has no \"o\\u007fid\"");
  EXPECT_EQ(ObjectRefusal("{\"\xC2\x9B"
                          "2J\": 3}"),
            "f.json:4: an object of the store has no \"\\u009b2J\"");
}

}  // namespace
}  // namespace tqcim::store
