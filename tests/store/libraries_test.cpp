// The C interfaces as their users call them, through the libraries themselves.

#include "platform/libraries.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "embedded/samples.h"
#include "store/store_control.h"
#include "tests/store/raw_bytes.h"
#include "tests/support/environment.h"
#include "tests/support/temporary_folder.h"

namespace tqcim::store {
namespace {

using testing::Oids;
using testing::TemporaryFolder;
using testing::Text;
using testing::U32;
using testing::U64;
using testing::U8;

/// The sentence of a failed opening; empty on success.
std::string Open(const std::string& source) {
  char message[512] = "not written";
  const int32_t result = TQStoreOpen(source.c_str(), message, sizeof(message));
  EXPECT_EQ(result == 0, message[0] == '\0') << message;
  return message;
}

std::vector<uint32_t> Children(uint32_t parent, uint16_t type) {
  void* list = SMILListChildOIDByType(&parent, type);
  const std::vector<uint32_t> oids = Oids(list);
  SMILFreeGeneric(list);
  return oids;
}

/// The text that a field of an object points to.
std::string TextOf(uint32_t oid, size_t field) {
  void* object = SMILGetObjByOID(&oid);
  char* text = SMILDOGetByOffsetUTF8Str(object, U32(object, field));
  const std::string copy = text == nullptr ? "(null)" : text;
  SMILFreeGeneric(text);
  SMILFreeGeneric(object);
  return copy;
}

/// The object library with the sample server.
class ObjectLibrary : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(Open("sample"), ""); }
};

TEST_F(ObjectLibrary, ServesTheSampleServer) {
  EXPECT_EQ(Children(1, 17), std::vector<uint32_t>({2}));
  EXPECT_EQ(Children(2, 196), std::vector<uint32_t>({90, 91}));
  EXPECT_EQ(Children(90, 210), std::vector<uint32_t>({92}));
  EXPECT_EQ(Children(2, 210), std::vector<uint32_t>({92, 93}));
  EXPECT_EQ(Children(60, 21), std::vector<uint32_t>({50, 51}));
  EXPECT_EQ(Children(61, 23), std::vector<uint32_t>({20, 21, 22, 23, 24, 25}));
  EXPECT_EQ(TextOf(80, 40), "03/14/2024");
}

TEST_F(ObjectLibrary, AnswersNullForWhatIsNotThere) {
  uint32_t oid = 999;
  EXPECT_EQ(SMILGetObjByOID(&oid), nullptr);
  EXPECT_EQ(SMILListChildOIDByType(&oid, 17), nullptr);
  EXPECT_EQ(SMILGetObjByOID(nullptr), nullptr);
  EXPECT_EQ(SMILListChildOIDByType(nullptr, 17), nullptr);
  EXPECT_EQ(SMILDOGetByOffsetUTF8Str(nullptr, 16), nullptr);
  SMILFreeGeneric(nullptr);
}

TEST_F(ObjectLibrary, AListWithoutChildrenIsEmptyAndNotNull) {
  EXPECT_EQ(Children(2, 4711), std::vector<uint32_t>());
}

TEST_F(ObjectLibrary, LeavesTheCallersOidAsItIs) {
  uint32_t oid = 2;
  SMILFreeGeneric(SMILGetObjByOID(&oid));
  SMILFreeGeneric(SMILListChildOIDByType(&oid, 32));
  EXPECT_EQ(oid, 2U);
}

TEST_F(ObjectLibrary, OpensAStoreFileInPlaceOfWhatIsInService) {
  const TemporaryFolder folder;
  const auto path = folder.Write("minimal.json", embedded::samples::kFiles[1].contents);
  EXPECT_EQ(Open("store-file:" + path.string()), "");
  EXPECT_EQ(TextOf(3, 40), "Tessera 1100");
}

TEST_F(ObjectLibrary, KeepsTheStoreInServiceWhenASourceFails) {
  const TemporaryFolder folder;
  const std::string missing = (folder.Path() / "missing").string();
  const std::string broken = folder.Write("broken.json", "{\n}").string();
  EXPECT_EQ(Open("store-file:" + missing), missing + ": no such file");
  EXPECT_EQ(Open("store-file:" + broken), broken + ":1: \"format\" is missing");
  EXPECT_EQ(Open("firmware-table:" + missing), missing + ": no such file");
  EXPECT_EQ(Open("tape"),
            "there is no source \"tape\"; there are sample, store-file:PATH, firmware-table:PATH "
            "and firmware");
  EXPECT_EQ(
      Open("sample "),
      "there is no source \"sample \"; there are sample, store-file:PATH, firmware-table:PATH "
      "and firmware")
      << "a name is exact";
  EXPECT_EQ(TextOf(3, 40), "Tessera 2200");
}

TEST_F(ObjectLibrary, NullStandsForTheConfiguredSource) {
  const TemporaryFolder folder;
  const auto path = folder.Write("minimal.json", embedded::samples::kFiles[1].contents);
  testing::SetEnvironment("TQCIM_SOURCE", ("store-file:" + path.string()).c_str());
  EXPECT_EQ(TQStoreOpen(nullptr, nullptr, 0), 0);
  EXPECT_EQ(TextOf(3, 40), "Tessera 1100");
  testing::SetEnvironment("TQCIM_SOURCE", "tape");
  EXPECT_NE(TQStoreOpen(nullptr, nullptr, 0), 0);
  testing::SetEnvironment("TQCIM_SOURCE", nullptr);
  EXPECT_EQ(TextOf(3, 40), "Tessera 1100");
}

TEST_F(ObjectLibrary, CutsTheSentenceAtTheRoomThatThereIs) {
  char message[12] = "###########";
  EXPECT_NE(TQStoreOpen("tape", message, 9), 0);
  EXPECT_STREQ(message, "there is");
  EXPECT_EQ(message[9], '#');
  EXPECT_NE(TQStoreOpen("tape", message, 1), 0);
  EXPECT_STREQ(message, "");
  message[0] = '#';
  EXPECT_NE(TQStoreOpen("tape", message, 0), 0);
  EXPECT_EQ(message[0], '#');
  EXPECT_NE(TQStoreOpen("tape", nullptr, 100), 0);
}

TEST_F(ObjectLibrary, TheSentenceIsWholeWhereItJustFits) {
  const std::string sentence = Open("tape");
  const auto length = static_cast<uint32_t>(sentence.size());
  std::string message(length + 2, '#');
  EXPECT_NE(TQStoreOpen("tape", message.data(), length + 1), 0);
  EXPECT_EQ(message, sentence + '\0' + '#');
  message.assign(length + 1, '#');
  EXPECT_NE(TQStoreOpen("tape", message.data(), length), 0);
  EXPECT_EQ(message, sentence.substr(0, length - 1) + '\0' + '#') << "one too long";
  message.assign(length + 9, '#');
  EXPECT_NE(TQStoreOpen("tape", message.data(), length + 9), 0);
  EXPECT_EQ(message, sentence + '\0' + "########") << "what isn't needed stays";
}

TEST_F(ObjectLibrary, NeverCutsACharacterOfTheSentence) {
  // The sentence begins with the path.
  char message[8];
  EXPECT_NE(TQStoreOpen("store-file:a\xE2\x82\xAC\xE2\x82\xAC", message, 6), 0);
  EXPECT_STREQ(message, "a\xE2\x82\xAC");
  EXPECT_NE(TQStoreOpen("store-file:a\xC3\xBF\xC3\xBF", message, 5), 0);
  EXPECT_STREQ(message, "a\xC3\xBF");
  EXPECT_NE(TQStoreOpen("store-file:\xE2\x82\xAC", message, 2), 0);
  EXPECT_STREQ(message, "");
}

TEST(SupportLibrary, MemoryIsHandedOutAndFreed) {
  void* block = SMAllocMem(26);
  ASSERT_NE(block, nullptr);
  std::memset(block, 0xAA, 26);
  SMFreeMem(block);
  void* empty = SMAllocMem(0);
  EXPECT_NE(empty, nullptr) << "null means that there is no memory";
  SMFreeMem(empty);
  SMFreeMem(nullptr);
}

TEST(SupportLibrary, TextsAreComparedByTheirUnits) {
  EXPECT_EQ(SMUCS2Strcmp(OLESTR(""), OLESTR("")), 0);
  EXPECT_EQ(SMUCS2Strcmp(OLESTR("PS1"), OLESTR("PS1")), 0);
  EXPECT_LT(SMUCS2Strcmp(OLESTR("PS1"), OLESTR("PS2")), 0);
  EXPECT_GT(SMUCS2Strcmp(OLESTR("PS2"), OLESTR("PS1")), 0);
  EXPECT_LT(SMUCS2Strcmp(OLESTR("PS"), OLESTR("PS1")), 0);
  EXPECT_GT(SMUCS2Strcmp(OLESTR("PS1"), OLESTR("PS")), 0);
  EXPECT_GT(SMUCS2Strcmp(OLESTR("a"), OLESTR("A")), 0) << "case counts";
  EXPECT_GT(SMUCS2Strcmp(OLESTR("\xFFFD"), OLESTR("A")), 0) << "units have no sign";
}

/// What a conversion leaves in a buffer of `room` bytes, with its result and size.
struct Converted {
  int32_t result;
  uint32_t size;
  std::basic_string<OLECHAR> text;
  bool operator==(const Converted&) const = default;
};

Converted Convert(const char* source, uint32_t room) {
  OLECHAR buffer[16];
  for (OLECHAR& unit : buffer) unit = OLECHAR{'#'};
  uint32_t size = room;
  const int32_t result = SMUTF8StrToUCS2Str(buffer, &size, source);
  for (size_t i = (room + 1) / sizeof(OLECHAR); i < 16; ++i) EXPECT_EQ(buffer[i], OLECHAR{'#'});
  return {result, size, buffer[0] == OLECHAR{'#'} ? OLESTR("#") : buffer};
}

TEST(SupportLibrary, Utf8BecomesUcs2) {
  EXPECT_EQ(Convert("SERVER", 32), (Converted{0, 14, OLESTR("SERVER")}));
  EXPECT_EQ(Convert("", 32), (Converted{0, 2, OLESTR("")}));
  EXPECT_EQ(Convert("\xC3\xA4\xE2\x82\xAC", 32), (Converted{0, 6, OLESTR("\u00E4\u20AC")}));
  EXPECT_EQ(Convert("abc", 8), (Converted{0, 8, OLESTR("abc")})) << "just fits";
}

TEST(SupportLibrary, ALongerTextIsCutAtTheBufferAndNeverPastIt) {
  EXPECT_EQ(Convert("abcd", 8), (Converted{1, 8, OLESTR("abc")}));
  EXPECT_EQ(Convert("abcd", 9), (Converted{1, 8, OLESTR("abc")})) << "half a unit is no room";
  EXPECT_EQ(Convert("a", 2), (Converted{1, 2, OLESTR("")}));
  EXPECT_EQ(Convert("ab\xF0\x9F\x98\x80", 8), (Converted{1, 6, OLESTR("ab")}))
      << "a surrogate pair is not cut";
}

TEST(SupportLibrary, ACutTakesAwayTheFirstHalfOfASurrogatePairAndNothingElse) {
  EXPECT_EQ(Convert("a\xF0\x90\x80\x80", 6), (Converted{1, 4, OLESTR("a")})) << "D800";
  EXPECT_EQ(Convert("a\xF4\x8F\xBF\xBF", 6), (Converted{1, 4, OLESTR("a")})) << "DBFF";
  EXPECT_EQ(Convert("\xF0\x9F\x98\x80", 4), (Converted{1, 2, OLESTR("")}));
  EXPECT_EQ(Convert("\xED\x9F\xBFz", 4), (Converted{1, 4, OLESTR("\xD7FF")}));
  EXPECT_EQ(Convert("\xF0\x90\x80\x80z", 6), (Converted{1, 6, OLESTR("\xD800\xDC00")}));
}

TEST(SupportLibrary, WhatCannotBeConvertedLeavesAnEmptyText) {
  EXPECT_EQ(Convert("a\xFF", 32), (Converted{1, 2, OLESTR("")}));
  EXPECT_EQ(Convert(nullptr, 32), (Converted{1, 2, OLESTR("")}));
  EXPECT_EQ(Convert("a", 1).result, 1) << "no room for the end";
  OLECHAR unit = OLECHAR{'#'};
  EXPECT_EQ(SMUTF8StrToUCS2Str(&unit, nullptr, "a"), 1);
  uint32_t size = 2;
  EXPECT_EQ(SMUTF8StrToUCS2Str(nullptr, &size, "a"), 1);
}

TEST(SupportLibrary, AMissingIniFileGivesTheDefault) {
  uint16_t value = 0xEEEE;
  uint32_t size = 2;
  const uint16_t standard = 5;
  EXPECT_EQ(SMReadINIFileValue("s", "k", 4, &value, &size, &standard, 2, "no-such.ini", 1), 0);
  EXPECT_EQ(value, 5);
  EXPECT_EQ(size, 2U);
  value = 9;
  EXPECT_EQ(SMReadINIFileValue("s", "k", 4, &value, &size, &value, 2, "no-such.ini", 1), 0);
  EXPECT_EQ(value, 9) << "the default may be the value itself";
  uint16_t room[2] = {};
  size = 4;
  EXPECT_EQ(SMReadINIFileValue("s", "k", 4, room, &size, &standard, 2, "no-such.ini", 1), 0);
  EXPECT_EQ(size, 2U) << "as much as was written";
}

TEST(SupportLibrary, IniValuesThatCannotBeDeliveredAreRefused) {
  uint16_t value = 9;
  uint32_t size = 2;
  const uint32_t wide = 5;
  EXPECT_NE(SMReadINIFileValue("s", "k", 4, &value, &size, &wide, 4, "f.ini", 1), 0);
  EXPECT_NE(SMReadINIFileValue("s", "k", 4, &value, &size, nullptr, 0, "f.ini", 1), 0);
  EXPECT_NE(SMReadINIFileValue("s", "k", 3, &value, &size, &value, 2, "f.ini", 1), 0);
  EXPECT_NE(SMReadINIFileValue(nullptr, "k", 4, &value, &size, &value, 2, "f.ini", 1), 0);
  EXPECT_NE(SMReadINIFileValue("s", nullptr, 4, &value, &size, &value, 2, "f.ini", 1), 0);
  EXPECT_NE(SMReadINIFileValue("s", "k", 4, &value, &size, &value, 2, nullptr, 1), 0);
  EXPECT_NE(SMReadINIFileValue("s", "k", 4, nullptr, &size, &value, 2, "f.ini", 1), 0);
  EXPECT_NE(SMReadINIFileValue("s", "k", 4, &value, nullptr, &value, 2, "f.ini", 1), 0);
  size = 1;
  EXPECT_NE(SMReadINIFileValue("s", "k", 4, &value, &size, &value, 2, "f.ini", 1), 0);
  EXPECT_EQ(value, 9);
}

/// The event library with the sample server, whose logs are objects 70 and 71.
class EventLibrary : public ObjectLibrary {};

TEST_F(EventLibrary, ServesTheRecordsOfALog) {
  uint32_t log = 70;
  ASSERT_EQ(XEPGetEELRNum(&log), 10U);
  void* record = XEPGetEELR(&log, 2);
  ASSERT_NE(record, nullptr);
  EXPECT_EQ(U64(record, 0), 1779158825U) << "2026-05-19 02:47:05 UTC";
  EXPECT_EQ(U8(record, 12), 4);
  EXPECT_EQ(Text(record, 16), u"Power Supply 2: AC input lost");
  XEPFreeGeneric(record);
  log = 71;
  EXPECT_EQ(XEPGetEELRNum(&log), 3U);
}

TEST_F(EventLibrary, ARecordOfALogMayHaveNoTime) {
  uint32_t log = 70;
  void* record = XEPGetEELR(&log, 6);
  ASSERT_NE(record, nullptr);
  EXPECT_EQ(U64(record, 0), 0U);
  EXPECT_EQ(U8(record, 12), 0);
  XEPFreeGeneric(record);
}

TEST_F(EventLibrary, ThereIsNoRecordPastTheEnd) {
  uint32_t log = 70;
  EXPECT_EQ(XEPGetEELR(&log, 10), nullptr);
  EXPECT_EQ(XEPGetEELR(&log, 0xFFFFFFFF), nullptr);
}

TEST_F(EventLibrary, WhatIsNoLogHasNoRecords) {
  for (uint32_t oid : {2U, 20U, 999999U}) {
    EXPECT_EQ(XEPGetEELRNum(&oid), 0U) << oid;
    EXPECT_EQ(XEPGetEELR(&oid, 0), nullptr) << oid;
  }
  EXPECT_EQ(XEPGetEELRNum(nullptr), 0U);
  EXPECT_EQ(XEPGetEELR(nullptr, 0), nullptr);
  XEPFreeGeneric(nullptr);
}

}  // namespace
}  // namespace tqcim::store
