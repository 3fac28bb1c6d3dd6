#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

class CimPhysicalMemoryTest : public HandlerTest {
 protected:
  CimPhysicalMemoryTest() {
    store.Add(200, 225, 2)
        .U32(16, 72)
        .U32(20, 64)
        .U32(24, 0x7FFFFFFF)
        .U32(28, 9)
        .U32(36, 26)
        .U32(44, 2666)
        .Ucs2(68, u"DIMM_A1")
        .Ucs2(72, u"Bank A")
        .Ucs2(80, u"Example Memory")
        .Ucs2(84, u"0A1B2C3D")
        .Ucs2(96, u"2666 MHz")
        .U32(108, 2)
        .U32(112, 16384);
    store.List(2, 225, {200});
  }

  void AddSecondDevice() {
    store.Add(201, 225, 3);
    for (const uint32_t field : {68, 72, 80, 84, 96}) store.Object(201).Ucs2(field, u"second");
    store.List(2, 225, {200, 201});
  }

  HRESULT GetByTag(const OLECHAR* tag) {
    return Get("CIM_PhysicalMemory", StringKey(OLESTR("Tag"), tag));
  }

  /// The value of a property after a 32-bit field was set.
  std::string With(uint32_t offset, uint32_t fieldValue, const char* property) {
    store.Object(200).U32(offset, fieldValue);
    Enumerate("CIM_PhysicalMemory");
    return Value(DeliveredCount() - 1, property);
  }
};

const Puts kFirstModule = {{"Speed", VT_I4, 0, "2666"},
                           {"MemoryType", VT_I4, 0, "26"},
                           {"FormFactor", VT_I4, 0, "8"},
                           {"Rank", VT_I4, 0, "2"},
                           {"Capacity", VT_BSTR, CIM_UINT64, "17179869184"},
                           {"DataWidth", VT_I4, 0, "64"},
                           {"TotalWidth", VT_I4, 0, "72"},
                           {"BankLabel", VT_BSTR, 0, "Bank A"},
                           {"Name", VT_BSTR, 0, "DIMM_A1"},
                           {"Tag", VT_BSTR, 0, "0"},
                           {"Status", VT_BSTR, 0, "OK"},
                           {"CreationClassName", VT_BSTR, 0, "CIM_PhysicalMemory"},
                           {"SpeedAsString", VT_BSTR, 0, "2666 MHz"},
                           {"Manufacturer", VT_BSTR, 0, "Example Memory"},
                           {"SerialNumber", VT_BSTR, 0, "0A1B2C3D"}};

TEST_F(CimPhysicalMemoryTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, Enumerate("CIM_PhysicalMemory"));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kFirstModule, Delivered(0));
}

TEST_F(CimPhysicalMemoryTest, EnumeratesEveryDeviceByItsPosition) {
  AddSecondDevice();
  EXPECT_EQ(0, Enumerate("CIM_PhysicalMemory"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ("0", Value(0, "Tag"));
  EXPECT_EQ("OK", Value(0, "Status"));
  EXPECT_EQ("1", Value(1, "Tag"));
  EXPECT_EQ("Stressed", Value(1, "Status"));
  EXPECT_EQ("second", Value(1, "SerialNumber"));
}

TEST_F(CimPhysicalMemoryTest, ListsAgainForEveryPosition) {
  store.RecordCalls();
  Enumerate("CIM_PhysicalMemory");
  EXPECT_EQ((std::vector<std::string>{"children 2/225", "object 200", "free", "free",  //
                                      "children 2/225", "free"}),
            store.Calls());
}

TEST_F(CimPhysicalMemoryTest, FormFactorIsTranslated) {
  constexpr std::pair<uint32_t, const char*> kRows[] = {
      {0, "0"},   {1, "1"},   {2, "0"},   {3, "7"},   {4, "2"},  {5, "1"},
      {6, "3"},   {7, "4"},   {8, "6"},   {9, "8"},   {10, "9"}, {11, "1"},
      {12, "11"}, {13, "12"}, {14, "13"}, {15, "24"}, {16, "0"}, {0xFFFFFFFF, "0"}};
  for (const auto& [code, value] : kRows) EXPECT_EQ(value, With(28, code, "FormFactor")) << code;
}

TEST_F(CimPhysicalMemoryTest, MemoryTypeIsTranslated) {
  constexpr std::pair<uint32_t, const char*> kRows[] = {
      {0, "0"},   {1, "1"},   {2, "0"},   {3, "2"},   {4, "6"},         {5, "7"},   {6, "8"},
      {7, "9"},   {8, "10"},  {9, "11"},  {10, "12"}, {11, "13"},       {12, "14"}, {13, "15"},
      {14, "16"}, {15, "17"}, {16, "18"}, {17, "19"}, {18, "20"},       {19, "21"}, {20, "22"},
      {24, "24"}, {25, "25"}, {26, "26"}, {27, "0"},  {0xFFFFFFFF, "0"}};
  for (const auto& [code, value] : kRows) EXPECT_EQ(value, With(36, code, "MemoryType")) << code;
}

TEST_F(CimPhysicalMemoryTest, MemoryTypes21To23HaveNoTranslation) {
  for (const uint32_t code : {21, 22, 23}) EXPECT_EQ("0", With(36, code, "MemoryType")) << code;
}

TEST_F(CimPhysicalMemoryTest, RankIsOneOfAFewOrNothing) {
  constexpr std::pair<uint32_t, const char*> kRows[] = {
      {0, "0"}, {1, "1"}, {2, "2"}, {3, "0"},   {4, "4"},  {5, "0"},
      {7, "0"}, {8, "8"}, {9, "0"}, {16, "16"}, {32, "0"}, {0xFFFFFFFF, "0"}};
  for (const auto& [code, value] : kRows) EXPECT_EQ(value, With(108, code, "Rank")) << code;
}

TEST_F(CimPhysicalMemoryTest, CapacityOfTheExtendedSizeIsInMegabytes) {
  EXPECT_EQ("17179869184", With(112, 16384, "Capacity"));
  EXPECT_EQ("1048576", With(112, 1, "Capacity"));
  EXPECT_EQ("4503599626321920", With(112, 0xFFFFFFFF, "Capacity"));
}

TEST_F(CimPhysicalMemoryTest, CapacityWithoutAnExtendedSizeIsInKilobytes) {
  store.Object(200).U32(112, 0);
  EXPECT_EQ("4294967296", With(24, 4194304, "Capacity"));
  EXPECT_EQ("4398046510080", With(24, 0xFFFFFFFF, "Capacity"));
  EXPECT_EQ("0", With(24, 0, "Capacity"));
}

TEST_F(CimPhysicalMemoryTest, Unsigned32BitValuesKeepTheirBits) {
  EXPECT_EQ("-1", With(44, 0xFFFFFFFF, "Speed"));
  EXPECT_EQ("-1", With(20, 0xFFFFFFFF, "DataWidth"));
  EXPECT_EQ("-2147483648", With(16, 0x80000000, "TotalWidth"));
}

TEST_F(CimPhysicalMemoryTest, AnEmptyStoreIsSuccessToEnumerateAndNotFoundToGet) {
  store.List(2, 225, {});
  EXPECT_EQ(0, Enumerate("CIM_PhysicalMemory"));
  EXPECT_EQ(Hr(0x80041002), GetByTag(OLESTR("0")));
  store.FailListing(2, 225);
  EXPECT_EQ(0, Enumerate("CIM_PhysicalMemory"));
  EXPECT_EQ(Hr(0x80041002), GetByTag(OLESTR("0")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimPhysicalMemoryTest, EndsAtTheFirstDeviceThatCannotBeRead) {
  AddSecondDevice();
  store.FailRead(200);
  EXPECT_EQ(0, Enumerate("CIM_PhysicalMemory"));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(CimPhysicalMemoryTest, EndsAfter65536DevicesInsteadOfStartingOver) {
  definition.RecordNothing();
  store.ListLong(2, 225, std::vector<uint32_t>(65'537, 200));
  EXPECT_EQ(0, Enumerate("CIM_PhysicalMemory"));
  EXPECT_EQ(65'536u, DeliveredCount());
}

TEST_F(CimPhysicalMemoryTest, StopsAtAFailedSpawnAndReturnsIt) {
  AddSecondDevice();
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), Enumerate("CIM_PhysicalMemory"));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(CimPhysicalMemoryTest, StopsWhereASuccessfulSpawnGaveNoInstance) {
  definition.SpawnNothing(0, S_OK);
  EXPECT_EQ(0, Enumerate("CIM_PhysicalMemory"));
  EXPECT_EQ(1u, definition.Spawns());
}

TEST_F(CimPhysicalMemoryTest, GoesOnAfterARefusalAndReturnsTheLastDelivery) {
  AddSecondDevice();
  sink.Refuse(0, Hr(0x80041032));
  EXPECT_EQ(0, Enumerate("CIM_PhysicalMemory"));
  EXPECT_EQ(2u, DeliveredCount());
  sink.Refuse(3, Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), Enumerate("CIM_PhysicalMemory"));
}

TEST_F(CimPhysicalMemoryTest, IsGotByItsTag) {
  EXPECT_EQ(0, GetByTag(OLESTR("0")));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kFirstModule, Delivered(0));
}

TEST_F(CimPhysicalMemoryTest, TheTagIsWrittenAnewFromTheIndex) {
  AddSecondDevice();
  EXPECT_EQ(0, GetByTag(OLESTR("01")));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ("1", Value(0, "Tag"));
  EXPECT_EQ("second", Value(0, "Name"));
}

TEST_F(CimPhysicalMemoryTest, ATagThatIsNoNumberIsIndexZero) {
  EXPECT_EQ(0, GetByTag(OLESTR("DIMM_A1")));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ("0", Value(0, "Tag"));
}

TEST_F(CimPhysicalMemoryTest, TheIndexHas16Bits) {
  EXPECT_EQ(0, GetByTag(OLESTR("65536")));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kFirstModule, Delivered(0));
  EXPECT_EQ(Hr(0x80041002), GetByTag(OLESTR("256")));
}

TEST_F(CimPhysicalMemoryTest, ATagBeyondTheDevicesIsNotFound) {
  EXPECT_EQ(Hr(0x80041002), GetByTag(OLESTR("1")));
  EXPECT_EQ(Hr(0x80041002), GetByTag(OLESTR("-1")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimPhysicalMemoryTest, ADeviceThatCannotBeReadIsNotFound) {
  store.FailRead(200);
  EXPECT_EQ(Hr(0x80041002), GetByTag(OLESTR("0")));
}

TEST_F(CimPhysicalMemoryTest, GettingReturnsTheFailureOfTheSpawnAndOfTheDelivery) {
  definition.SpawnNothing(0, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), GetByTag(OLESTR("0")));
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), GetByTag(OLESTR("0")));
}

TEST_F(CimPhysicalMemoryTest, FindsItsKeyAmongOthersInAnyCase) {
  FakeKeyList keys;
  keys.Add(StringKey(OLESTR("CreationClassName"), OLESTR("CIM_PhysicalMemory")))
      .Add({OLESTR("Tag"), Variant::Int32(5), CIM_STRING})
      .Add({OLESTR("TAG"), Variant::Text(OLESTR("0")), CIM_SINT32});
  EXPECT_EQ(0, Get("CIM_PhysicalMemory", keys));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(CimPhysicalMemoryTest, WithoutItsKeyReturnsTheStatusOfTheLastRead) {
  EXPECT_EQ(0, Get("CIM_PhysicalMemory", StringKey(OLESTR("DeviceID"), OLESTR("0"))));
  EXPECT_EQ(0, Get("CIM_PhysicalMemory", StringKey(OLESTR("Tag"), nullptr)));
  FakeKeyList unreadable;
  unreadable.Add(StringKey(OLESTR("Name"), OLESTR("0"))).FailKey(0, Hr(0x80041001));
  EXPECT_EQ(Hr(0x80041001), Get("CIM_PhysicalMemory", unreadable));
  unreadable.Add(StringKey(OLESTR("Tag"), OLESTR("0")));
  EXPECT_EQ(Hr(0x80041001), Get("CIM_PhysicalMemory", unreadable)) << "it ends the search";
  FakeKeyList uncountable;
  uncountable.FailCount(Hr(0x80041008));
  EXPECT_EQ(Hr(0x80041008), Get("CIM_PhysicalMemory", uncountable));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimPhysicalMemoryTest, IsNotFoundWithoutAKeyList) {
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys("CIM_PhysicalMemory"));
}

}  // namespace
}  // namespace tqcim::testing
