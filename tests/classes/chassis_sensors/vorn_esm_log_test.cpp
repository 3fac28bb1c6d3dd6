#include "tests/classes/chassis_sensors/event_log_test.h"
#include "tests/support/environment.h"

namespace tqcim::testing {
namespace {

INSTANTIATE_TEST_SUITE_P(VornEsmLog, EventLogTest,
                         ::testing::Values(EventLogClass{"VORN_EsmLog", 1, 2}));

class VornEsmLogTest : public EventLogFixture {
 protected:
  VornEsmLogTest() {
    AddLog(310, 1);
    store.List(2, 31, {310});
    for (const auto* text : {u"Record 0", u"Record 1", u"Record 2", u"Record 3"}) AddRecord(text);
  }
};

TEST_F(VornEsmLogTest, EnumerationGoesOnAndIsSuccessWhateverTheSinkSaysAndKeeps) {
  sink.KeepInstances();
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(0, Enumerate("VORN_EsmLog"));
  EXPECT_EQ(4u, DeliveredCount());
}

TEST_F(VornEsmLogTest, ASpawnWithoutInstanceEndsTheEnumerationWithItsResult) {
  sink.SetIndicateResult(Hr(0x80041032));
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), Enumerate("VORN_EsmLog"));
  definition.SpawnNothing(3, Hr(1));
  EXPECT_EQ(1, Enumerate("VORN_EsmLog"));
  EXPECT_EQ((Texts{"Record 0", "Record 0"}), Values("LogRecord"));
  EXPECT_EQ(4u, definition.Spawns());
}

TEST_F(VornEsmLogTest, TheLow16BitsOfTheRecordCountAreTheRecordsRead) {
  store.SetRecordCount(310, 0x10002);
  EXPECT_EQ(0, Enumerate("VORN_EsmLog"));
  EXPECT_EQ((Texts{"Record 0", "Record 1"}), Values("LogRecord"));
  store.SetRecordCount(310, 0x10000);
  EXPECT_EQ(0, Enumerate("VORN_EsmLog"));
  EXPECT_EQ(2u, DeliveredCount());
}

TEST_F(VornEsmLogTest, ACountBeyondTheRecordsEndsAtTheFirstThatIsMissing) {
  store.SetRecordCount(310, 100);
  EXPECT_EQ(0, Enumerate("VORN_EsmLog"));
  EXPECT_EQ(4u, DeliveredCount());
  store.SetRecordCount(310, 0xFFFF);
  EXPECT_EQ(0, Enumerate("VORN_EsmLog"));
  EXPECT_EQ(8u, DeliveredCount()) << "a count has no sign";
}

TEST_F(VornEsmLogTest, AsksForTheCountOnceAndFreesEachRecordBeforeTheNext) {
  store.SetRecordCount(310, 2);
  store.RecordCalls();
  EXPECT_EQ(0, Enumerate("VORN_EsmLog"));
  EXPECT_EQ((Texts{"children 2/31", "object 310", "free", "records 310", "record 310/0",
                   "free record", "record 310/1", "free record", "free"}),
            store.Calls());
}

TEST_F(VornEsmLogTest, TheCallsGrowInLineWithTheLength) {
  for (int i = 4; i < 20'000; ++i) AddRecord(u"record").I64(0, kRecordTime);
  store.RecordCalls();
  EXPECT_EQ(0, Enumerate("VORN_EsmLog"));
  EXPECT_EQ(20'000u, DeliveredCount());
  // List, log and count, and what is freed of them; the records without a time; those with one,
  // whose text is allocated and freed.
  EXPECT_EQ(5u + 4 * 2 + 19'996u * 4, store.Calls().size());
}

TEST_F(VornEsmLogTest, TheFirstKeyCountsWhateverItsName) {
  FakeKeyList keys;
  keys.Add(NumberKey(OLESTR("Anything"), 3));
  keys.Add(NumberKey(OLESTR("RecordNumber"), 1));
  EXPECT_EQ(0, Get("VORN_EsmLog", keys));
  EXPECT_EQ(Texts{"Record 3"}, Values("LogRecord"));
  EXPECT_EQ(std::vector<ULONG>{0}, keys.Reads());
}

TEST_F(VornEsmLogTest, AllBitsOfTheRecordNumberCount) {
  EXPECT_EQ(0, Get("VORN_EsmLog", NumberKey(OLESTR("RecordNumber"), 65'537)));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornEsmLogTest, ReadsTheTimeZoneAgainForEveryRequest) {
  store.AddRecord(310).I64(0, kRecordTime).Ucs2(16, u"Record 4");
  const TimeZone zone("AAA-1");
  SetEnvironment("TZ", "BBB-2");
  Get("VORN_EsmLog", NumberKey(OLESTR("RecordNumber"), 4));
  SetEnvironment("TZ", "CCC-3");
  Enumerate("VORN_EsmLog");
  EXPECT_EQ("20150314112653.000000+120", Value(0, "EventTime"));
  EXPECT_EQ("20150314122653.000000+180", Value(5, "EventTime"));
}

}  // namespace
}  // namespace tqcim::testing
