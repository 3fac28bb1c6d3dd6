#include <algorithm>
#include <limits>

#include "tests/classes/power/power_consumption_record.h"

namespace tqcim::testing {
namespace {

class VornPowerConsumptionDataTest : public PowerConsumptionRecordTest {
 protected:
  void AddSecondRecord() {
    store.Add(501, 40).Utf8(96, "Second");
    store.List(2, 40, {500, 501});
  }

  HRESULT EnumerateRecords() { return Enumerate("VORN_PowerConsumptionData"); }
  HRESULT GetById(const OLECHAR* id) {
    return Get("VORN_PowerConsumptionData", StringKey(OLESTR("DeviceID"), id));
  }
};

const Puts kRecord = {{"CreationClassName", VT_BSTR, 0, "VORN_PowerConsumptionData"},
                      {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
                      {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
                      {"Status", VT_BSTR, 0, "OK"},
                      {"Name", VT_BSTR, 0, "System power"},
                      {"cumulativePowerReading", VT_I4, 0, "12345"},
                      {"peakAmpReading", VT_I4, 0, "21"},
                      {"peakWattReading", VT_I4, 0, "430"},
                      {"cprStartTime", VT_BSTR, CIM_DATETIME, "20150314092653.000000+0.0"},
                      {"pwrStartTime", VT_BSTR, CIM_DATETIME, "20150315092653.000000+0.0"},
                      {"pwrTime", VT_BSTR, CIM_DATETIME, "20150316092653.000000+0.0"},
                      {"parStartTime", VT_BSTR, CIM_DATETIME, "20150317092653.000000+0.0"},
                      {"parTime", VT_BSTR, CIM_DATETIME, "20150318092653.000000+0.0"},
                      {"minPowerConsumption", VT_I4, 0, "120"},
                      {"maxPowerConsumption", VT_I4, 0, "750"},
                      {"minPowerConsumption", VT_I4, 0, "120"},
                      {"powerCap", VT_I4, 0, "500"},
                      {"powerCapCapabilities", VT_I4, 0, "3"},
                      {"powerCapSetting", VT_I4, 0, "1"},
                      {"instHeadRoom", VT_I4, 0, "290"},
                      {"peakHeadRoom", VT_I4, 0, "320"},
                      {"DeviceID", VT_BSTR, 0, "0"}};

/// The record without its times.
Puts RecordWithoutTimes() {
  Puts puts = kRecord;
  std::erase_if(puts, [](const RecordedPut& put) { return put.cimType == CIM_DATETIME; });
  return puts;
}

TEST_F(VornPowerConsumptionDataTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, EnumerateRecords());
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kRecord, Delivered(0));
}

TEST_F(VornPowerConsumptionDataTest, IsGotWithTheSameProperties) {
  EXPECT_EQ(0, GetById(OLESTR("0")));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kRecord, Delivered(0));
}

TEST_F(VornPowerConsumptionDataTest, MinPowerConsumptionIsPutBeforeAndAfterTheMaximum) {
  EnumerateRecords();
  std::vector<std::string> names;
  for (const RecordedPut& put : Delivered(0)) {
    if (put.name.ends_with("PowerConsumption")) names.push_back(put.name);
  }
  EXPECT_EQ((std::vector<std::string>{"minPowerConsumption", "maxPowerConsumption",
                                      "minPowerConsumption"}),
            names);
}

TEST_F(VornPowerConsumptionDataTest, StatusFollowsTheObjectStatus) {
  constexpr std::pair<uint8_t, const char*> kTexts[] = {
      {0, "Other"}, {1, "Unknown"},    {2, "OK"},       {3, "Stressed"},
      {4, "Error"}, {5, "NonRecover"}, {6, "Stressed"}, {255, "Stressed"}};
  for (const auto& [status, text] : kTexts) {
    store.Object(500).U8(10, status);
    EnumerateRecords();
    EXPECT_EQ(text, Value(DeliveredCount() - 1, "Status")) << int{status};
  }
}

TEST_F(VornPowerConsumptionDataTest, ReadingsKeepTheirBits) {
  store.Object(500).U32(16, 0x80000000).U32(48, 0xFFFFFFFF).U32(28, 0xFFFFFFFE);
  EnumerateRecords();
  EXPECT_EQ("-2147483648", Value(0, "cumulativePowerReading"));
  EXPECT_EQ("-1", Value(0, "peakAmpReading"));
  EXPECT_EQ("-2", Value(0, "peakWattReading"));
}

TEST_F(VornPowerConsumptionDataTest, PowerCapWordsHaveNoSign) {
  store.Object(500).U16(80, 0xFFFF).U16(82, 0x8000);
  EnumerateRecords();
  EXPECT_EQ("65535", Value(0, "powerCapCapabilities"));
  EXPECT_EQ("32768", Value(0, "powerCapSetting"));
}

TEST_F(VornPowerConsumptionDataTest, ANameThatTheLibraryDoesNotGiveIsPutAsANullText) {
  store.Add(500, 40);
  EXPECT_EQ(0, EnumerateRecords());
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ((RecordedPut{"Name", VT_BSTR, 0, "<null>"}), Delivered(0).at(4));
}

TEST_F(VornPowerConsumptionDataTest, GivesTheNameAndEveryTimeBackToItsLibrary) {
  store.RecordCalls();
  EnumerateRecords();
  EXPECT_EQ((std::vector<std::string>{"children 2/40", "object 500", "free", "text 256", "free",  //
                                      "allocate 26", "free support", "allocate 26", "free support",
                                      "allocate 26", "free support", "allocate 26", "free support",
                                      "allocate 26", "free support",  //
                                      "free", "children 2/40", "free"}),
            store.Calls());
}

// Times.

TEST_F(VornPowerConsumptionDataTest, ATimeOfZeroIsTheEpoch) {
  EXPECT_EQ("19700101000000.000000+0.0", TimeOf(0));
}

TEST_F(VornPowerConsumptionDataTest, TimesAreLocalAndCarryTheOffset) {
  const TimeZone zone("EEE5");
  EXPECT_EQ("19691231190000.000000-300", TimeOf(0));
  EXPECT_EQ("20150314042653.000000-300", TimeOf(1426325213));
}

TEST_F(VornPowerConsumptionDataTest, TheOffsetIsCutToFourCharacters) {
  constexpr std::tuple<const char*, const char*> kRows[] = {
      {"AAA-1", "20150314102653.000000+60."},
      {"BBB-2", "20150314112653.000000+120"},
      {"CCC-5:30", "20150314145653.000000+330"},
      {"DDD1", "20150314082653.000000-60."}};
  for (const auto& [name, text] : kRows) {
    const TimeZone zone(name);
    EXPECT_EQ(text, TimeOf(1426325213));
  }
}

TEST_F(VornPowerConsumptionDataTest, TimesBeyond32BitsAreReadWhole) {
  EXPECT_EQ("20380119031408.000000+0.0", TimeOf(2147483648));
  EXPECT_EQ("21060207062816.000000+0.0", TimeOf(4294967296));
  EXPECT_EQ("30001231235959.000000+0.0", TimeOf(32535215999));
}

TEST_F(VornPowerConsumptionDataTest, DaylightSavingAddsNoHourToTheLocalTimeAndNoneToTheOffset) {
  const TimeZone zone("CST6CDT,M3.2.0,M11.1.0");
  EXPECT_EQ("20150714042653.000000-360", TimeOf(1436866013));
  EXPECT_EQ("20150114032653.000000-360", TimeOf(1421227613));
}

TEST_F(VornPowerConsumptionDataTest, TheHourThatDaylightSavingRepeatsIsToldTwice) {
  const TimeZone zone("CST6CDT,M3.2.0,M11.1.0");
  EXPECT_EQ("20151101013000.000000-360", TimeOf(1446359400));
  EXPECT_EQ("20151101013000.000000-360", TimeOf(1446363000));
}

TEST_F(VornPowerConsumptionDataTest, ATimeThatIsNoDateIsLeftUnset) {
  EXPECT_EQ("<absent>", TimeOf(253402300800));
  EXPECT_EQ("<absent>", TimeOf(std::numeric_limits<int64_t>::max()));
  EXPECT_EQ("<absent>", TimeOf(std::numeric_limits<int64_t>::min()));
}

TEST_F(VornPowerConsumptionDataTest, TimesLeftUnsetKeepNothingElseBack) {
  for (const uint32_t offset : {20, 32, 40, 52, 60}) {
    store.Object(500).U64(offset, 0x7FFFFFFFFFFFFFFF);
  }
  EXPECT_EQ(0, EnumerateRecords());
  EXPECT_EQ(RecordWithoutTimes(), Delivered(0));
}

TEST_F(VornPowerConsumptionDataTest, WithoutMemoryForTheirTextsTimesAreLeftUnset) {
  store.FailAllocations();
  EXPECT_EQ(0, EnumerateRecords());
  EXPECT_EQ(RecordWithoutTimes(), Delivered(0));
}

// Enumeration.

TEST_F(VornPowerConsumptionDataTest, TheDeviceIdIsThePosition) {
  AddSecondRecord();
  EXPECT_EQ(0, EnumerateRecords());
  EXPECT_EQ((Ids{{"System power", "0"}, {"Second", "1"}}), DeliveredIds());
}

TEST_F(VornPowerConsumptionDataTest, WithoutRecordsEnumerationIsSuccess) {
  store.List(2, 40, {});
  EXPECT_EQ(0, EnumerateRecords());
  store.FailListing(2, 40);
  EXPECT_EQ(0, EnumerateRecords());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornPowerConsumptionDataTest, AnUnreadableRecordEndsTheEnumeration) {
  AddSecondRecord();
  store.FailRead(500);
  EXPECT_EQ(0, EnumerateRecords());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornPowerConsumptionDataTest, AFailedSpawnEndsTheEnumerationAndIsReturned) {
  AddSecondRecord();
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), EnumerateRecords());
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(VornPowerConsumptionDataTest, ASuccessfulSpawnWithoutAnInstanceEndsTheEnumeration) {
  AddSecondRecord();
  sink.SetIndicateResult(Hr(0x80041032));
  definition.SpawnNothing(1, S_OK);
  EXPECT_EQ(0, EnumerateRecords());
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(VornPowerConsumptionDataTest, EnumerationReturnsTheLastDelivery) {
  AddSecondRecord();
  sink.KeepInstances();
  sink.Refuse(0, Hr(0x80041032));
  EXPECT_EQ(0, EnumerateRecords());
  sink.Refuse(3, Hr(0x80041033));
  EXPECT_EQ(Hr(0x80041033), EnumerateRecords());
  EXPECT_EQ(4u, DeliveredCount());
}

// Getting one.

TEST_F(VornPowerConsumptionDataTest, TheKeyTextIsGivenBackAsItCame) {
  AddSecondRecord();
  for (const OLECHAR* id : {OLESTR("1"), OLESTR("01"), OLESTR(" +1x"), OLESTR("65537")}) {
    EXPECT_EQ(0, GetById(id));
  }
  EXPECT_EQ((Ids{{"Second", "1"}, {"Second", "01"}, {"Second", " +1x"}, {"Second", "65537"}}),
            DeliveredIds());
}

TEST_F(VornPowerConsumptionDataTest, AKeyThatIsNoNumberGetsTheFirstRecord) {
  EXPECT_EQ(0, GetById(OLESTR("none")));
  EXPECT_EQ((Ids{{"System power", "none"}}), DeliveredIds());
}

TEST_F(VornPowerConsumptionDataTest, ARecordThatIsNotThereIsNotFound) {
  EXPECT_EQ(Hr(0x80041002), GetById(OLESTR("1")));
  EXPECT_EQ(Hr(0x80041002), GetById(OLESTR("-1")));
  store.FailRead(500);
  EXPECT_EQ(Hr(0x80041002), GetById(OLESTR("0")));
  store.List(2, 40, {});
  EXPECT_EQ(Hr(0x80041002), GetById(OLESTR("0")));
  store.FailListing(2, 40);
  EXPECT_EQ(Hr(0x80041002), GetById(OLESTR("0")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornPowerConsumptionDataTest, GettingReturnsTheResultOfASpawnWithoutAnInstance) {
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, S_OK);
  EXPECT_EQ(Hr(0x80041006), GetById(OLESTR("0")));
  EXPECT_EQ(0, GetById(OLESTR("0")));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornPowerConsumptionDataTest, GettingIsSuccessWhateverTheSinkDoes) {
  sink.KeepInstances();
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(0, GetById(OLESTR("0")));
  EXPECT_EQ(1u, DeliveredCount());
}

}  // namespace
}  // namespace tqcim::testing
