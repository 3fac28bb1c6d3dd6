#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

class CimProcessorTest : public HandlerTest {
 protected:
  CimProcessorTest() {
    store.Add(100, 196).Ucs2(28, u"CPU1");
    store.Add(110, 210, 2)
        .U32(20, 179)
        .U32(24, 4000)
        .U32(28, 2400)
        .U32(40, 3)
        .U32(44, 6)
        .U32(56, 16)
        .U32(60, 12)
        .U16(70, 0x00FC)
        .Ucs2(72, u"Example Brand")
        .Ucs2(76, u"Example 6130 CPU @ 2.40GHz")
        .Ucs2(80, u"4")
        .U16(84, 0xFFFF)
        .U16(86, 0xAAAA);
    store.List(2, 196, {100});
    store.List(100, 210, {110});
  }

  void AddSecondSocket() {
    store.Add(101, 196).Ucs2(28, u"CPU2");
    store.List(2, 196, {100, 101});
  }

  HRESULT GetById(const OLECHAR* deviceId) {
    return Get("CIM_Processor", StringKey(OLESTR("DeviceID"), deviceId));
  }
};

const Puts kFirstProcessor = {{"CurrentClockSpeed", VT_I4, 0, "2400"},
                              {"MaxClockSpeed", VT_I4, 0, "4000"},
                              {"CPUStatus", VT_I4, 0, "1"},
                              {"Family", VT_I4, 0, "179"},
                              {"UpgradeMethod", VT_I4, 0, "6"},
                              {"Status", VT_BSTR, 0, "OK"},
                              {"CoreCount", VT_I4, 0, "16"},
                              {"CoreEnabledCount", VT_I4, 0, "12"},
                              {"Brand", VT_BSTR, 0, "Example Brand"},
                              {"Model", VT_BSTR, 0, "Example 6130 CPU @ 2.40GHz"},
                              {"Stepping", VT_BSTR, 0, "4"},
                              {"ExtendedCharacteristics", VT_I4, 0, "252"},
                              {"ExtendedStates", VT_I4, 0, "65535"},
                              {"CreationClassName", VT_BSTR, 0, "CIM_Processor"},
                              {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
                              {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
                              {"DeviceID", VT_BSTR, 0, "0"},
                              {"Name", VT_BSTR, 0, "CPU1"}};

const Puts kEmptySecondSocket = {{"CreationClassName", VT_BSTR, 0, "CIM_Processor"},
                                 {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
                                 {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
                                 {"DeviceID", VT_BSTR, 0, "1"},
                                 {"Name", VT_BSTR, 0, "CPU2"}};

TEST_F(CimProcessorTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, Enumerate("CIM_Processor"));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kFirstProcessor, Delivered(0));
}

TEST_F(CimProcessorTest, EnumeratesAnEmptySocketWithItsKeysAndName) {
  AddSecondSocket();
  EXPECT_EQ(0, Enumerate("CIM_Processor"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(kFirstProcessor, Delivered(0));
  EXPECT_EQ(kEmptySecondSocket, Delivered(1));
}

TEST_F(CimProcessorTest, AProcessorThatCannotBeReadLeavesAnEmptySocket) {
  AddSecondSocket();
  store.List(101, 210, {111});
  EXPECT_EQ(0, Enumerate("CIM_Processor"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(kEmptySecondSocket, Delivered(1));
}

TEST_F(CimProcessorTest, TakesTheFirstProcessorOfASocket) {
  store.Add(111, 210).U32(28, 1).Ucs2(76, u"");
  store.List(100, 210, {110, 111});
  Enumerate("CIM_Processor");
  EXPECT_EQ("2400", Value(0, "CurrentClockSpeed"));
}

TEST_F(CimProcessorTest, BrandAndSteppingAreLeftOutWhereTheyHaveNoText) {
  store.Add(110, 210).Ucs2(76, u"Example");
  Enumerate("CIM_Processor");
  EXPECT_EQ("<absent>", Value(0, "Brand"));
  EXPECT_EQ("<absent>", Value(0, "Stepping"));
  EXPECT_EQ("Example", Value(0, "Model"));
}

TEST_F(CimProcessorTest, AnEmptyBrandIsPut) {
  store.Object(110).Ucs2(72, u"");
  Enumerate("CIM_Processor");
  EXPECT_EQ("", Value(0, "Brand"));
}

struct CpuStatusRow {
  uint32_t code;
  const char* cpuStatus;
  uint32_t bits;
};
constexpr CpuStatusRow kCpuStatuses[] = {{0, "0", 0},
                                         {1, "7", 7},
                                         {2, "0", 0},
                                         {3, "1", 1},
                                         {4, "2", 2},
                                         {5, "3", 3},
                                         {9, "7", 7},
                                         {0x80000001, "2147483647", 0x7FFFFFFF},
                                         {0x80000002, "-2147483648", 0x80000000},
                                         {0xFFFFFFFF, "-3", 0xFFFFFFFD}};

TEST_F(CimProcessorTest, CpuStatusIsTranslated) {
  for (const CpuStatusRow& row : kCpuStatuses) {
    store.Object(110).U32(40, row.code);
    Enumerate("CIM_Processor");
    EXPECT_EQ(row.cpuStatus, Value(DeliveredCount() - 1, "CPUStatus")) << row.code;
  }
}

TEST_F(CimProcessorTest, TheTranslatedCpuStatusIsWrittenBackIntoTheObject) {
  for (const CpuStatusRow& row : kCpuStatuses) {
    store.Object(110).U32(40, row.code);
    Enumerate("CIM_Processor");
    EXPECT_EQ(row.bits, store.U32WhenFreed(110, 40)) << row.code;
  }
}

TEST_F(CimProcessorTest, Unsigned32BitValuesKeepTheirBits) {
  store.Object(110).U32(20, 0xFFFFFFFF).U32(24, 0x80000000);
  Enumerate("CIM_Processor");
  EXPECT_EQ("-1", Value(0, "Family"));
  EXPECT_EQ("-2147483648", Value(0, "MaxClockSpeed"));
}

TEST_F(CimProcessorTest, StatusIsTheProcessorsNotTheSockets) {
  store.Object(100).U8(10, 5);
  store.Object(110).U8(10, 4);
  Enumerate("CIM_Processor");
  EXPECT_EQ("Error", Value(0, "Status"));
}

TEST_F(CimProcessorTest, ListsTheSocketsOnce) {
  AddSecondSocket();
  store.RecordCalls();
  Enumerate("CIM_Processor");
  EXPECT_EQ((std::vector<std::string>{"children 2/196",                      //
                                      "object 100", "children 100/210",      //
                                      "object 110", "free", "free", "free",  //
                                      "object 101", "children 101/210", "free", "free"}),
            store.Calls());
}

TEST_F(CimProcessorTest, AnEmptyStoreIsSuccess) {
  store.List(2, 196, {});
  EXPECT_EQ(0, Enumerate("CIM_Processor"));
  EXPECT_EQ(0, GetById(OLESTR("0")));
  store.FailListing(2, 196);
  EXPECT_EQ(0, Enumerate("CIM_Processor"));
  EXPECT_EQ(0, GetById(OLESTR("0")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimProcessorTest, StopsAtASocketThatCannotBeRead) {
  store.List(2, 196, {100, 999, 100});
  EXPECT_EQ(0, Enumerate("CIM_Processor"));
  EXPECT_EQ(1u, DeliveredCount());
  EXPECT_EQ(1u, definition.Spawns());
}

TEST_F(CimProcessorTest, StoppingAtASocketKeepsTheStatusOfTheLastDelivery) {
  store.List(2, 196, {100, 999});
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), Enumerate("CIM_Processor"));
}

TEST_F(CimProcessorTest, StopsAtAFailedSpawnAndReturnsIt) {
  store.List(2, 196, {100, 100, 100});
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), Enumerate("CIM_Processor"));
  EXPECT_EQ(1u, DeliveredCount());
  EXPECT_EQ(2u, definition.Spawns());
}

TEST_F(CimProcessorTest, StopsWhereASuccessfulSpawnGaveNoInstance) {
  definition.SpawnNothing(0, S_OK);
  EXPECT_EQ(0, Enumerate("CIM_Processor"));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(CimProcessorTest, GoesOnAfterARefusalAndReturnsTheLastDelivery) {
  AddSecondSocket();
  sink.Refuse(0, Hr(0x80041032));
  EXPECT_EQ(0, Enumerate("CIM_Processor"));
  EXPECT_EQ(2u, DeliveredCount());
  sink.Refuse(3, Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), Enumerate("CIM_Processor"));
}

TEST_F(CimProcessorTest, EndsAfter65536SocketsInsteadOfStartingOver) {
  definition.RecordNothing();
  store.Remove(110);
  store.List(2, 196, std::vector<uint32_t>(65'537, 100));
  EXPECT_EQ(0, Enumerate("CIM_Processor"));
  EXPECT_EQ(65'536u, DeliveredCount());
}

TEST_F(CimProcessorTest, IsGotByItsDeviceId) {
  EXPECT_EQ(0, GetById(OLESTR("0")));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kFirstProcessor, Delivered(0));
}

TEST_F(CimProcessorTest, TheDeviceIdGoesBackAsThePathGaveIt) {
  AddSecondSocket();
  store.List(101, 210, {110});
  EXPECT_EQ(0, GetById(OLESTR("01")));
  EXPECT_EQ(0, GetById(OLESTR(" +1 and more")));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ("CPU2", Value(0, "Name"));
  EXPECT_EQ("01", Value(0, "DeviceID"));
  EXPECT_EQ("CPU2", Value(1, "Name"));
  EXPECT_EQ(" +1 and more", Value(1, "DeviceID"));
}

TEST_F(CimProcessorTest, ADeviceIdThatIsNoNumberIsIndexZero) {
  EXPECT_EQ(0, GetById(OLESTR("socket")));
  EXPECT_EQ(0, GetById(OLESTR("")));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ("socket", Value(0, "DeviceID"));
  EXPECT_EQ("", Value(1, "DeviceID"));
}

TEST_F(CimProcessorTest, AnEmptySocketIsNotGot) {
  AddSecondSocket();
  EXPECT_EQ(0, GetById(OLESTR("1")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimProcessorTest, AnIndexBeyondTheSocketsIsSuccessWithNothing) {
  EXPECT_EQ(0, GetById(OLESTR("1")));
  EXPECT_EQ(0, GetById(OLESTR("-1")));
  EXPECT_EQ(0, GetById(OLESTR("65536")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimProcessorTest, ASocketThatCannotBeReadIsSuccessWithNothing) {
  store.FailRead(100);
  EXPECT_EQ(0, GetById(OLESTR("0")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimProcessorTest, GettingReturnsTheFailureOfTheSpawnAndOfTheDelivery) {
  definition.SpawnNothing(0, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), GetById(OLESTR("0")));
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), GetById(OLESTR("0")));
}

TEST_F(CimProcessorTest, FindsItsKeyAmongOthersInAnyCase) {
  FakeKeyList keys;
  keys.Add(StringKey(OLESTR("SystemName"), OLESTR("5")))
      .Add(StringKey(OLESTR("DEVICEid"), OLESTR("0")))
      .Add(StringKey(OLESTR("DeviceID"), OLESTR("7")));
  EXPECT_EQ(0, Get("CIM_Processor", keys));
  EXPECT_EQ(1u, DeliveredCount());
  EXPECT_EQ((std::vector<ULONG>{0, 1}), keys.Reads());
}

TEST_F(CimProcessorTest, TakesAKeyThatIsATextWhateverThePathTakesItFor) {
  EXPECT_EQ(0, Get("CIM_Processor", {OLESTR("DeviceID"), Variant::Text(OLESTR("0")), CIM_SINT32}));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(CimProcessorTest, SkipsAKeyThatHoldsNoText) {
  FakeKeyList keys;
  keys.Add({OLESTR("DeviceID"), Variant::Int32(0), CIM_STRING});
  EXPECT_EQ(0, Get("CIM_Processor", keys));
  EXPECT_EQ(0u, DeliveredCount());
  keys.Add(StringKey(OLESTR("DeviceID"), OLESTR("0")));
  EXPECT_EQ(0, Get("CIM_Processor", keys));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(CimProcessorTest, ANullTextIsNoKey) {
  EXPECT_EQ(0, Get("CIM_Processor", StringKey(OLESTR("DeviceID"), nullptr)));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimProcessorTest, WithoutItsKeyReturnsTheStatusOfTheLastRead) {
  store.RecordCalls();
  FakeKeyList none;
  EXPECT_EQ(0, Get("CIM_Processor", none));
  FakeKeyList keys;
  keys.Add(StringKey(OLESTR("Tag"), OLESTR("0"))).Add(StringKey(OLESTR("Name"), OLESTR("0")));
  EXPECT_EQ(0, Get("CIM_Processor", keys));
  EXPECT_TRUE(store.Calls().empty());
}

TEST_F(CimProcessorTest, ReturnsTheFailureOfTheKeyList) {
  FakeKeyList uncountable;
  uncountable.Add(StringKey(OLESTR("DeviceID"), OLESTR("0"))).FailCount(Hr(0x80041008));
  EXPECT_EQ(Hr(0x80041008), Get("CIM_Processor", uncountable));
  FakeKeyList unreadable;
  unreadable.Add(StringKey(OLESTR("DeviceID"), OLESTR("0"))).FailKey(0, Hr(0x80041001));
  EXPECT_EQ(Hr(0x80041001), Get("CIM_Processor", unreadable));
  unreadable.Add(StringKey(OLESTR("DeviceID"), OLESTR("0")));
  EXPECT_EQ(Hr(0x80041001), Get("CIM_Processor", unreadable)) << "it ends the search";
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimProcessorTest, IsNotFoundWithoutAKeyList) {
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys("CIM_Processor"));
  EXPECT_EQ(0u, definition.Spawns());
}

}  // namespace
}  // namespace tqcim::testing
