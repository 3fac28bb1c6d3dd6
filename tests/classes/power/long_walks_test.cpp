// How far the walks go that the classes make for themselves: positions have 16 bits, and a walk
// ends where they would start over.
#include <algorithm>

#include "tests/classes/power/power_test.h"

namespace tqcim::testing {
namespace {

class LongWalksTest : public PowerTest {
 protected:
  LongWalksTest() {
    SetChassis({100});
    Describe(100, 110, u"Shelf A");
  }

  /// A listing that holds one object at every 16-bit position, and another behind them.
  void ListBehind(uint32_t parentOid, uint16_t type, uint32_t oid, uint32_t oidBehind) {
    ListBehind(parentOid, type, oid, oid, oidBehind);
  }
  /// The same with an object of its own at the first position, where a walk would start over.
  void ListBehind(uint32_t parentOid, uint16_t type, uint32_t first, uint32_t oid,
                  uint32_t oidBehind) {
    std::vector<uint32_t> oids(65'536, oid);
    oids.front() = first;
    oids.push_back(oidBehind);
    store.ListLong(parentOid, type, oids);
  }
};

TEST_F(LongWalksTest, ThePlacesOfSuppliesEndAtPosition65535) {
  ListBehind(100, 21, 200, 201);
  EXPECT_EQ(0, Enumerate("CIM_PackagePowerSupply"));
  ASSERT_EQ(65'536u, DeliveredCount());
  EXPECT_NE(std::string::npos, Value(65'535, "Dependent").find(R"(DeviceID="65535")"));
}

TEST_F(LongWalksTest, RecordsEndAtPosition65535) {
  store.Add(500, 40).Ucs2(96, u"record");
  store.Add(501, 40).Ucs2(96, u"behind");
  ListBehind(2, 40, 500, 501);
  EXPECT_EQ(0, Enumerate("VORN_AssociatedSystemPCData"));
  ASSERT_EQ(65'536u, DeliveredCount());
  EXPECT_EQ("record", Value(65'535, "Antecedent"));
}

TEST_F(LongWalksTest, GroupsEndAtPosition65535) {
  AddGroup(399, u"first");
  AddGroup(400, u"empty");
  AddGroup(401, u"behind");
  store.List(399, 21, {200});
  store.List(401, 21, {200});
  ListBehind(2, 2, 399, 400, 401);
  EXPECT_EQ(0, Enumerate("VORN_PSRedundancyGroup"));
  EXPECT_EQ(Texts{"first"}, Values("Name"));
  EXPECT_EQ(0, Get("VORN_PSRedundancyGroup", StringKey(OLESTR("Name"), OLESTR("behind"))));
  EXPECT_EQ(1u, DeliveredCount());
  EXPECT_EQ(0, Enumerate("VORN_PackagePSRedundancy"));
  EXPECT_EQ(2u, DeliveredCount());
}

TEST_F(LongWalksTest, TheMembersOfAGroupEndAtPosition65535) {
  AddGroup(400, u"Main");
  store.List(2, 2, {400});
  AddSupply(199, u"first");
  AddSupply(200, u"regulator").U8(40, 11);
  AddSupply(201, u"behind");
  ListBehind(2, 21, 199, 200, 201);
  EXPECT_EQ(0, Enumerate("VORN_PSRedundancy"));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(LongWalksTest, TheGroupsThatMembersAreSoughtForEndAtPosition65535) {
  AddGroup(400, u"Main");
  ListBehind(2, 2, 400, 400);
  store.RecordCalls();
  EXPECT_EQ(0, Enumerate("VORN_PSRedundancy"));
  EXPECT_EQ(65'536, std::count(store.Calls().begin(), store.Calls().end(), "object 400"));
}

}  // namespace
}  // namespace tqcim::testing
