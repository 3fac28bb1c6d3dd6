#include "tests/classes/chassis_sensors/several_chassis.h"

namespace tqcim::testing {
namespace {

/// Two chassis without fans. Fans are listed and not read: there are none to read.
class VornFanSensorTest : public SeveralChassisTest {
 protected:
  VornFanSensorTest() { ListChassis({2, 3}); }

  void ListFans(uint32_t chassisOid, size_t count) {
    store.List(chassisOid, 23, std::vector<uint32_t>(count, 999));
  }

  HRESULT EnumerateClass() { return Enumerate("VORN_FanSensor"); }

  /// The numbers of the fans delivered; each is that of its tachometer too.
  Texts Numbers() const {
    Texts numbers;
    for (size_t i = 0; i < DeliveredCount(); ++i) {
      numbers.push_back(KeyOf(Value(i, "Dependent"), "DeviceID"));
      EXPECT_EQ(numbers.back(), KeyOf(Value(i, "Antecedent"), "DeviceID"));
    }
    return numbers;
  }
};

TEST_F(VornFanSensorTest, PutsTheFanThenTheTachometer) {
  ListFans(2, 1);
  EXPECT_EQ(0, EnumerateClass());
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ((Puts{{"Dependent", VT_BSTR, 0,
                   R"(\\.\root\cimv2\vorn:CIM_Fan.CreationClassName="CIM_Fan",)"
                   R"(SystemName="RACK42-NODE0007",DeviceID="0",)"
                   R"(SystemCreationClassName="CIM_ComputerSystem")"},
                  {"Antecedent", VT_BSTR, 0,
                   R"(\\.\root\cimv2\vorn:CIM_Tachometer.CreationClassName="CIM_Tachometer",)"
                   R"(SystemName="RACK42-NODE0007",DeviceID="0",)"
                   R"(SystemCreationClassName="CIM_ComputerSystem")"}}),
            Delivered(0));
}

TEST_F(VornFanSensorTest, PairsEveryFanOfOneChassis) {
  ListChassis({2});
  ListFans(2, 3);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"0", "1", "2"}), Numbers());
}

TEST_F(VornFanSensorTest, ALaterChassisAddsOnlyWhatItHasBeyondAllBeforeIt) {
  ListFans(2, 2);
  ListFans(3, 3);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"0", "1", "2"}), Numbers());
}

TEST_F(VornFanSensorTest, ALaterChassisWithAsManyFansAddsNone) {
  ListFans(2, 2);
  ListFans(3, 2);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"0", "1"}), Numbers());
}

TEST_F(VornFanSensorTest, TheNumberCarriesOverThreeChassisAndNeverStartsAgain) {
  ListChassis({2, 3, 4});
  ListFans(2, 3);
  ListFans(3, 1);
  ListFans(4, 5);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"0", "1", "2", "3", "4"}), Numbers());
}

TEST_F(VornFanSensorTest, SkipsAChassisWithoutFansOrWhoseListingFails) {
  ListChassis({2, 3, 4, 5});
  ListFans(2, 0);
  ListFans(3, 1);
  ListFans(4, 4);
  store.FailListing(4, 23);
  ListFans(5, 2);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"0", "1"}), Numbers());
}

TEST_F(VornFanSensorTest, ReadsNoObject) {
  ListChassis({2});
  ListFans(2, 2);
  store.RecordCalls();
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"convert RACK42-NODE0007", "children 1/17", "children 2/23", "free", "free"}),
            store.Calls());
}

TEST_F(VornFanSensorTest, EnumeratesNothingWithoutChassis) {
  store.List(1, 17, {});
  EXPECT_EQ(0, EnumerateClass());
  store.FailListing(1, 17);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornFanSensorTest, GoesOnWhereTheSinkRefusesAndReturnsTheStatusOfTheLastDelivery) {
  ListFans(2, 2);
  ListFans(3, 3);
  sink.Refuse(1, Hr(0x80041032));
  sink.Refuse(5, Hr(0x80041032));
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(Hr(0x80041032), EnumerateClass());
  EXPECT_EQ(6u, DeliveredCount());
}

TEST_F(VornFanSensorTest, AnInstanceThatTheSinkKeepsDoesNotShowInTheResult) {
  ListFans(2, 2);
  sink.KeepInstances();
  EXPECT_EQ(0, EnumerateClass());
}

TEST_F(VornFanSensorTest, ASpawnWithoutInstanceEndsTheEnumerationWithTheStatusOfTheLastDelivery) {
  ListFans(2, 2);
  ListFans(3, 3);
  sink.SetIndicateResult(Hr(0x80041032));
  definition.SpawnNothing(0, Hr(0x80041006));
  EXPECT_EQ(0, EnumerateClass());
  definition.SpawnNothing(2, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041032), EnumerateClass());
  definition.SpawnNothing(5, S_OK);
  EXPECT_EQ(Hr(0x80041032), EnumerateClass());
  EXPECT_EQ((Texts{"0", "0", "1"}), Numbers());
  EXPECT_EQ(6u, definition.Spawns());
}

TEST_F(VornFanSensorTest, PropertiesThatAreRefusedDoNotKeepAnInstanceBack) {
  ListFans(2, 1);
  definition.SetPutResult(Hr(0x80041002));
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(VornFanSensorTest, TheNumbersEndAt65535) {
  ListFans(2, 65'540);
  ListFans(3, 65'541);
  EXPECT_EQ(0, EnumerateClass());
  ASSERT_EQ(65'536u, DeliveredCount());
  EXPECT_EQ("65535", KeyOf(Value(65'535, "Dependent"), "DeviceID"));
}

TEST_F(VornFanSensorTest, GettingIsSuccessWithNothing) {
  ListFans(2, 1);
  store.RecordCalls();
  EXPECT_EQ(0, Get("VORN_FanSensor", StringKey(OLESTR("Dependent"), OLESTR("0"))));
  EXPECT_EQ(0, GetWithoutKeys("VORN_FanSensor"));
  FakeKeyList keys;
  keys.FailCount(Hr(0x80041008));
  EXPECT_EQ(0, Get("VORN_FanSensor", keys));
  EXPECT_EQ(Texts{}, store.Calls());
  EXPECT_EQ(0u, definition.Spawns());
}

}  // namespace
}  // namespace tqcim::testing
