#include <algorithm>

#include "tests/classes/power/power_test.h"

namespace tqcim::testing {
namespace {

class CimPowerSupplyTest : public PowerTest {
 protected:
  CimPowerSupplyTest() {
    AddSupply(200, u"PS1");
    AddSupply(201, u"PS2");
    SetChassis({100});
    store.List(100, 21, {200, 201});
  }

  HRESULT GetByName(const OLECHAR* name) {
    return Get("CIM_PowerSupply", StringKey(OLESTR("DeviceID"), name));
  }

  /// One property of supply 200 as it now stands.
  std::string ValueNow(const std::string& property) {
    GetByName(OLESTR("PS1"));
    return Value(DeliveredCount() - 1, property);
  }

  /// How often an object was read.
  auto Reads(uint32_t oid) const {
    return std::count(store.Calls().begin(), store.Calls().end(), "object " + std::to_string(oid));
  }
};

const Puts kSupply = {{"ActiveInputVoltage", VT_I2, 0, "1"},
                      {"TotalOutputPower", VT_I2, 0, "750"},
                      {"CreationClassName", VT_BSTR, 0, "CIM_PowerSupply"},
                      {"SystemCreationClassName", VT_BSTR, 0, "Local System"},
                      {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
                      {"Name", VT_BSTR, 0, "PS1"},
                      {"DeviceID", VT_BSTR, 0, "PS1"},
                      {"Status", VT_BSTR, 0, "OK"},
                      {"LastErrorCode", VT_I4, 0, "1"},
                      {"ErrorDescription", VT_BSTR, 0, "Presence detected"},
                      {"IsSwitchingSupply", VT_BOOL, 0, "1"},
                      {"PMCapable", VT_BOOL, 0, "1"},
                      {"InputRatedPower", VT_I4, 0, "1150"}};

TEST_F(CimPowerSupplyTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, Enumerate("CIM_PowerSupply"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(kSupply, Delivered(0));
}

TEST_F(CimPowerSupplyTest, IsGotWithTheSameProperties) {
  EXPECT_EQ(0, GetByName(OLESTR("PS1")));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kSupply, Delivered(0));
}

TEST_F(CimPowerSupplyTest, TheSystemIsOfTheClassLocalSystemUnlikeInReferences) {
  EXPECT_EQ("Local System", ValueNow("SystemCreationClassName"));
}

TEST_F(CimPowerSupplyTest, TotalOutputPowerIsASigned16BitNumber) {
  store.Object(200).U16(16, 40000);
  EXPECT_EQ("-25536", ValueNow("TotalOutputPower"));
}

TEST_F(CimPowerSupplyTest, InputRatedPowerKeepsItsBits) {
  store.Object(200).U32(20, 0x00012345);
  EXPECT_EQ("74565", ValueNow("InputRatedPower"));
  store.Object(200).U32(20, 0xFFFFFFFE);
  EXPECT_EQ("-2", ValueNow("InputRatedPower"));
}

TEST_F(CimPowerSupplyTest, StatusFollowsTheObjectStatus) {
  constexpr std::pair<uint8_t, const char*> kTexts[] = {
      {0, "Other"}, {1, "Unknown"},    {2, "OK"},       {3, "Stressed"},
      {4, "Error"}, {5, "NonRecover"}, {6, "Stressed"}, {255, "Stressed"}};
  for (const auto& [status, text] : kTexts) {
    store.Object(200).U8(10, status);
    EXPECT_EQ(text, ValueNow("Status")) << int{status};
  }
}

TEST_F(CimPowerSupplyTest, LastErrorCodeIsTheStateWithoutASign) {
  store.Object(200).U16(38, 64);
  EXPECT_EQ("64", ValueNow("LastErrorCode"));
  store.Object(200).U16(38, 0x8001);
  EXPECT_EQ("32769", ValueNow("LastErrorCode"));
}

TEST_F(CimPowerSupplyTest, ErrorDescriptionTellsTheState) {
  constexpr std::pair<uint16_t, const char*> kTexts[] = {
      {1, "Presence detected"},           {2, "PS Failure detected"},
      {4, "Predictive Failure"},          {8, "PS AC lost"},
      {16, "AC lost or out-of-range"},    {32, "AC out-of-range, but present"},
      {64, "Configuration error:unknown"}};
  store.Object(200).U8(41, 7);
  for (const auto& [state, text] : kTexts) {
    store.Object(200).U16(38, state);
    EXPECT_EQ(text, ValueNow("ErrorDescription")) << state;
  }
}

TEST_F(CimPowerSupplyTest, AStateThatIsNotOneOfTheSevenIsUnknown) {
  for (const uint16_t state : std::initializer_list<uint16_t>{0, 3, 5, 33, 63, 65, 66, 96, 128, 256,
                                                              0x4000, 0x8000, 0xFFFF}) {
    store.Object(200).U16(38, state);
    EXPECT_EQ("unknown", ValueNow("ErrorDescription")) << state;
  }
}

TEST_F(CimPowerSupplyTest, AConfigurationErrorAndItsKindRunTogether) {
  constexpr std::pair<uint8_t, const char*> kTexts[] = {
      {0, "Configuration error:Vendor mismatch"},   {1, "Configuration error:Revision mismatch"},
      {2, "Configuration error:Processor missing"}, {3, "Configuration error:unknown"},
      {7, "Configuration error:unknown"},           {255, "Configuration error:unknown"}};
  store.Object(200).U16(38, 64);
  for (const auto& [kind, text] : kTexts) {
    store.Object(200).U8(41, kind);
    EXPECT_EQ(text, ValueNow("ErrorDescription")) << int{kind};
  }
}

TEST_F(CimPowerSupplyTest, IsSwitchingSupplyIsTheRawOneForKindNineOnly) {
  EXPECT_EQ("1", ValueNow("IsSwitchingSupply"));
  for (const uint8_t kind : std::initializer_list<uint8_t>{0, 1, 8, 10, 11, 255}) {
    store.Object(200).U8(40, kind);
    EXPECT_EQ("0", ValueNow("IsSwitchingSupply")) << int{kind};
  }
}

TEST_F(CimPowerSupplyTest, PmCapableIsTheStoredWordAsItStands) {
  constexpr std::pair<uint16_t, const char*> kRows[] = {
      {0, "0"}, {1, "1"}, {2, "2"}, {0x0100, "256"}, {0xFFFF, "-1"}};
  for (const auto& [word, value] : kRows) {
    store.Object(200).U16(42, word);
    EXPECT_EQ(value, ValueNow("PMCapable")) << word;
  }
}

TEST_F(CimPowerSupplyTest, TheNameIsCopiedCharacterByCharacter) {
  store.Object(200).Ucs2(44, u"PSé™");
  Enumerate("CIM_PowerSupply");
  EXPECT_EQ("PS\\u00E9\\u2122", Value(0, "Name"));
  EXPECT_EQ("PS\\u00E9\\u2122", Value(0, "DeviceID"));
}

TEST_F(CimPowerSupplyTest, ARefusedPutKeepsNothingBack) {
  definition.SetPutResult(Hr(0x80041002));
  EXPECT_EQ(0, Enumerate("CIM_PowerSupply"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(kSupply, Delivered(0));
}

// Enumeration.

TEST_F(CimPowerSupplyTest, EnumeratesTheSuppliesOfEveryChassis) {
  AddSupply(202, u"PS3");
  SetChassis({100, 101, 102});
  store.List(101, 21, {});
  store.List(102, 21, {202});
  EXPECT_EQ(0, Enumerate("CIM_PowerSupply"));
  EXPECT_EQ((Texts{"PS1", "PS2", "PS3"}), Values("Name"));
}

TEST_F(CimPowerSupplyTest, ListsAgainForEverySupply) {
  store.RecordCalls();
  Enumerate("CIM_PowerSupply");
  EXPECT_EQ((std::vector<std::string>{
                "children 1/17", "children 100/21", "object 200", "free", "free", "free",  //
                "children 1/17", "children 100/21", "object 201", "free", "free", "free",  //
                "children 1/17", "children 100/21", "free", "free"}),
            store.Calls());
}

TEST_F(CimPowerSupplyTest, WithoutChassisEnumerationIsSuccess) {
  SetChassis({});
  EXPECT_EQ(0, Enumerate("CIM_PowerSupply"));
  store.FailListing(1, 17);
  EXPECT_EQ(0, Enumerate("CIM_PowerSupply"));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimPowerSupplyTest, WithoutSuppliesEnumerationIsSuccess) {
  store.List(100, 21, {});
  EXPECT_EQ(0, Enumerate("CIM_PowerSupply"));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimPowerSupplyTest, AFailedListingEndsTheEnumeration) {
  AddSupply(202, u"PS3");
  SetChassis({100, 101, 102});
  store.List(102, 21, {202});
  store.FailListing(101, 21);
  EXPECT_EQ(0, Enumerate("CIM_PowerSupply"));
  EXPECT_EQ((Texts{"PS1", "PS2"}), Values("Name"));
}

TEST_F(CimPowerSupplyTest, AnUnreadableSupplyEndsTheEnumeration) {
  store.FailRead(200);
  EXPECT_EQ(0, Enumerate("CIM_PowerSupply"));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimPowerSupplyTest, AFailedSpawnEndsTheEnumerationWithTheLastDelivery) {
  sink.Refuse(0, Hr(0x80041032));
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041032), Enumerate("CIM_PowerSupply"));
  EXPECT_EQ((Texts{"PS1"}), Values("Name"));
}

TEST_F(CimPowerSupplyTest, AFirstSpawnThatFailsIsSuccess) {
  definition.SpawnNothing(0, Hr(0x80041006));
  EXPECT_EQ(0, Enumerate("CIM_PowerSupply"));
  EXPECT_EQ(1u, definition.Spawns());
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(CimPowerSupplyTest, ASuccessfulSpawnWithoutAnInstanceEndsTheEnumeration) {
  definition.SpawnNothing(0, S_OK);
  EXPECT_EQ(0, Enumerate("CIM_PowerSupply"));
  EXPECT_EQ(1u, definition.Spawns());
}

TEST_F(CimPowerSupplyTest, EnumerationGoesOnAfterARefusalAndReturnsTheLastDelivery) {
  sink.Refuse(0, Hr(0x80041032));
  EXPECT_EQ(0, Enumerate("CIM_PowerSupply"));
  EXPECT_EQ(2u, DeliveredCount());
  sink.Refuse(3, Hr(0x80041033));
  EXPECT_EQ(Hr(0x80041033), Enumerate("CIM_PowerSupply"));
}

TEST_F(CimPowerSupplyTest, AnInstanceThatTheSinkKeepsDoesNotShowInTheResult) {
  sink.KeepInstances();
  EXPECT_EQ(0, Enumerate("CIM_PowerSupply"));
}

// Getting one.

TEST_F(CimPowerSupplyTest, IsGotByItsNameInAnyCase) {
  EXPECT_EQ(0, GetByName(OLESTR("ps1")));
  EXPECT_EQ((Texts{"PS1"}), Values("Name"));
}

TEST_F(CimPowerSupplyTest, ANameThatMatchesNothingIsSuccessWithNothing) {
  for (const OLECHAR* name : {OLESTR("PS9"), OLESTR("PS"), OLESTR("PS11"), OLESTR("")}) {
    EXPECT_EQ(0, GetByName(name));
  }
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimPowerSupplyTest, GettingIsBoundedByTheNumberOfChassisSoOneHidesTheSecondSupply) {
  EXPECT_EQ(0, GetByName(OLESTR("PS2")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimPowerSupplyTest, GettingFindsTheSecondButNotTheThirdSupplyOfTwoChassis) {
  AddSupply(202, u"PS3");
  store.List(100, 21, {200, 201, 202});
  SetChassis({100, 101});
  EXPECT_EQ(0, GetByName(OLESTR("PS2")));
  EXPECT_EQ(0, GetByName(OLESTR("PS3")));
  EXPECT_EQ((Texts{"PS2"}), Values("Name"));
}

TEST_F(CimPowerSupplyTest, GettingEndsAtTheLastSupplyOfAChassisThoughThereAreMoreChassis) {
  AddSupply(202, u"PS3");
  SetChassis({100, 101, 102});
  store.List(100, 21, {200});
  store.List(101, 21, {});
  store.List(102, 21, {202});
  store.RecordCalls();
  EXPECT_EQ(0, GetByName(OLESTR("PS3")));
  EXPECT_EQ((Texts{"PS3"}), Values("Name"));
  EXPECT_EQ((std::vector<std::string>{"children 1/17", "children 100/21", "object 200", "free",
                                      "free", "children 101/21", "free", "children 102/21",
                                      "object 202", "free", "free", "free"}),
            store.Calls());
}

TEST_F(CimPowerSupplyTest, TheFirstMatchEndsTheSearch) {
  AddSupply(202, u"PS1");
  SetChassis({100, 101});
  store.List(100, 21, {200, 200});
  store.List(101, 21, {202});
  store.RecordCalls();
  EXPECT_EQ(0, GetByName(OLESTR("PS1")));
  EXPECT_EQ(1u, DeliveredCount());
  EXPECT_EQ(1, Reads(200));
  EXPECT_EQ(0, Reads(202));
}

TEST_F(CimPowerSupplyTest, GettingTriesAFailedReadAgainAtTheSamePosition) {
  store.FailRead(200, 3);
  store.RecordCalls();
  EXPECT_EQ(0, GetByName(OLESTR("PS1")));
  EXPECT_EQ((Texts{"PS1"}), Values("Name"));
  EXPECT_EQ(4, Reads(200));
}

TEST_F(CimPowerSupplyTest, AReadThatFailsAFewTimesCostsGettingNoPosition) {
  SetChassis({100, 101});
  store.FailRead(200, 3);
  store.RecordCalls();
  EXPECT_EQ(0, GetByName(OLESTR("PS2")));
  EXPECT_EQ((Texts{"PS2"}), Values("Name"));
  EXPECT_EQ(4, Reads(200));
  EXPECT_EQ(1, Reads(201));
}

TEST_F(CimPowerSupplyTest, AReadThatSucceedsAtTheLastTryIsStillFound) {
  store.FailRead(200, 65535);
  EXPECT_EQ(0, GetByName(OLESTR("PS1")));
  EXPECT_EQ((Texts{"PS1"}), Values("Name"));
}

TEST_F(CimPowerSupplyTest, AReadThatAlwaysFailsEndsAndTheSearchGoesOn) {
  AddSupply(202, u"PS3");
  SetChassis({100, 101});
  store.List(101, 21, {202});
  store.FailRead(200);
  store.FailRead(201);
  store.RecordCalls();
  EXPECT_EQ(0, GetByName(OLESTR("PS3")));
  EXPECT_EQ((Texts{"PS3"}), Values("Name"));
  EXPECT_EQ(65536, Reads(200));
  EXPECT_EQ(65536, Reads(201));
}

TEST_F(CimPowerSupplyTest, WithoutChassisGettingIsSuccessWithNothing) {
  SetChassis({});
  EXPECT_EQ(0, GetByName(OLESTR("PS1")));
  store.FailListing(1, 17);
  EXPECT_EQ(0, GetByName(OLESTR("PS1")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimPowerSupplyTest, GettingGoesOnAfterAChassisWhoseListingFails) {
  SetChassis({101, 100});
  store.FailListing(101, 21);
  EXPECT_EQ(0, GetByName(OLESTR("PS1")));
  EXPECT_EQ((Texts{"PS1"}), Values("Name"));
}

TEST_F(CimPowerSupplyTest, GettingReturnsTheResultOfASpawnWithoutAnInstance) {
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, S_OK);
  EXPECT_EQ(Hr(0x80041006), GetByName(OLESTR("PS1")));
  EXPECT_EQ(0, GetByName(OLESTR("PS1")));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(CimPowerSupplyTest, GettingReturnsTheStatusOfTheDelivery) {
  sink.KeepInstances();
  sink.Refuse(0, Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), GetByName(OLESTR("PS1")));
  EXPECT_EQ(0, GetByName(OLESTR("PS1")));
}

}  // namespace
}  // namespace tqcim::testing
