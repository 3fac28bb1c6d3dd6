#include <ostream>

#include "tests/classes/power/power_test.h"

namespace tqcim::testing {
namespace {

struct AssociationClass {
  const char* name;
  size_t instances;  ///< how many the store below has
};

std::ostream& operator<<(std::ostream& out, const AssociationClass& association) {
  return out << association.name;
}

/// A store in which each association has several instances: two chassis, two groups of supplies,
/// two supplies whose current is metered under the name of the first, two power probes, two
/// records.
class PowerAssociationTest : public PowerTest,
                             public ::testing::WithParamInterface<AssociationClass> {
 protected:
  PowerAssociationTest() {
    SetChassis({100, 101});
    Describe(100, 110, u"Shelf A");
    Describe(101, 111, u"Shelf B");
    AddSupply(200, u"PS 1");
    AddSupply(201, u"PS 2");
    store.List(100, 21, {200, 201});
    store.List(2, 21, {200, 201});
    AddProbe(300, 23, u"PS 1");
    AddProbe(301, 25, u"PS 1");
    AddProbe(302, 24, u"System");
    AddProbe(303, 26, u"Board");
    store.List(100, 25, {300, 301, 302, 303});
    AddGroup(400, u"Main");
    AddGroup(401, u"Spare");
    store.List(2, 2, {400, 401});
    store.List(400, 21, {200});
    store.List(401, 21, {201});
    store.Add(500, 40).Ucs2(96, u"Power record");
    store.Add(501, 40).Ucs2(96, u"Second record");
    store.List(2, 40, {500, 501});
  }

  HRESULT Associate() { return Enumerate(GetParam().name); }
};

INSTANTIATE_TEST_SUITE_P(Power, PowerAssociationTest,
                         ::testing::Values(AssociationClass{"VORN_AssociatedSupplyPCAmps", 2},
                                           AssociationClass{"VORN_AssociatedSystemPCData", 2},
                                           AssociationClass{"VORN_AssociatedSystemPCWatts", 2},
                                           AssociationClass{"VORN_PackagePSRedundancy", 4},
                                           AssociationClass{"VORN_PSRedundancy", 2}),
                         kClassName);

TEST_P(PowerAssociationTest, ReturnsTheReferencesThatAreLeftAfterTheLastRelease) {
  sink.KeepInstances();
  EXPECT_EQ(1, Associate());
}

TEST_P(PowerAssociationTest, IgnoresTheSinksRefusals) {
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(GetParam().instances, DeliveredCount());
}

TEST_P(PowerAssociationTest, AFailedSpawnEndsItWithTheLastRelease) {
  sink.KeepInstances();
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(1, Associate());
  EXPECT_EQ(1u, DeliveredCount());
  EXPECT_EQ(2u, definition.Spawns());
}

TEST_P(PowerAssociationTest, AFirstSpawnWithoutAnInstanceIsSuccess) {
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, S_OK);
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(2u, definition.Spawns());
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_P(PowerAssociationTest, IsNeverGot) {
  ExpectNeverGot(GetParam().name);
}

}  // namespace
}  // namespace tqcim::testing
