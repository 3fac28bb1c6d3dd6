#include "tests/classes/chassis_sensors/event_log_test.h"

#include <limits>

#include "tests/support/fault.h"

namespace tqcim::testing {
namespace {

TEST_P(EventLogTest, PutsItsPropertiesInOrder) {
  AddRecord(u"Fan 1 RPM is below 600").I64(0, kRecordTime).U8(12, 4);
  const Puts record = {{"EventTime", VT_BSTR, CIM_DATETIME, "20150314092653.000000+0.0"},
                       {"RecordNumber", VT_I4, 0, "3"},
                       {"LogRecord", VT_BSTR, 0, "Fan 1 RPM is below 600"},
                       {"Status", VT_BSTR, 0, "Error"}};
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(0, GetRecord(3));
  ASSERT_EQ(5u, DeliveredCount());
  EXPECT_EQ(record, Delivered(3));
  EXPECT_EQ(record, Delivered(4));
}

TEST_P(EventLogTest, EnumeratesEveryRecordByItsNumber) {
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"Record 0", "Record 1", "Record 2"}), Records());
  EXPECT_EQ((Texts{"0", "1", "2"}), Values("RecordNumber"));
}

TEST_P(EventLogTest, ARecordWithoutATimeHasNoEventTime) {
  EnumerateClass();
  EXPECT_EQ((Puts{{"RecordNumber", VT_I4, 0, "0"},
                  {"LogRecord", VT_BSTR, 0, "Record 0"},
                  {"Status", VT_BSTR, 0, "Other"}}),
            Delivered(0));
}

TEST_P(EventLogTest, ATimeThatIsNoDateGivesNoEventTime) {
  constexpr int64_t kYear10000 = 253402300800;
  for (const int64_t time :
       {std::numeric_limits<int64_t>::max(), std::numeric_limits<int64_t>::min(), kYear10000}) {
    AddRecord(u"timeless").I64(0, time).U8(12, 2);
  }
  EXPECT_EQ(0, EnumerateClass());
  ASSERT_EQ(6u, DeliveredCount());
  for (size_t i = 3; i < 6; ++i) {
    EXPECT_EQ((Puts{{"RecordNumber", VT_I4, 0, std::to_string(i)},
                    {"LogRecord", VT_BSTR, 0, "timeless"},
                    {"Status", VT_BSTR, 0, "OK"}}),
              Delivered(i));
  }
}

TEST_P(EventLogTest, WithoutMemoryForItARecordHasNoEventTime) {
  AddRecord(u"Record 3").I64(0, kRecordTime).U8(12, 2);
  store.FailAllocations();
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Puts{{"RecordNumber", VT_I4, 0, "3"},
                  {"LogRecord", VT_BSTR, 0, "Record 3"},
                  {"Status", VT_BSTR, 0, "OK"}}),
            Delivered(3));
}

TEST_P(EventLogTest, EventTimeIsLocalTimeWithItsOffsetCutToFourCharacters) {
  constexpr std::pair<const char*, const char*> kRows[] = {
      {"UTC0", "20150314092653.000000+0.0"},  {"AAA-1", "20150314102653.000000+60."},
      {"BBB-2", "20150314112653.000000+120"}, {"CCC-5:30", "20150314145653.000000+330"},
      {"DDD1", "20150314082653.000000-60."},  {"EEE5", "20150314042653.000000-300"}};
  AddRecord(u"Record 3").I64(0, kRecordTime);
  for (const auto& [zone, text] : kRows) {
    const TimeZone timeZone(zone);
    GetRecord(3);
    EnumerateClass();
    EXPECT_EQ(text, Value(DeliveredCount() - 1, "EventTime")) << zone;
    EXPECT_EQ(text, Value(DeliveredCount() - 5, "EventTime")) << zone;
  }
}

TEST_P(EventLogTest, TheTimeHas64Bits) {
  AddRecord(u"Record 3").I64(0, 4294967296);
  EnumerateClass();
  EXPECT_EQ("21060207062816.000000+0.0", Value(3, "EventTime"));
}

TEST_P(EventLogTest, StatusFollowsTheSeverity) {
  constexpr std::pair<uint8_t, const char*> kTexts[] = {
      {0, "Other"}, {1, "Unknown"},    {2, "OK"},       {3, "Stressed"},
      {4, "Error"}, {5, "NonRecover"}, {7, "Stressed"}, {255, "Stressed"}};
  size_t position = 3;
  for (const auto& row : kTexts) AddRecord(u"record").U8(12, row.first);
  EnumerateClass();
  for (const auto& [severity, text] : kTexts) {
    EXPECT_EQ(text, Value(position++, "Status")) << int{severity};
  }
}

TEST_P(EventLogTest, TheTextIsCopiedCharacterByCharacter) {
  AddRecord(u"Größe \u2122");
  AddRecord(u"");
  EnumerateClass();
  EXPECT_EQ("Gr\\u00F6\\u00DFe \\u2122", Value(3, "LogRecord"));
  EXPECT_EQ("", Value(4, "LogRecord"));
}

TEST_P(EventLogTest, TheFirstLogOfTheKindIsRead) {
  AddLog(309, GetParam().otherKind);
  AddLog(308, 0);
  AddLog(307, GetParam().kind | 0x10000);
  AddLog(311, GetParam().kind);
  for (const uint32_t oid : {307, 308, 309, 311}) store.AddRecord(oid).Ucs2(16, u"another log");
  store.List(2, 31, {309, 308, 307, 310, 311});
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(0, GetRecord(1));
  EXPECT_EQ((Texts{"Record 0", "Record 1", "Record 2", "Record 1"}), Records());
}

TEST_P(EventLogTest, RecordsAreAskedForByTheIdentifierThatTheLogCarries) {
  store.Object(310).U32(4, 777);
  store.AddRecord(777).Ucs2(16, u"Record of 777");
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(0, GetRecord(0));
  EXPECT_EQ(Texts(2, "Record of 777"), Records());
}

TEST_P(EventLogTest, WithoutALogOfItsKindThereIsNothingToEnumerateAndNoneIsFound) {
  AddLog(309, GetParam().otherKind);
  store.List(2, 31, {309});
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(Hr(0x80041002), GetRecord(0));
  store.List(2, 31, {});
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(Hr(0x80041002), GetRecord(0));
  store.FailListing(2, 31);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(Hr(0x80041002), GetRecord(0));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(EventLogTest, TheSearchForTheLogEndsAtOneThatCannotBeRead) {
  AddLog(309, GetParam().otherKind);
  store.List(2, 31, {309, 310});
  store.FailRead(309);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(Hr(0x80041002), GetRecord(0));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(EventLogTest, TheSearchForTheLogEndsAfterPosition65535) {
  AddLog(309, GetParam().otherKind);
  std::vector<uint32_t> oids(65'538, 309);
  oids[65'536] = 310;
  store.ListLong(2, 31, oids);
  store.RecordCalls();
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(0u, DeliveredCount());
  // A list and a log, and their release, at each position.
  EXPECT_EQ(65'536u * 4, store.Calls().size());
  oids[65'535] = 310;
  store.ListLong(2, 31, oids);
  EXPECT_EQ(0, GetRecord(2));
  EXPECT_EQ(Texts{"Record 2"}, Records());
}

TEST_P(EventLogTest, ALogWithoutRecordsIsSuccessWithNothing) {
  store.Object(310).U32(4, 777);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(0, GetRecord(0));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(EventLogTest, ARecordThatCannotBeReadEndsTheEnumeration) {
  // The list of logs, the log, and the record 0 are read before it; the ESM log is counted, too.
  const uint32_t readsBefore = GetParam().kind == 1 ? 4 : 3;
  {
    const Fault unreadable({FaultKind::kLibraryCalls, readsBefore});
    EXPECT_EQ(0, EnumerateClass());
    EXPECT_TRUE(unreadable.FailedCall());
  }
  EXPECT_EQ(Texts{"Record 0"}, Records());
  EXPECT_EQ(1u, definition.Spawns());
}

TEST_P(EventLogTest, ARecordIsGotByItsNumber) {
  EXPECT_EQ(0, GetRecord(2));
  EXPECT_EQ(0, GetRecord(0));
  EXPECT_EQ((Texts{"Record 2", "Record 0"}), Records());
  EXPECT_EQ((Texts{"2", "0"}), Values("RecordNumber"));
}

TEST_P(EventLogTest, ANumberGivenAsATextCountsAsFarAsItIsOne) {
  for (const OLECHAR* text : {OLESTR("2"), OLESTR(" +2nd"), OLESTR("002")}) {
    EXPECT_EQ(0, Get(kName, StringKey(OLESTR("RecordNumber"), text)));
  }
  for (const OLECHAR* text : {OLESTR("last"), OLESTR("")}) {
    EXPECT_EQ(0, Get(kName, StringKey(OLESTR("RecordNumber"), text)));
  }
  EXPECT_EQ((Texts{"Record 2", "Record 2", "Record 2", "Record 0", "Record 0"}), Records());
}

TEST_P(EventLogTest, ARecordNumberPastTheEndIsSuccessWithNothing) {
  for (const int32_t number : {3, 65'535, -1}) EXPECT_EQ(0, GetRecord(number)) << number;
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(EventLogTest, WhereNoRecordIsFoundTheResultOfTheKeysReadingStands) {
  FakeKeyList keys;
  keys.Add(NumberKey(OLESTR("RecordNumber"), 3));
  keys.FailKey(0, S_FALSE);
  EXPECT_EQ(S_FALSE, Get(kName, keys));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(EventLogTest, GettingReadsTheOneRecord) {
  store.RecordCalls();
  EXPECT_EQ(0, GetRecord(2));
  EXPECT_EQ((Texts{"children 2/31", "object 310", "free", "record 310/2", "free record", "free"}),
            store.Calls());
}

TEST_P(EventLogTest, GettingReturnsTheStatusOfTheDelivery) {
  sink.KeepInstances();
  sink.Refuse(0, Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), GetRecord(0));
  EXPECT_EQ(0, GetRecord(0));
}

TEST_P(EventLogTest, GettingReturnsTheResultOfASpawnWithoutInstance) {
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, Hr(1));
  EXPECT_EQ(Hr(0x80041006), GetRecord(0));
  EXPECT_EQ(1, GetRecord(0));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_P(EventLogTest, WithoutAKeyNothingIsReadAndTheResultIsThatOfTheKeysReading) {
  store.RecordCalls();
  FakeKeyList none;
  EXPECT_EQ(0, Get(kName, none));
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys(kName));
  FakeKeyList uncountable;
  uncountable.Add(NumberKey(OLESTR("RecordNumber"), 0));
  uncountable.FailCount(Hr(0x80041008));
  EXPECT_EQ(Hr(0x80041008), Get(kName, uncountable));
  FakeKeyList unreadable;
  unreadable.Add(NumberKey(OLESTR("RecordNumber"), 0));
  unreadable.FailKey(0, Hr(0x80041001));
  EXPECT_EQ(Hr(0x80041001), Get(kName, unreadable));
  EXPECT_EQ(Texts{}, store.Calls());
  EXPECT_EQ(0u, definition.Spawns());
  // Only the POST log looks for a key by its name, and so beyond one that can't be read.
  unreadable.Add(NumberKey(OLESTR("RecordNumber"), 0));
  Get(kName, unreadable);
  EXPECT_EQ(kName == std::string_view("VORN_PostLog") ? 1u : 0u, DeliveredCount());
}

TEST_P(EventLogTest, PropertiesThatAreRefusedDoNotKeepAnInstanceBack) {
  definition.SetPutResult(Hr(0x80041002));
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(0, GetRecord(0));
  EXPECT_EQ(4u, DeliveredCount());
}

}  // namespace
}  // namespace tqcim::testing
