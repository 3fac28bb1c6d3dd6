#include "tests/classes/power/power_test.h"

namespace tqcim::testing {
namespace {

/// Chassis 100 with a current probe and two power probes, chassis 101 with one power probe.
class VornAssociatedSystemPcWattsTest : public PowerTest {
 protected:
  VornAssociatedSystemPcWattsTest() {
    SetChassis({100, 101});
    AddProbe(300, 23, u"PS 1");
    AddProbe(301, 24, u"System");
    AddProbe(302, 26, u"Board");
    store.List(100, 25, {300, 301, 302});
    AddProbe(310, 24, u"Shelf");
    store.List(101, 25, {310});
  }

  HRESULT Associate() { return Enumerate("VORN_AssociatedSystemPCWatts"); }
};

constexpr char kSystemSensor[] =
    R"(\\.\root\cimv2\vorn:VORN_PowerConsumptionWattsSensor.)"
    R"(CreationClassName="CVORN_PowerConsumptionWattsSensor",)"
    R"(SystemName="RACK42-NODE0007",Name="System",SystemCreationClassName="CIM_ComputerSystem")";
constexpr char kBoardSensor[] =
    R"(\\.\root\cimv2\vorn:VORN_PowerConsumptionWattsSensor.)"
    R"(CreationClassName="CVORN_PowerConsumptionWattsSensor",)"
    R"(SystemName="RACK42-NODE0007",Name="Board",SystemCreationClassName="CIM_ComputerSystem")";
constexpr char kShelfSensor[] =
    R"(\\.\root\cimv2\vorn:VORN_PowerConsumptionWattsSensor.)"
    R"(CreationClassName="CVORN_PowerConsumptionWattsSensor",)"
    R"(SystemName="RACK42-NODE0007",Name="Shelf",SystemCreationClassName="CIM_ComputerSystem")";

TEST_F(VornAssociatedSystemPcWattsTest, PairsTheUpperCaseSystemWithEachPowerProbeOfEveryChassis) {
  EXPECT_EQ(0, Associate());
  ASSERT_EQ(3u, DeliveredCount());
  EXPECT_EQ(Ends(kSystem, kSystemSensor), Delivered(0));
  EXPECT_EQ(Ends(kSystem, kBoardSensor), Delivered(1));
  EXPECT_EQ(Ends(kSystem, kShelfSensor), Delivered(2));
}

TEST_F(VornAssociatedSystemPcWattsTest, TakesProbesOfSubtypes24And26Only) {
  store.List(101, 25, {});
  store.List(100, 25, {301});
  for (const uint32_t subtype : {0u, 22u, 23u, 25u, 27u, 0x0118u, 0x00010018u}) {
    store.Object(301).U32(16, subtype);
    EXPECT_EQ(0, Associate());
    EXPECT_EQ(0u, DeliveredCount()) << subtype;
  }
  for (const uint32_t subtype : {24u, 26u}) {
    store.Object(301).U32(16, subtype);
    EXPECT_EQ(0, Associate());
  }
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(Ends(kSystem, kSystemSensor), Delivered(0));
  EXPECT_EQ(Ends(kSystem, kSystemSensor), Delivered(1));
}

TEST_F(VornAssociatedSystemPcWattsTest, WithoutProbesEnumerationIsSuccess) {
  store.List(100, 25, {});
  store.List(101, 25, {});
  EXPECT_EQ(0, Associate());
  SetChassis({});
  EXPECT_EQ(0, Associate());
  store.FailListing(1, 17);
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornAssociatedSystemPcWattsTest, AFailedListingEndsTheEnumeration) {
  store.FailListing(100, 25);
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornAssociatedSystemPcWattsTest, AnUnreadableProbeEndsTheEnumeration) {
  store.FailRead(302);
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(1u, DeliveredCount());
}

}  // namespace
}  // namespace tqcim::testing
