#include "tests/classes/chassis_sensors/event_log_test.h"
#include "tests/support/environment.h"

namespace tqcim::testing {
namespace {

INSTANTIATE_TEST_SUITE_P(VornPostLog, EventLogTest,
                         ::testing::Values(EventLogClass{"VORN_PostLog", 2, 1}));

class VornPostLogTest : public EventLogFixture {
 protected:
  VornPostLogTest() {
    AddLog(310, 2);
    store.List(2, 31, {310});
    for (const auto* text : {u"Record 0", u"Record 1", u"Record 2", u"Record 3"}) AddRecord(text);
  }
};

TEST_F(VornPostLogTest, EnumerationEndsWhereTheSinkRefusesAndReturnsThat) {
  sink.Refuse(1, Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), Enumerate("VORN_PostLog"));
  EXPECT_EQ((Texts{"Record 0", "Record 1"}), Values("LogRecord"));
}

TEST_F(VornPostLogTest, ASuccessThatIsNot0EndsNothingAndTheLastIsReturned) {
  sink.SetIndicateResult(Hr(1));
  EXPECT_EQ(1, Enumerate("VORN_PostLog"));
  EXPECT_EQ(4u, DeliveredCount());
}

TEST_F(VornPostLogTest, AnInstanceThatTheSinkKeepsDoesNotShowInTheResult) {
  sink.KeepInstances();
  EXPECT_EQ(0, Enumerate("VORN_PostLog"));
}

TEST_F(VornPostLogTest, ASpawnWithoutInstanceEndsTheEnumerationWithTheStatusOfTheLastDelivery) {
  sink.SetIndicateResult(Hr(1));
  definition.SpawnNothing(0, Hr(0x80041006));
  EXPECT_EQ(0, Enumerate("VORN_PostLog"));
  definition.SpawnNothing(2, Hr(0x80041006));
  EXPECT_EQ(1, Enumerate("VORN_PostLog"));
  definition.SpawnNothing(4, S_OK);
  EXPECT_EQ(1, Enumerate("VORN_PostLog"));
  EXPECT_EQ((Texts{"Record 0", "Record 0"}), Values("LogRecord"));
  EXPECT_EQ(5u, definition.Spawns());
}

TEST_F(VornPostLogTest, AsksForNoCountAndFreesEachRecordBeforeTheNext) {
  store.SetRecordCount(310, 1);
  store.RecordCalls();
  EXPECT_EQ(0, Enumerate("VORN_PostLog"));
  EXPECT_EQ((Texts{"children 2/31", "object 310", "free", "record 310/0", "free record",
                   "record 310/1", "free record", "record 310/2", "free record", "record 310/3",
                   "free record", "record 310/4", "free"}),
            store.Calls());
}

TEST_F(VornPostLogTest, TheCallsGrowInLineWithTheLength) {
  for (int i = 4; i < 20'000; ++i) AddRecord(u"record").I64(0, kRecordTime);
  store.RecordCalls();
  EXPECT_EQ(0, Enumerate("VORN_PostLog"));
  EXPECT_EQ(20'000u, DeliveredCount());
  // List and log, what is freed of them, and the record that is not there; the records without a
  // time; those with one, whose text is allocated and freed.
  EXPECT_EQ(5u + 4 * 2 + 19'996u * 4, store.Calls().size());
}

TEST_F(VornPostLogTest, TheEnumerationEndsAfterRecord65535) {
  for (int i = 4; i < 65'540; ++i) AddRecord(u"");
  EXPECT_EQ(0, Enumerate("VORN_PostLog"));
  ASSERT_EQ(65'536u, DeliveredCount());
  EXPECT_EQ("65535", Value(65'535, "RecordNumber"));
}

TEST_F(VornPostLogTest, TheFirstKeyNamedRecordNumberInAnyCaseCountsWhateverItsType) {
  FakeKeyList keys;
  keys.Add(NumberKey(OLESTR("Number"), 3));
  keys.Add(StringKey(OLESTR("rECORDnumber"), OLESTR("2")));
  keys.Add(NumberKey(OLESTR("RecordNumber"), 1));
  EXPECT_EQ(0, Get("VORN_PostLog", keys));
  EXPECT_EQ(0, Get("VORN_PostLog", NumberKey(OLESTR("RECORDNUMBER"), 1)));
  EXPECT_EQ((Texts{"Record 2", "Record 1"}), Values("LogRecord"));
  EXPECT_EQ((std::vector<ULONG>{0, 1}), keys.Reads());
}

TEST_F(VornPostLogTest, KeysOfOtherNamesFindNothingAndThatIsSuccess) {
  EXPECT_EQ(0, Get("VORN_PostLog", NumberKey(OLESTR("Number"), 1)));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornPostLogTest, TheLow16BitsOfTheRecordNumberCount) {
  for (const int32_t number : {65'537, 131'073, -65'535}) {
    EXPECT_EQ(0, Get("VORN_PostLog", NumberKey(OLESTR("RecordNumber"), number)));
  }
  EXPECT_EQ(Texts(3, "Record 1"), Values("LogRecord"));
  EXPECT_EQ(Texts(3, "1"), Values("RecordNumber"));
}

TEST_F(VornPostLogTest, TheRecordNumberHasNoSign) {
  for (int i = 4; i < 32'768; ++i) AddRecord(u"");
  AddRecord(u"Record 32768");
  EXPECT_EQ(0, Get("VORN_PostLog", NumberKey(OLESTR("RecordNumber"), 32'768)));
  EXPECT_EQ(Texts{"Record 32768"}, Values("LogRecord"));
  EXPECT_EQ(Texts{"32768"}, Values("RecordNumber"));
}

TEST_F(VornPostLogTest, DoesNotReadTheTimeZoneBeforeTheFirstTime) {
  store.AddRecord(310).I64(0, kRecordTime).Ucs2(16, u"Record 4");
  const TimeZone zone("AAA-1");
  SetEnvironment("TZ", "BBB-2");
  Get("VORN_PostLog", NumberKey(OLESTR("RecordNumber"), 4));
  EXPECT_EQ("20150314102653.000000+120", Value(0, "EventTime"));
}

}  // namespace
}  // namespace tqcim::testing
