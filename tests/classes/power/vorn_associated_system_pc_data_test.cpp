#include "tests/classes/power/power_test.h"

namespace tqcim::testing {
namespace {

class VornAssociatedSystemPcDataTest : public PowerTest {
 protected:
  VornAssociatedSystemPcDataTest() {
    store.Add(500, 40).Ucs2(96, u"Power record");
    store.Add(501, 40).Ucs2(96, u"Second record");
    store.List(2, 40, {500, 501});
  }

  HRESULT Associate() { return Enumerate("VORN_AssociatedSystemPCData"); }
};

TEST_F(VornAssociatedSystemPcDataTest, TheAntecedentIsTheBareNameOfTheRecordAndNoReference) {
  EXPECT_EQ(0, Associate());
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(Ends(kSystem, "Power record"), Delivered(0));
  EXPECT_EQ(Ends(kSystem, "Second record"), Delivered(1));
}

TEST_F(VornAssociatedSystemPcDataTest, TheNameIsCopiedCharacterByCharacter) {
  store.Object(500).Ucs2(96, u"Größe™");
  Associate();
  EXPECT_EQ("Gr\\u00F6\\u00DFe\\u2122", Value(0, "Antecedent"));
}

TEST_F(VornAssociatedSystemPcDataTest, ReadsTheRecordsByPositionAndNoChassis) {
  store.RecordCalls();
  Associate();
  EXPECT_EQ((std::vector<std::string>{"convert RACK42-NODE0007",                      //
                                      "children 2/40", "object 500", "free", "free",  //
                                      "children 2/40", "object 501", "free", "free",  //
                                      "children 2/40", "free"}),
            store.Calls());
}

TEST_F(VornAssociatedSystemPcDataTest, WithoutRecordsEnumerationIsSuccess) {
  store.List(2, 40, {});
  EXPECT_EQ(0, Associate());
  store.FailListing(2, 40);
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornAssociatedSystemPcDataTest, AnUnreadableRecordEndsTheEnumeration) {
  store.FailRead(500);
  EXPECT_EQ(0, Associate());
  EXPECT_EQ(0u, definition.Spawns());
}

}  // namespace
}  // namespace tqcim::testing
