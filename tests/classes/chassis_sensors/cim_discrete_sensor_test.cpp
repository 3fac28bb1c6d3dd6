#include "tests/classes/chassis_sensors/several_chassis.h"

namespace tqcim::testing {
namespace {

/// Two chassis. Each sensor is the first of its type in the first chassis, except where a test says
/// otherwise.
class CimDiscreteSensorTest : public SeveralChassisTest {
 protected:
  CimDiscreteSensorTest() { ListChassis({2, 3}); }

  /// Sets a chassis's list to discrete probes, which have the subtype 17.
  void ListDiscrete(uint32_t chassisOid, uint16_t type, const std::vector<uint32_t>& oids) {
    ListProbes(chassisOid, type, oids);
    for (const uint32_t oid : oids) store.Object(oid).U32(16, 17);
  }

  HRESULT GetByOid(const OLECHAR* oid) {
    return Get("CIM_DiscreteSensor", StringKey(OLESTR("DeviceID"), oid));
  }

  /// A property of the object 500 as it stands now.
  std::string Now(const char* property) {
    GetByOid(OLESTR("500"));
    return Value(DeliveredCount() - 1, property);
  }
};

TEST_F(CimDiscreteSensorTest, PutsItsPropertiesInOrder) {
  store.Add(4711, 24, 4).U32(16, 20).U16(20, 2).Ucs2(72, u"CPU1 VCORE PG");
  store.List(2, 24, {4711});
  const Puts sensor = {{"SensorType", VT_I4, 0, "3"},
                       {"OtherSensorTypeDescription", VT_BSTR, 0, "Discrete Voltage Sensor"},
                       {"CurrentReading", VT_BSTR, 0, "Bad"},
                       {"PossibleValues", VT_ARRAY | VT_BSTR, 0, "{Unknown,Good,Bad}"},
                       {"AcceptableValues", VT_ARRAY | VT_BSTR, 0, "{Unknown,Good,Bad}"},
                       {"Name", VT_BSTR, 0, "CPU1 VCORE PG"},
                       {"Status", VT_BSTR, 0, "Error"},
                       {"CreationClassName", VT_BSTR, 0, "CIM_DiscreteSensor"},
                       {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
                       {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
                       {"DeviceID", VT_BSTR, 0, "4711"}};
  EXPECT_EQ(0, Enumerate("CIM_DiscreteSensor"));
  EXPECT_EQ(0, GetByOid(OLESTR("4711")));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(sensor, Delivered(0));
  EXPECT_EQ(sensor, Delivered(1));
}

TEST_F(CimDiscreteSensorTest, WalksTheTypesInTheirOrderAndEachThroughAllChassis) {
  for (const uint16_t type : Types{22, 23, 24, 25, 26, 27}) {
    ListDiscrete(2, type, {type * 10u});
    ListDiscrete(3, type, {type * 10u + 1, type * 10u + 2});
  }
  EXPECT_EQ(0, Enumerate("CIM_DiscreteSensor"));
  EXPECT_EQ((Texts{"240", "241", "242", "220", "221", "222", "230", "231", "232", "250", "251",
                   "252", "270", "271", "272", "260", "261", "262"}),
            Values("DeviceID"));
  EXPECT_EQ((Texts{"3", "3", "3", "2", "2", "2", "5", "5", "5", "4", "4", "4", "13", "13", "13",
                   "1", "1", "1"}),
            Values("SensorType"));
}

TEST_F(CimDiscreteSensorTest, TheSubtypeTellsADiscreteProbe) {
  constexpr std::pair<uint32_t, size_t> kRows[] = {
      {0, 0},  {1, 0},  {3, 0},  {16, 0}, {17, 1},  {18, 0},         {19, 1},
      {20, 1}, {21, 1}, {22, 0}, {27, 0}, {273, 0}, {0xFFFFFFFF, 0},
  };
  for (const uint16_t type : Types{22, 23, 24, 25}) {
    ListProbes(2, type, {500});
    for (const auto& [subtype, delivered] : kRows) {
      const size_t before = DeliveredCount();
      store.Object(500).U32(16, subtype);
      Enumerate("CIM_DiscreteSensor");
      EXPECT_EQ(delivered, DeliveredCount() - before) << type << "/" << subtype;
    }
    store.List(2, type, {});
  }
}

TEST_F(CimDiscreteSensorTest, ProcessorAndBatterySensorsAreDiscreteWhateverTheirSubtype) {
  ListProbes(2, 26, {260, 261});
  store.Object(261).U32(16, 18);
  ListProbes(2, 27, {270, 271});
  store.Object(271).U32(16, 0xFFFFFFFF);
  EXPECT_EQ(0, Enumerate("CIM_DiscreteSensor"));
  EXPECT_EQ((Texts{"270", "271", "260", "261"}), Values("DeviceID"));
}

TEST_F(CimDiscreteSensorTest, PassesOverNumericProbes) {
  ListDiscrete(2, 22, {220, 221, 222});
  store.Object(220).U32(16, 2);
  store.Object(222).U32(16, 18);
  ListDiscrete(3, 22, {320});
  EXPECT_EQ(0, Enumerate("CIM_DiscreteSensor"));
  EXPECT_EQ((Texts{"221", "320"}), Values("DeviceID"));
}

TEST_F(CimDiscreteSensorTest, SensorTypeFollowsTheTypeOfTheObjectThatIsGot) {
  struct Row {
    uint16_t objectType;
    const char* sensorType;
    const char* description;
  };
  constexpr Row kRows[] = {{22, "2", "Discrete Temperature Sensor"},
                           {23, "5", "Discrete Fan Sensor"},
                           {24, "3", "Discrete Voltage Sensor"},
                           {25, "4", "Discrete Current Sensor"},
                           {26, "1", "Processor Status Sensor"},
                           {27, "13", "Battery Status Sensor"},
                           {21, "1", "Discrete Sensor"},
                           {28, "1", "Discrete Sensor"},
                           {0, "1", "Discrete Sensor"},
                           {0x1016, "1", "Discrete Sensor"}};
  for (const auto& [objectType, sensorType, description] : kRows) {
    store.Add(500, objectType).Ucs2(72, u"sensor");
    EXPECT_EQ(sensorType, Now("SensorType")) << objectType;
    EXPECT_EQ(description, Now("OtherSensorTypeDescription")) << objectType;
  }
}

TEST_F(CimDiscreteSensorTest, AnObjectWithANumberInPlaceOfTheNameIsGotWithoutOne) {
  store.Add(500, 40).U32(72, 0xFFFFFFF0);
  EXPECT_EQ("<null>", Now("Name"));
  EXPECT_EQ("Discrete Sensor", Now("OtherSensorTypeDescription"));
}

TEST_F(CimDiscreteSensorTest, ListedSensorsHaveTheTypeOfTheirListAndReadAsTheirOwn) {
  store.Add(500, 27).U16(20, 4).Ucs2(72, u"misfiled");
  store.List(2, 26, {500});
  Enumerate("CIM_DiscreteSensor");
  EXPECT_EQ("Processor Status Sensor", Value(0, "OtherSensorTypeDescription"));
  EXPECT_EQ("Good", Value(0, "CurrentReading"));
}

TEST_F(CimDiscreteSensorTest, AProcessorStateIsComparedAsAWhole) {
  constexpr std::pair<uint16_t, const char*> kRows[] = {
      {1, "IErr"},          {2, "Thermtrip"},
      {32, "Config Error"}, {128, "Presence detected"},
      {256, "Disabled"},    {512, "Term presence detected"},
      {1024, "Throttled"},  {0, "Unknown"},
      {3, "Unknown"},       {4, "Unknown"},
      {64, "Unknown"},      {129, "Unknown"},
      {0x8001, "Unknown"},  {0xFFFF, "Unknown"}};
  store.Add(500, 26).Ucs2(72, u"CPU1 Status");
  for (const auto& [state, text] : kRows) {
    // The two bytes behind the state belong to another field.
    store.Object(500).U32(20, 0xEEEE0000u | state);
    EXPECT_EQ(text, Now("CurrentReading")) << state;
  }
  EXPECT_EQ(
      "{IErr,Thermtrip,Config Error,Presence detected,Disabled,Term presence detected,Throttled}",
      Now("PossibleValues"));
}

TEST_F(CimDiscreteSensorTest, ABatteryStateIsTestedBitByBitWorstFirst) {
  constexpr std::pair<uint16_t, const char*> kRows[] = {
      {0, "Unknown"},      {1, "Warning"},   {2, "Bad"},     {3, "Bad"},     {4, "Good"},
      {5, "Warning"},      {6, "Bad"},       {7, "Bad"},     {8, "Unknown"}, {12, "Good"},
      {0x0200, "Unknown"}, {0xFFFC, "Good"}, {0xFFFF, "Bad"}};
  store.Add(500, 27).Ucs2(72, u"CMOS Battery");
  for (const auto& [state, text] : kRows) {
    store.Object(500).U32(20, 0xEEEE0000u | state);
    EXPECT_EQ(text, Now("CurrentReading")) << state;
  }
  EXPECT_EQ("{Unknown,Good,Warning,Bad}", Now("PossibleValues"));
}

TEST_F(CimDiscreteSensorTest, AnyOtherStateIsGoodOrBadOrUnknown) {
  constexpr std::pair<uint16_t, const char*> kRows[] = {{0, "Unknown"},      {1, "Good"},
                                                        {2, "Bad"},          {3, "Unknown"},
                                                        {0x0101, "Unknown"}, {0xFFFF, "Unknown"}};
  for (const uint16_t type : Types{22, 23, 24, 25, 28, 58, 59}) {
    store.Add(500, type).Ucs2(72, u"probe");
    for (const auto& [state, text] : kRows) {
      store.Object(500).U32(20, 0xEEEE0000u | state);
      EXPECT_EQ(text, Now("CurrentReading")) << type << "/" << state;
    }
    EXPECT_EQ("{Unknown,Good,Bad}", Now("PossibleValues"));
  }
}

TEST_F(CimDiscreteSensorTest, AcceptableValuesAreThePossibleOnes) {
  for (const uint16_t type : Types{22, 23, 24, 25, 26, 27, 28}) {
    store.Add(500, type).Ucs2(72, u"probe");
    EXPECT_EQ(Now("PossibleValues"), Now("AcceptableValues")) << type;
  }
}

TEST_F(CimDiscreteSensorTest, StatusFollowsTheSensor) {
  constexpr std::pair<uint8_t, const char*> kTexts[] = {
      {0, "Other"}, {1, "Unknown"},    {2, "OK"},       {3, "Stressed"},
      {4, "Error"}, {5, "NonRecover"}, {9, "Stressed"}, {255, "Stressed"}};
  store.Add(500, 22).Ucs2(72, u"probe");
  for (const auto& [status, text] : kTexts) {
    store.Object(500).U8(10, status);
    EXPECT_EQ(text, Now("Status")) << int{status};
  }
}

TEST_F(CimDiscreteSensorTest, TheDeviceIdIsTheIdentifierThatTheObjectCarriesAsASignedNumber) {
  ListDiscrete(2, 22, {220});
  store.Object(220).U32(4, 0x80000001);
  Enumerate("CIM_DiscreteSensor");
  GetByOid(OLESTR("220"));
  EXPECT_EQ((Texts{"-2147483647", "-2147483647"}), Values("DeviceID"));
}

TEST_F(CimDiscreteSensorTest, AFailingListOrAnUnreadableProbeEndsTheWalkOfItsTypeOnly) {
  ListChassis({2, 3, 4});
  for (const uint16_t type : Types{22, 24}) {
    ListDiscrete(2, type, {type * 10u});
    ListDiscrete(3, type, {type * 10u + 1, type * 10u + 2});
    ListDiscrete(4, type, {type * 10u + 3});
  }
  store.FailListing(3, 24);
  store.FailRead(221);
  ListDiscrete(2, 23, {230});
  ListDiscrete(3, 23, {});
  ListDiscrete(4, 23, {233});
  EXPECT_EQ(0, Enumerate("CIM_DiscreteSensor"));
  EXPECT_EQ((Texts{"240", "220", "230", "233"}), Values("DeviceID"));
}

TEST_F(CimDiscreteSensorTest, EnumeratesNothingWithoutSensorsOrChassis) {
  EXPECT_EQ(0, Enumerate("CIM_DiscreteSensor"));
  for (const uint16_t type : Types{22, 23, 24, 25, 26, 27}) store.List(2, type, {});
  EXPECT_EQ(0, Enumerate("CIM_DiscreteSensor"));
  store.List(1, 17, {});
  EXPECT_EQ(0, Enumerate("CIM_DiscreteSensor"));
  store.FailListing(1, 17);
  EXPECT_EQ(0, Enumerate("CIM_DiscreteSensor"));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimDiscreteSensorTest, EnumerationReturnsTheReferencesThatAreLeftAfterTheLastRelease) {
  ListDiscrete(2, 22, {220, 221});
  ListProbes(2, 23, {230});
  EXPECT_EQ(0, Enumerate("CIM_DiscreteSensor"));
  sink.KeepInstances();
  EXPECT_EQ(1, Enumerate("CIM_DiscreteSensor"));
}

TEST_F(CimDiscreteSensorTest, EnumerationIgnoresTheSinksRefusal) {
  ListDiscrete(2, 22, {220, 221, 222});
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(0, Enumerate("CIM_DiscreteSensor"));
  EXPECT_EQ(3u, DeliveredCount());
}

TEST_F(CimDiscreteSensorTest, ASpawnWithoutInstanceEndsTheWholeEnumerationAndIsNoFailure) {
  ListDiscrete(2, 24, {240, 241});
  ListDiscrete(2, 22, {220});
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(0, Enumerate("CIM_DiscreteSensor"));
  definition.SpawnNothing(3, S_OK);
  sink.KeepInstances();
  EXPECT_EQ(1, Enumerate("CIM_DiscreteSensor"));
  EXPECT_EQ((Texts{"240", "240"}), Values("DeviceID"));
  definition.SpawnNothing(4, Hr(0x80041006));
  EXPECT_EQ(0, Enumerate("CIM_DiscreteSensor"));
  EXPECT_EQ(5u, definition.Spawns());
}

TEST_F(CimDiscreteSensorTest, PropertiesThatAreRefusedDoNotKeepAnInstanceBack) {
  ListDiscrete(2, 22, {220});
  definition.SetPutResult(Hr(0x80041002));
  EXPECT_EQ(0, Enumerate("CIM_DiscreteSensor"));
  EXPECT_EQ(0, GetByOid(OLESTR("220")));
  EXPECT_EQ(2u, DeliveredCount());
}

TEST_F(CimDiscreteSensorTest, GettingReadsTheOneObjectAndNoList) {
  ListDiscrete(2, 22, {220});
  store.RecordCalls();
  EXPECT_EQ(0, GetByOid(OLESTR("220")));
  EXPECT_EQ((Texts{"object 220", "convert 220", "free"}), store.Calls());
}

TEST_F(CimDiscreteSensorTest, ANumericProbeIsGotAsADiscreteSensor) {
  store.Add(500, 22).U32(16, 2).I32(20, 231).Ucs2(72, u"Inlet Temp");
  EXPECT_EQ(0, GetByOid(OLESTR("500")));
  EXPECT_EQ((Puts{{"SensorType", VT_I4, 0, "2"},
                  {"OtherSensorTypeDescription", VT_BSTR, 0, "Discrete Temperature Sensor"},
                  {"CurrentReading", VT_BSTR, 0, "Unknown"},
                  {"PossibleValues", VT_ARRAY | VT_BSTR, 0, "{Unknown,Good,Bad}"},
                  {"AcceptableValues", VT_ARRAY | VT_BSTR, 0, "{Unknown,Good,Bad}"},
                  {"Name", VT_BSTR, 0, "Inlet Temp"},
                  {"Status", VT_BSTR, 0, "OK"},
                  {"CreationClassName", VT_BSTR, 0, "CIM_DiscreteSensor"},
                  {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
                  {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
                  {"DeviceID", VT_BSTR, 0, "500"}}),
            Delivered(0));
}

TEST_F(CimDiscreteSensorTest, TheWholeNumberIsTheIdentifier) {
  store.Add(65537, 22).Ucs2(72, u"beyond 16 bits");
  store.Add(4294967295, 22).Ucs2(72, u"all bits");
  store.Add(0, 22).Ucs2(72, u"zero");
  for (const OLECHAR* oid : {OLESTR("65537"), OLESTR("-1"), OLESTR(" +65537 and more"), OLESTR("0"),
                             OLESTR("sensor"), OLESTR("")}) {
    EXPECT_EQ(0, GetByOid(oid));
  }
  EXPECT_EQ(0, GetByOid(nullptr));
  EXPECT_EQ((Texts{"beyond 16 bits", "all bits", "beyond 16 bits", "zero", "zero", "zero", "zero"}),
            Values("Name"));
}

TEST_F(CimDiscreteSensorTest, AnUnknownIdentifierIsSuccessWithNothing) {
  EXPECT_EQ(0, GetByOid(OLESTR("500")));
  store.Add(500, 22).Ucs2(72, u"probe");
  store.FailRead(500);
  EXPECT_EQ(0, GetByOid(OLESTR("500")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimDiscreteSensorTest, WhereNoObjectIsFoundTheResultOfTheKeysReadingStands) {
  FakeKeyList keys;
  keys.Add(StringKey(OLESTR("DeviceID"), OLESTR("500")));
  keys.FailKey(0, S_FALSE);
  EXPECT_EQ(S_FALSE, Get("CIM_DiscreteSensor", keys));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimDiscreteSensorTest, TheFirstStringKeyNamedDeviceIdInAnyCaseCounts) {
  store.Add(500, 22).Ucs2(72, u"probe");
  FakeKeyList keys;
  keys.Add(StringKey(OLESTR("SystemName"), OLESTR("501")));
  keys.Add(NumberKey(OLESTR("DeviceID"), 501));
  keys.Add({OLESTR("DeviceID"), Variant::Text(OLESTR("501")), CIM_UINT32});
  keys.Add(StringKey(OLESTR("dEVICEid"), OLESTR("500")));
  keys.Add(StringKey(OLESTR("DeviceID"), OLESTR("501")));
  EXPECT_EQ(0, Get("CIM_DiscreteSensor", keys));
  EXPECT_EQ(Texts{"500"}, Values("DeviceID"));
  EXPECT_EQ((std::vector<ULONG>{0, 1, 2, 3}), keys.Reads());
}

TEST_F(CimDiscreteSensorTest, ADeviceIdGivenAsANumberIsIgnored) {
  store.Add(500, 22).Ucs2(72, u"probe");
  EXPECT_EQ(0, Get("CIM_DiscreteSensor", NumberKey(OLESTR("DeviceID"), 500)));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimDiscreteSensorTest, WithoutAUsableKeyNothingIsReadAndTheResultIsThatOfTheKeysReading) {
  store.Add(500, 22).Ucs2(72, u"probe");
  store.RecordCalls();
  FakeKeyList none;
  EXPECT_EQ(0, Get("CIM_DiscreteSensor", none));
  EXPECT_EQ(0, Get("CIM_DiscreteSensor", StringKey(OLESTR("Name"), OLESTR("500"))));
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys("CIM_DiscreteSensor"));
  FakeKeyList uncountable;
  uncountable.Add(StringKey(OLESTR("DeviceID"), OLESTR("500")));
  uncountable.FailCount(Hr(0x80041008));
  EXPECT_EQ(Hr(0x80041008), Get("CIM_DiscreteSensor", uncountable));
  FakeKeyList unreadable;
  unreadable.Add(StringKey(OLESTR("DeviceID"), OLESTR("500")));
  unreadable.FailKey(0, Hr(0x80041001));
  EXPECT_EQ(Hr(0x80041001), Get("CIM_DiscreteSensor", unreadable));
  EXPECT_EQ(Texts{}, store.Calls());
  EXPECT_EQ(0u, definition.Spawns());
  unreadable.Add(StringKey(OLESTR("DeviceID"), OLESTR("500")));
  EXPECT_EQ(0, Get("CIM_DiscreteSensor", unreadable));
  EXPECT_EQ(1u, DeliveredCount()) << "the next key counts";
}

TEST_F(CimDiscreteSensorTest, GettingReturnsTheResultOfASpawnWithoutInstance) {
  store.Add(500, 22).Ucs2(72, u"probe");
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, Hr(1));
  EXPECT_EQ(Hr(0x80041006), GetByOid(OLESTR("500")));
  EXPECT_EQ(1, GetByOid(OLESTR("500")));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(CimDiscreteSensorTest, GettingReturnsTheStatusOfTheDelivery) {
  store.Add(500, 22).Ucs2(72, u"probe");
  sink.KeepInstances();
  sink.Refuse(0, Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), GetByOid(OLESTR("500")));
  EXPECT_EQ(0, GetByOid(OLESTR("500")));
}

/// The sensors stand before and behind the last position that the walk reaches.
TEST_F(CimDiscreteSensorTest, TheWalkEndsAfterPosition65535) {
  ListChassis({2});
  store.Add(500, 22).Ucs2(72, u"numeric");
  ListDiscrete(3, 22, {220, 221});
  std::vector<uint32_t> oids(65'538, 500);
  oids[65'535] = 220;
  oids[65'536] = 221;
  store.ListLong(2, 22, oids);
  EXPECT_EQ(0, Enumerate("CIM_DiscreteSensor"));
  EXPECT_EQ(Texts{"220"}, Values("DeviceID"));
}

}  // namespace
}  // namespace tqcim::testing
