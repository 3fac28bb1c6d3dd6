#include "tests/support/environment.h"
#include "tests/support/handler_test.h"
#include "tests/support/time_zone.h"

namespace tqcim::testing {
namespace {

/// 15 July 2012, 08:30:00 UTC, and 1 January 2120, 00:00:00 UTC, which takes more than 32 bits.
constexpr uint64_t kJuly2012 = 1342341000;
constexpr uint64_t kNewYear2120 = 4733510400;

class CimFruTest : public HandlerTest {
 protected:
  CimFruTest() {
    store.Add(20, 384, 3).U8(17, 2).Utf8(32, "Power distribution");
    store.List(2, 384, {20});
    store.Add(21, 389, 2)
        .U64(28, kNewYear2120)
        .Utf8(36, "Maker P")
        .Utf8(44, "SN-P")
        .Utf8(48, "PN-P")
        .Utf8(52, "Rev 7");
    store.List(20, 389, {21});
    AddOwnIdentity(22, 385);
    store.List(2, 385, {22});
  }

  /// A unit that carries its identity itself.
  void AddOwnIdentity(uint32_t oid, uint16_t type) {
    store.Add(oid, type, 2)
        .U8(17, 255)
        .U64(24, kJuly2012)
        .Utf8(32, "System board")
        .Utf8(36, "Maker S")
        .Utf8(40, "SN-S")
        .Utf8(48, "PN-S");
  }

  /// What CIM_FRU puts of the unit of type 384 alone.
  Puts PutsOfParent() {
    store.List(2, 385, {});
    EXPECT_EQ(0, Enumerate("CIM_FRU"));
    EXPECT_EQ(1u, DeliveredCount());
    return Delivered(0);
  }

  const TimeZone zone{"EEE5"};
};

const Puts kParent = {{"CreationClassName", VT_BSTR, 0, "CIM_FRU"},
                      {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
                      {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
                      {"Status", VT_BSTR, 0, "Stressed"},
                      {"FRUInfomationState", VT_I4, 0, "2"},
                      {"FRUDeviceName", VT_BSTR, 0, "Power distribution"},
                      {"DeviceID", VT_BSTR, 0, "Power distribution"}};

Puts ParentWith(const Puts& identity) {
  Puts puts = kParent;
  puts.insert(puts.end(), identity.begin(), identity.end());
  return puts;
}

const Puts kOwnIdentity = {
    {"CreationClassName", VT_BSTR, 0, "CIM_FRU"},
    {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
    {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
    {"Status", VT_BSTR, 0, "OK"},
    {"FRUInfomationState", VT_I4, 0, "255"},
    {"FRUDeviceName", VT_BSTR, 0, "System board"},
    {"DeviceID", VT_BSTR, 0, "System board"},
    {"FRUManufacturingDateName", VT_BSTR, CIM_DATETIME, "20120715033000.000000-300"},
    {"FRUManufacturerName", VT_BSTR, 0, "Maker S"},
    {"FRUSerialNumberName", VT_BSTR, 0, "SN-S"},
    {"FRUPartNumberName", VT_BSTR, 0, "PN-S"}};

TEST_F(CimFruTest, AUnitOfType384TakesItsIdentityFromItsChild) {
  EXPECT_EQ(
      ParentWith({{"FRUManufacturingDateName", VT_BSTR, CIM_DATETIME, "21191231190000.000000-300"},
                  {"FRUManufacturerName", VT_BSTR, 0, "Maker P"},
                  {"FRUSerialNumberName", VT_BSTR, 0, "SN-P"},
                  {"FRUPartNumberName", VT_BSTR, 0, "PN-P"},
                  {"FRURevisionName", VT_BSTR, 0, "Rev 7"}}),
      PutsOfParent());
}

TEST_F(CimFruTest, UnitsOfTypes385And386CarryTheirIdentityThemselves) {
  AddOwnIdentity(23, 386);
  store.List(2, 386, {23});
  EXPECT_EQ(0, Enumerate("CIM_FRU"));
  ASSERT_EQ(3u, DeliveredCount());
  EXPECT_EQ(kOwnIdentity, Delivered(1));
  EXPECT_EQ(kOwnIdentity, Delivered(2));
}

TEST_F(CimFruTest, InformationStateIsSpelledOneLetterShort) {
  Enumerate("CIM_FRU");
  EXPECT_EQ("2", Value(0, "FRUInfomationState"));
  EXPECT_EQ("<absent>", Value(0, "FRUInformationState"));
}

TEST_F(CimFruTest, UnitsComeInTheOrderOfTheirTypesAndThenOfTheStore) {
  store.Add(24, 385).Utf8(32, "Riser");
  store.Add(25, 386).Utf8(32, "Backplane");
  store.List(2, 385, {24, 22});
  store.List(2, 386, {25});
  EXPECT_EQ(0, Enumerate("CIM_FRU"));
  EXPECT_EQ((std::vector<std::string>{"Power distribution", "Riser", "System board", "Backplane"}),
            Values("FRUDeviceName"));
}

TEST_F(CimFruTest, ListsAgainForEveryPosition) {
  store.Add(22, 385).Utf8(32, "System board");
  store.List(2, 384, {});
  store.RecordCalls();
  Enumerate("CIM_FRU");
  EXPECT_EQ(
      (std::vector<std::string>{"children 2/384", "free",                //
                                "children 2/385", "object 22", "free",   //
                                "text 256", "free", "text 256", "free",  // the device's name, twice
                                "text 0", "text 0", "text 0",            //
                                "free", "children 2/385", "free", "children 2/386"}),  //
      store.Calls());
}

TEST_F(CimFruTest, AbsentTextsArePutAsNullStrings) {
  store.Add(20, 384, 3);
  store.Add(21, 389);
  store.Add(22, 385);
  EXPECT_EQ(0, Enumerate("CIM_FRU"));
  ASSERT_EQ(2u, DeliveredCount());
  const Puts withoutTexts = {{"FRUInfomationState", VT_I4, 0, "0"},
                             {"FRUDeviceName", VT_BSTR, 0, "<null>"},
                             {"DeviceID", VT_BSTR, 0, "<null>"},
                             {"FRUManufacturerName", VT_BSTR, 0, "<null>"},
                             {"FRUSerialNumberName", VT_BSTR, 0, "<null>"},
                             {"FRUPartNumberName", VT_BSTR, 0, "<null>"},
                             {"FRURevisionName", VT_BSTR, 0, "<null>"}};
  const Puts parent = Delivered(0);
  ASSERT_EQ(11u, parent.size());
  EXPECT_EQ(withoutTexts, Puts(parent.begin() + 4, parent.end()));
  const Puts own = Delivered(1);
  ASSERT_EQ(10u, own.size());
  EXPECT_EQ(Puts(withoutTexts.begin(), withoutTexts.end() - 1), Puts(own.begin() + 4, own.end()));
}

TEST_F(CimFruTest, ADateOf0IsNone) {
  store.Object(21).U64(28, 0);
  store.Object(22).U64(24, 0);
  Enumerate("CIM_FRU");
  for (size_t i = 0; i < 2; ++i) EXPECT_EQ("<absent>", Value(i, "FRUManufacturingDateName"));
  EXPECT_EQ("Maker P", Value(0, "FRUManufacturerName"));
  EXPECT_EQ("Maker S", Value(1, "FRUManufacturerName"));
}

TEST_F(CimFruTest, TheFirstSecondOf1970IsADate) {
  store.Object(22).U64(24, 18001);
  Enumerate("CIM_FRU");
  EXPECT_EQ("19700101000001.000000-300", Value(1, "FRUManufacturingDateName"));
}

TEST_F(CimFruTest, ReadsTheTimeZoneAgainForEveryRequest) {
  SetEnvironment("TZ", "BBB-2");
  Enumerate("CIM_FRU");
  SetEnvironment("TZ", "CCC-3");
  Enumerate("CIM_FRU");
  EXPECT_EQ("21200101020000.000000+120", Value(0, "FRUManufacturingDateName"));
  EXPECT_EQ("21200101030000.000000+180", Value(2, "FRUManufacturingDateName"));
}

TEST_F(CimFruTest, ADateThatNoCalendarHasIsLeftOut) {
  // The last would be a second before 1970, were it a signed number.
  for (const uint64_t date : {0x7FFFFFFFFFFFFFFFu, 0x8000000000000000u, 0xFFFFFFFFFFFFFFFFu}) {
    store.Object(22).U64(24, date);
    const size_t first = DeliveredCount();
    EXPECT_EQ(0, Enumerate("CIM_FRU"));
    EXPECT_EQ("<absent>", Value(first + 1, "FRUManufacturingDateName"));
    EXPECT_EQ("Maker S", Value(first + 1, "FRUManufacturerName"));
  }
}

TEST_F(CimFruTest, OnlyTheDateIsLeftOutWhereTheSupportLibraryHasNoMemory) {
  store.FailAllocations();
  EXPECT_EQ(0, Enumerate("CIM_FRU"));
  EXPECT_EQ("<absent>", Value(0, "FRUManufacturingDateName"));
  EXPECT_EQ("Rev 7", Value(0, "FRURevisionName"));
  EXPECT_EQ("<absent>", Value(1, "FRUManufacturingDateName"));
  EXPECT_EQ("PN-S", Value(1, "FRUPartNumberName"));
}

TEST_F(CimFruTest, StatusFollowsTheUnitNotItsChild) {
  constexpr std::pair<uint8_t, const char*> kStatusTexts[] = {
      {0, "Other"}, {1, "Unknown"},    {2, "OK"},        {3, "Stressed"},
      {4, "Error"}, {5, "NonRecover"}, {200, "Stressed"}};
  for (const auto& [status, text] : kStatusTexts) {
    store.Object(20).U8(10, status);
    const size_t unit = DeliveredCount();
    Enumerate("CIM_FRU");
    EXPECT_EQ(text, Value(unit, "Status")) << int{status};
  }
}

TEST_F(CimFruTest, AnObjectOfAnotherTypeGivesTheCommonPropertiesOnly) {
  store.Object(22).U16(8, 387);
  Enumerate("CIM_FRU");
  EXPECT_EQ(Puts(kOwnIdentity.begin(), kOwnIdentity.begin() + 4), Delivered(1));
}

TEST_F(CimFruTest, TheObjectsOwnTypeSelectsTheLayout) {
  store.Object(22).U16(8, 384);
  store.List(22, 389, {21});
  Enumerate("CIM_FRU");
  EXPECT_EQ("Maker P", Value(1, "FRUManufacturerName"));
}

TEST_F(CimFruTest, WithoutAChildOfType389ThereIsNoIdentity) {
  store.FailListing(20, 389);
  EXPECT_EQ(kParent, PutsOfParent());
}

TEST_F(CimFruTest, AnEmptyListOfChildrenIsNoIdentity) {
  store.List(20, 389, {});
  EXPECT_EQ(kParent, PutsOfParent());
}

TEST_F(CimFruTest, OnlyTheFirstChildIsAsked) {
  store.FailRead(21);
  store.Add(26, 389).Utf8(36, "Maker Q");
  store.List(20, 389, {21, 26});
  EXPECT_EQ(kParent, PutsOfParent());
}

TEST_F(CimFruTest, NoUnitsAreSuccess) {
  store.List(2, 384, {});
  store.FailListing(2, 385);
  EXPECT_EQ(0, Enumerate("CIM_FRU"));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimFruTest, AListingThatFailsOrAUnitThatCannotBeReadEndsItsTypeOnly) {
  store.Add(23, 386).Utf8(32, "Backplane");
  store.List(2, 386, {23});
  store.FailListing(2, 384);
  store.FailRead(22);
  EXPECT_EQ(0, Enumerate("CIM_FRU"));
  EXPECT_EQ((std::vector<std::string>{"Backplane"}), Values("FRUDeviceName"));
}

TEST_F(CimFruTest, UnitsBeyondPosition255AreReadToo) {
  store.Add(23, 386).Utf8(32, "Backplane");
  std::vector<uint32_t> oids(257, 22);
  oids[256] = 23;
  store.List(2, 386, oids);
  EXPECT_EQ(0, Enumerate("CIM_FRU"));
  ASSERT_EQ(259u, DeliveredCount());
  EXPECT_EQ("Backplane", Value(258, "FRUDeviceName"));
}

TEST_F(CimFruTest, ATypeEndsAfter65536UnitsInsteadOfStartingOverAndTheNextFollows) {
  definition.RecordNothing();
  store.Add(23, 387, 2);
  store.ListLong(2, 384, std::vector<uint32_t>(65'537, 23));
  EXPECT_EQ(0, Enumerate("CIM_FRU"));
  // All that a position can name, and the unit of type 385.
  EXPECT_EQ(65'537u, DeliveredCount());
}

TEST_F(CimFruTest, AFailedSpawnEndsAllTypesAndIsReturned) {
  store.Add(23, 386);
  store.List(2, 386, {23});
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), Enumerate("CIM_FRU"));
  EXPECT_EQ(1u, DeliveredCount());
  EXPECT_EQ(2u, definition.Spawns());
}

TEST_F(CimFruTest, ASuccessfulSpawnWithoutInstanceEndsAllTypesToo) {
  store.Add(23, 386);
  store.List(2, 386, {23});
  sink.SetIndicateResult(Hr(0x80041032));
  definition.SpawnNothing(1, S_OK);
  EXPECT_EQ(0, Enumerate("CIM_FRU"));
  EXPECT_EQ(1u, DeliveredCount());
  EXPECT_EQ(2u, definition.Spawns());
}

TEST_F(CimFruTest, GoesOnAfterARefusalAndReturnsTheLastDelivery) {
  sink.Refuse(0, Hr(0x80041032));
  EXPECT_EQ(0, Enumerate("CIM_FRU"));
  EXPECT_EQ(2u, DeliveredCount());
}

TEST_F(CimFruTest, TypesWithoutUnitsLeaveTheStatusOfTheLastDelivery) {
  store.List(2, 385, {});
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), Enumerate("CIM_FRU"));
}

TEST_F(CimFruTest, InstancesThatTheSinkKeepsDoNotShowInTheResult) {
  sink.KeepInstances();
  EXPECT_EQ(0, Enumerate("CIM_FRU"));
}

}  // namespace
}  // namespace tqcim::testing
