// The walk of the classes that publish one instance per object of a type below OID 2.
#include <algorithm>

#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

struct ListedClass {
  const char* name;
  uint16_t objectType;
};

class ListedDevicesTest : public HandlerTest, public ::testing::WithParamInterface<ListedClass> {
 protected:
  ListedDevicesTest() {
    // Port names stand at 40 and 44.
    for (const uint32_t oid : {13u, 11u, 12u}) {
      store.Add(oid, GetParam().objectType).Ucs2(40, u"first").Ucs2(44, u"second");
    }
    List({13, 11, 12});
  }

  void List(std::vector<uint32_t> oids) { store.List(2, GetParam().objectType, std::move(oids)); }
  HRESULT EnumerateClass() { return Enumerate(GetParam().name); }
};

TEST_P(ListedDevicesTest, EveryObjectIsPublishedInStoreOrderAndListedAfreshForEach) {
  store.RecordCalls();
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(3u, DeliveredCount());
  std::vector<std::string> reads;
  for (const std::string& call : store.Calls()) {
    if (call.starts_with("children") || call.starts_with("object")) reads.push_back(call);
  }
  const std::string listing = "children 2/" + std::to_string(GetParam().objectType);
  EXPECT_EQ((std::vector<std::string>{listing, "object 13", listing, "object 11", listing,
                                      "object 12", listing}),
            reads);
}

TEST_P(ListedDevicesTest, ObjectsBeyondPosition255AreReadToo) {
  std::vector<uint32_t> oids(257, 11);
  oids[256] = 12;
  List(oids);
  store.RecordCalls();
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(257u, DeliveredCount());
  EXPECT_EQ(1, std::count(store.Calls().begin(), store.Calls().end(), "object 12"));
}

TEST_P(ListedDevicesTest, NothingInTheStoreIsSuccess) {
  List({});
  EXPECT_EQ(0, EnumerateClass());
  store.FailListing(2, GetParam().objectType);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(ListedDevicesTest, EndsAtTheFirstObjectThatCannotBeRead) {
  store.FailRead(11);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_P(ListedDevicesTest, AnObjectThatCannotBeReadLeavesTheStatusOfTheDeliveryBefore) {
  store.FailRead(11);
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), EnumerateClass());
}

TEST_P(ListedDevicesTest, AFailedListingIsNotTriedAgain) {
  store.FailListing(2, GetParam().objectType, 1);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_P(ListedDevicesTest, StopsAtAFailedSpawnAndReturnsIt) {
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), EnumerateClass());
  EXPECT_EQ(1u, DeliveredCount());
  EXPECT_EQ(2u, definition.Spawns());
}

TEST_P(ListedDevicesTest, StopsWhereASuccessfulSpawnGaveNoInstance) {
  sink.SetIndicateResult(Hr(0x80041032));
  definition.SpawnNothing(1, S_OK);
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(1u, DeliveredCount());
  EXPECT_EQ(2u, definition.Spawns());
}

TEST_P(ListedDevicesTest, GoesOnAfterARefusalAndReturnsTheLastDelivery) {
  sink.Refuse(0, Hr(0x80041032));
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(3u, DeliveredCount());
}

TEST_P(ListedDevicesTest, ReturnsTheRefusalOfTheLastDelivery) {
  sink.Refuse(2, Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), EnumerateClass());
}

TEST_P(ListedDevicesTest, InstancesThatTheSinkKeepsDoNotShowInTheResult) {
  sink.KeepInstances();
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(3u, DeliveredCount());
}

TEST_P(ListedDevicesTest, PropertiesThatTheClassRefusesHinderNothing) {
  definition.SetPutResult(Hr(0x80041002));
  EXPECT_EQ(0, EnumerateClass());
  EXPECT_EQ(3u, DeliveredCount());
}

INSTANTIATE_TEST_SUITE_P(Classes, ListedDevicesTest,
                         ::testing::Values(ListedClass{"VORN_Baseboard", 259},
                                           ListedClass{"CIM_Slot", 228},
                                           ListedClass{"CIM_SerialController", 193},
                                           ListedClass{"CIM_ParallelController", 192},
                                           ListedClass{"CIM_PointingDevice", 208}),
                         kClassName);

}  // namespace
}  // namespace tqcim::testing
