#include "tests/classes/chassis_sensors/several_chassis.h"

namespace tqcim::testing {
namespace {

class CimWatchdogTest : public SeveralChassisTest {
 protected:
  CimWatchdogTest() {
    store.Add(300, 30).U32(20, 1).U32(28, 480);
    store.List(2, 30, {300});
  }

  /// Three watchdogs that differ in their time-outs of 1, 2 and 3 seconds.
  void AddThree() {
    for (const uint32_t seconds : {1, 2, 3}) store.Add(300 + seconds, 30).U32(28, seconds);
    store.List(2, 30, {301, 302, 303});
  }

  HRESULT EnumerateClass() { return Enumerate("CIM_Watchdog"); }
  Texts Timeouts() const { return Values("TimeoutInterval"); }
};

TEST_F(CimWatchdogTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, EnumerateClass());
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ((Puts{{"TimeoutInterval", VT_I4, 0, "480000000"},
                  {"TimerResolution", VT_I4, 0, "10000000"},
                  {"MonitoredEntity", VT_I4, 0, "8"},
                  {"MonitoredEntityDescription", VT_BSTR, 0, "Vorn KX Instrumentation service"},
                  {"ActionOnExpiration", VT_I4, 0, "2"},
                  {"EnabledState", VT_I4, 0, "2"},
                  {"CreationClassName", VT_BSTR, 0, "CIM_Watchdog"},
                  {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
                  {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
                  {"DeviceID", VT_BSTR, 0, "WatchDog"}}),
            Delivered(0));
}

TEST_F(CimWatchdogTest, ActionsAreTranslatedAndNoneIsNotEnabled) {
  struct Row {
    uint32_t stored;
    const char* action;
    const char* enabledState;
  };
  constexpr Row kRows[] = {{0, "1", "1"}, {1, "2", "2"},   {2, "3", "2"},
                           {3, "1", "1"}, {4, "4", "2"},   {5, "1", "1"},
                           {8, "1", "1"}, {257, "1", "1"}, {0xFFFFFFFF, "1", "1"}};
  for (const auto& [stored, action, enabledState] : kRows) {
    store.Object(300).U32(20, stored);
    EnumerateClass();
    EXPECT_EQ(action, Value(DeliveredCount() - 1, "ActionOnExpiration")) << stored;
    EXPECT_EQ(enabledState, Value(DeliveredCount() - 1, "EnabledState")) << stored;
  }
}

TEST_F(CimWatchdogTest, TheTimeOutWrapsIn32BitsOfMicroseconds) {
  constexpr std::pair<uint32_t, const char*> kRows[] = {
      {0, "0"},          {1, "1000000"},  {2147, "2147000000"}, {2148, "-2146967296"},
      {4294, "-967296"}, {4295, "32704"}, {5000, "705032704"},  {0xFFFFFFFF, "-1000000"}};
  for (const auto& [seconds, microseconds] : kRows) {
    store.Object(300).U32(28, seconds);
    EnumerateClass();
    EXPECT_EQ(microseconds, Timeouts().back()) << seconds;
  }
}

TEST_F(CimWatchdogTest, EveryWatchdogOfTheListHasTheSameDeviceId) {
  AddThree();
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ((Texts{"1000000", "2000000", "3000000"}), Timeouts());
  EXPECT_EQ(Texts(3, "WatchDog"), Values("DeviceID"));
}

TEST_F(CimWatchdogTest, ReadsTheWatchdogsBelowOid2WithoutLookingForChassis) {
  store.RecordCalls();
  EnumerateClass();
  EXPECT_EQ((Texts{"children 2/30", "object 300", "free", "free", "children 2/30", "free"}),
            store.Calls());
}

TEST_F(CimWatchdogTest, EnumeratesNothingWithoutWatchdogs) {
  store.List(2, 30, {});
  EXPECT_EQ(0, EnumerateClass());
  store.FailListing(2, 30);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimWatchdogTest, AnUnreadableWatchdogEndsTheEnumeration) {
  AddThree();
  store.FailRead(302);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(Texts{"1000000"}, Timeouts());
}

TEST_F(CimWatchdogTest, GoesOnWhereTheSinkRefusesAndReturnsTheStatusOfTheLastDelivery) {
  AddThree();
  sink.Refuse(1, Hr(0x80041032));
  sink.Refuse(5, Hr(0x80041032));
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(Hr(0x80041032), EnumerateClass());
  EXPECT_EQ(6u, DeliveredCount());
}

TEST_F(CimWatchdogTest, AnInstanceThatTheSinkKeepsDoesNotShowInTheResult) {
  sink.KeepInstances();
  EXPECT_EQ(0, EnumerateClass());
}

TEST_F(CimWatchdogTest, ASpawnWithoutInstanceEndsTheEnumerationWithItsResult) {
  AddThree();
  sink.SetIndicateResult(Hr(0x80041032));
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), EnumerateClass());
  definition.SpawnNothing(3, Hr(1));
  EXPECT_EQ(1, EnumerateClass());
  EXPECT_EQ((Texts{"1000000", "1000000"}), Timeouts());
  EXPECT_EQ(4u, definition.Spawns());
}

TEST_F(CimWatchdogTest, PropertiesThatAreRefusedDoNotKeepAnInstanceBack) {
  definition.SetPutResult(Hr(0x80041002));
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(CimWatchdogTest, IsNeverFoundByKeys) {
  ExpectNeverGot("CIM_Watchdog");
}

}  // namespace
}  // namespace tqcim::testing
