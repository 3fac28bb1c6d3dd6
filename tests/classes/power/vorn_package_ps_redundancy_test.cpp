#include "tests/classes/power/power_test.h"

namespace tqcim::testing {
namespace {

/// Two chassis; two groups of power supplies with a group of fans between them.
class VornPackagePsRedundancyTest : public PowerTest {
 protected:
  VornPackagePsRedundancyTest() {
    SetChassis({100, 101});
    Describe(100, 110, u"Shelf A");
    Describe(101, 111, u"Shelf B");
    AddGroup(400, u"Main");
    AddGroup(401, u"Fans");
    AddGroup(402, u"Spare");
    store.List(2, 2, {400, 401, 402});
    store.List(400, 21, {200});
    store.List(401, 23, {600});
    store.List(402, 21, {201});
  }

  HRESULT Associate() { return Enumerate("VORN_PackagePSRedundancy"); }
};

TEST_F(VornPackagePsRedundancyTest, PlacesEveryGroupOfPowerSuppliesInEveryChassis) {
  EXPECT_EQ(0, Associate());
  ASSERT_EQ(4u, DeliveredCount());
  EXPECT_EQ(Ends(kShelfA, kMain0), Delivered(0));
  EXPECT_EQ(Ends(kShelfA, kSpare0), Delivered(1));
  EXPECT_EQ(Ends(kShelfB, kMain1), Delivered(2));
  EXPECT_EQ(Ends(kShelfB, kSpare1), Delivered(3));
}

TEST_F(VornPackagePsRedundancyTest, AGroupWithoutSuppliesIsPassedOver) {
  SetChassis({100});
  store.List(400, 21, {});
  EXPECT_EQ(0, Associate());
  store.FailListing(400, 21);
  EXPECT_EQ(0, Associate());
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(Ends(kShelfA, kSpare0), Delivered(0));
  EXPECT_EQ(Ends(kShelfA, kSpare0), Delivered(1));
}

TEST_F(VornPackagePsRedundancyTest, ReadsTheDescriptionOnceForAllGroupsOfAChassis) {
  SetChassis({100});
  store.List(2, 2, {400, 402});
  store.RecordCalls();
  Associate();
  EXPECT_EQ((std::vector<std::string>{"children 1/17", "children 100/32",
                                      "object 110",    "free",
                                      "free",  //
                                      "children 2/2",  "object 400",
                                      "free",          "children 400/21",
                                      "free",          "free",  //
                                      "children 2/2",  "object 402",
                                      "free",          "children 402/21",
                                      "free",          "free",  //
                                      "children 2/2",  "free",
                                      "free"}),
            store.Calls());
}

TEST_F(VornPackagePsRedundancyTest, PassesOverAChassisWithoutADescription) {
  store.List(100, 32, {});
  EXPECT_EQ(0, Associate());
  store.FailListing(100, 32);
  EXPECT_EQ(0, Associate());
  ASSERT_EQ(4u, DeliveredCount());
  EXPECT_EQ(Ends(kShelfB, kMain1), Delivered(0));
  EXPECT_EQ(Ends(kShelfB, kMain1), Delivered(2));
}

TEST_F(VornPackagePsRedundancyTest, PassesOverAChassisWhoseDescriptionCannotBeRead) {
  store.FailRead(110);
  EXPECT_EQ(0, Associate());
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(Ends(kShelfB, kMain1), Delivered(0));
}

TEST_F(VornPackagePsRedundancyTest, WithoutChassisOrGroupsEnumerationIsSuccess) {
  store.List(2, 2, {});
  EXPECT_EQ(0, Associate());
  store.FailListing(2, 2);
  EXPECT_EQ(0, Associate());
  SetChassis({});
  EXPECT_EQ(0, Associate());
  store.FailListing(1, 17);
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornPackagePsRedundancyTest, AnUnreadableGroupEndsTheGroupsOfItsChassis) {
  store.FailRead(401, 1);
  EXPECT_EQ(0, Associate());
  ASSERT_EQ(3u, DeliveredCount());
  EXPECT_EQ(Ends(kShelfA, kMain0), Delivered(0));
  EXPECT_EQ(Ends(kShelfB, kMain1), Delivered(1));
  EXPECT_EQ(Ends(kShelfB, kSpare1), Delivered(2));
}

}  // namespace
}  // namespace tqcim::testing
