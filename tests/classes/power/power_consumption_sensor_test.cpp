// What the sensors of consumed current and of consumed power have in common.
#include "tests/classes/power/power_test.h"

namespace tqcim::testing {
namespace {

/// A sensor class, its two subtypes, and one of the other class.
struct SensorClass {
  const char* name;
  uint32_t subtype;
  uint32_t secondSubtype;
  uint32_t otherSubtype;
};

std::ostream& operator<<(std::ostream& out, const SensorClass& sensor) {
  return out << sensor.name;
}

/// A chassis with a probe of another class and two of this one.
class PowerConsumptionSensorTest : public PowerTest,
                                   public ::testing::WithParamInterface<SensorClass> {
 protected:
  PowerConsumptionSensorTest() {
    SetChassis({100});
    AddProbe(300, GetParam().otherSubtype, u"other");
    AddProbe(301, GetParam().subtype, u"first");
    AddProbe(302, GetParam().secondSubtype, u"second");
    store.List(100, 25, {300, 301, 302});
  }

  /// Behind it a chassis with one probe of this class.
  void AddSecondChassis() {
    SetChassis({100, 101});
    AddProbe(310, GetParam().subtype, u"far");
    store.List(101, 25, {310});
  }

  HRESULT EnumerateSensors() { return Enumerate(GetParam().name); }
  HRESULT GetById(const OLECHAR* id) {
    return Get(GetParam().name, StringKey(OLESTR("DeviceID"), id));
  }
};

TEST_P(PowerConsumptionSensorTest, TheDeviceIdCountsTheProbesOfOtherClassesToo) {
  AddSecondChassis();
  EXPECT_EQ(0, EnumerateSensors());
  EXPECT_EQ((Ids{{"first", "1"}, {"second", "2"}, {"far", "100"}}), DeliveredIds());
}

TEST_P(PowerConsumptionSensorTest, ListsAgainForEveryProbe) {
  store.List(100, 25, {300, 301});
  store.RecordCalls();
  EnumerateSensors();
  EXPECT_EQ((std::vector<std::string>{
                "children 1/17", "children 100/25", "object 300", "free", "free", "free",  //
                "children 1/17", "children 100/25", "object 301", "free", "free", "free",  //
                "children 1/17", "children 100/25", "free", "free"}),
            store.Calls());
}

TEST_P(PowerConsumptionSensorTest, WithoutProbesEnumerationIsSuccess) {
  store.List(100, 25, {});
  EXPECT_EQ(0, EnumerateSensors());
  store.FailListing(100, 25);
  EXPECT_EQ(0, EnumerateSensors());
  SetChassis({});
  EXPECT_EQ(0, EnumerateSensors());
  store.FailListing(1, 17);
  EXPECT_EQ(0, EnumerateSensors());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(PowerConsumptionSensorTest, AChassisWithoutProbesIsPassedOver) {
  AddSecondChassis();
  store.List(100, 25, {});
  EXPECT_EQ(0, EnumerateSensors());
  EXPECT_EQ((Ids{{"far", "100"}}), DeliveredIds());
}

TEST_P(PowerConsumptionSensorTest, AFailedListingEndsTheEnumeration) {
  AddSecondChassis();
  store.FailListing(100, 25);
  EXPECT_EQ(0, EnumerateSensors());
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_P(PowerConsumptionSensorTest, AnUnreadableProbeEndsTheEnumeration) {
  AddSecondChassis();
  store.FailRead(302);
  EXPECT_EQ(0, EnumerateSensors());
  EXPECT_EQ((Ids{{"first", "1"}}), DeliveredIds());
}

TEST_P(PowerConsumptionSensorTest, EnumerationReturnsTheReferencesThatAreLeftAfterTheLastRelease) {
  sink.KeepInstances();
  AddProbe(303, GetParam().otherSubtype, u"other again");
  store.List(100, 25, {300, 301, 302, 303});
  EXPECT_EQ(1, EnumerateSensors());
}

TEST_P(PowerConsumptionSensorTest, EnumerationIgnoresTheSinksRefusals) {
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(0, EnumerateSensors());
  EXPECT_EQ(2u, DeliveredCount());
}

TEST_P(PowerConsumptionSensorTest, AFailedSpawnEndsTheEnumerationWithTheLastRelease) {
  sink.KeepInstances();
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(1, EnumerateSensors());
  EXPECT_EQ((Ids{{"first", "1"}}), DeliveredIds());
}

TEST_P(PowerConsumptionSensorTest, AFirstSpawnWithoutAnInstanceIsSuccess) {
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, S_OK);
  EXPECT_EQ(0, EnumerateSensors());
  EXPECT_EQ(0, EnumerateSensors());
  EXPECT_EQ(2u, definition.Spawns());
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_P(PowerConsumptionSensorTest, GettingFindsTheProbeAtThePositionWhicheverItsSubtype) {
  AddProbe(303, GetParam().otherSubtype, u"fourth");
  store.List(100, 25, {300, 301, 302, 303});
  EXPECT_EQ(0, GetById(OLESTR("3")));
  EXPECT_EQ(0, GetById(OLESTR("0")));
  EXPECT_EQ((Ids{{"fourth", "3"}, {"other", "0"}}), DeliveredIds());
  EXPECT_EQ(GetParam().name, Value(0, "CreationClassName"));
}

TEST_P(PowerConsumptionSensorTest, ANumberPastTheFirstChassisFindsTheNextOnesFirstProbe) {
  AddSecondChassis();
  for (const OLECHAR* id : {OLESTR("3"), OLESTR("100"), OLESTR("105"), OLESTR("-1")}) {
    EXPECT_EQ(0, GetById(id));
  }
  EXPECT_EQ((Ids{{"far", "100"}, {"far", "100"}, {"far", "100"}, {"far", "100"}}), DeliveredIds());
}

TEST_P(PowerConsumptionSensorTest, ThePositionIsTheNumberThatTheKeyBeginsWith) {
  GetById(OLESTR(" 2nd"));
  GetById(OLESTR("02"));
  GetById(OLESTR("+1"));
  GetById(OLESTR("none"));
  GetById(OLESTR(""));
  EXPECT_EQ((Ids{{"second", "2"}, {"second", "2"}, {"first", "1"}, {"other", "0"}, {"other", "0"}}),
            DeliveredIds());
}

TEST_P(PowerConsumptionSensorTest, ThePositionIsTheLow16BitsOfTheNumber) {
  GetById(OLESTR("65538"));
  GetById(OLESTR("-65535"));
  EXPECT_EQ((Ids{{"second", "2"}, {"first", "1"}}), DeliveredIds());
}

TEST_P(PowerConsumptionSensorTest, GettingWhatIsNotThereIsSuccessWithNothing) {
  EXPECT_EQ(0, GetById(OLESTR("3")));
  store.FailRead(301);
  EXPECT_EQ(0, GetById(OLESTR("1")));
  store.FailListing(100, 25);
  EXPECT_EQ(0, GetById(OLESTR("2")));
  store.FailListing(1, 17);
  EXPECT_EQ(0, GetById(OLESTR("2")));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(PowerConsumptionSensorTest, GettingReturnsTheStatusOfTheDelivery) {
  sink.KeepInstances();
  sink.Refuse(0, Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), GetById(OLESTR("1")));
  EXPECT_EQ(0, GetById(OLESTR("1")));
}

TEST_P(PowerConsumptionSensorTest, GettingReturnsTheResultOfASpawnWithoutAnInstance) {
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, S_OK);
  EXPECT_EQ(Hr(0x80041006), GetById(OLESTR("1")));
  EXPECT_EQ(0, GetById(OLESTR("1")));
  EXPECT_EQ(0u, DeliveredCount());
}

constexpr SensorClass kSensorClasses[] = {{"VORN_PowerConsumptionAmpsSensor", 23, 25, 24},
                                          {"VORN_PowerConsumptionWattsSensor", 24, 26, 23}};

INSTANTIATE_TEST_SUITE_P(Classes, PowerConsumptionSensorTest, ::testing::ValuesIn(kSensorClasses),
                         kClassName);

}  // namespace
}  // namespace tqcim::testing
