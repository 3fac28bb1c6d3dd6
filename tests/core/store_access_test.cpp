#include "core/store_access.h"

#include "tests/support/handler_test.h"
#include "tests/support/recorded_put.h"

namespace tqcim::testing {
namespace {

class StoreAccessTest : public BalancedTest {
 protected:
  static uint32_t OidOf(const DataObject& object) {
    return object ? object[layout::Field<uint32_t>{"oid", 4}] : 0;
  }

  FakeStore store;
};

TEST_F(StoreAccessTest, StatusBecomesText) {
  constexpr std::pair<uint32_t, const char*> kRows[] = {{0, "Other"},
                                                        {1, "Unknown"},
                                                        {2, "OK"},
                                                        {3, "Stressed"},
                                                        {4, "Error"},
                                                        {5, "NonRecover"},
                                                        {6, "Stressed"},
                                                        {200, "Stressed"},
                                                        {255, "Stressed"},
                                                        {256, "Stressed"},
                                                        {0xFFFFFFFF, "Stressed"}};
  for (const auto& [status, text] : kRows) EXPECT_EQ(text, Printable(StatusToText(status)));
}

TEST_F(StoreAccessTest, ReadsTheHeader) {
  store.Add(7, 384, 5);
  const DataObject object = ReadObject(7);
  ASSERT_TRUE(object);
  EXPECT_EQ(7u, object[layout::header::kOid]);
  EXPECT_EQ(384u, object[layout::header::kType]);
  EXPECT_EQ(5u, object.Status());
}

TEST_F(StoreAccessTest, ReadsFieldsOfEveryWidthAtOddOffsets) {
  store.Add(7, 1).U8(17, 0xFE).U16(19, 0xFFFE).U32(21, 0xFFFFFFFE).U64(25, 0x0123456789ABCDEF);
  const DataObject object = ReadObject(7);
  EXPECT_EQ(254, object[(layout::Field<uint8_t>{"", 17})]);
  EXPECT_EQ(65534, object[(layout::Field<uint16_t>{"", 19})]);
  EXPECT_EQ(-2, object[(layout::Field<int16_t>{"", 19})]);
  EXPECT_EQ(4294967294u, object[(layout::Field<uint32_t>{"", 21})]);
  EXPECT_EQ(-2, object[(layout::Field<int32_t>{"", 21})]);
  EXPECT_EQ(0x0123456789ABCDEFu, object[(layout::Field<uint64_t>{"", 25})]);
}

TEST_F(StoreAccessTest, ReadsTexts) {
  store.Add(7, 1).Ucs2(20, u"wide").Utf8(24, "narrow");
  const DataObject object = ReadObject(7);
  EXPECT_EQ("wide", Printable(object[layout::Ucs2Field{"", 20}]));
  EXPECT_NE(0u, object.TextOffset(layout::Ucs2Field{"", 20}));
  EXPECT_EQ(0u, object.TextOffset(layout::Ucs2Field{"", 28}));
  EXPECT_STREQ("narrow", object[(layout::Utf8Field{"", 24})].get());
  EXPECT_EQ(nullptr, object[(layout::Utf8Field{"", 32})]);
}

TEST_F(StoreAccessTest, WritesInPlace) {
  store.Add(7, 1).U32(18, 0xAAAAAAAA).U32(22, 0xBBBBBBBB);
  DataObject object = ReadObject(7);
  object.Write(layout::Field<uint32_t>{"", 18}, 0x12345678u);
  EXPECT_EQ(0x12345678u, object[(layout::Field<uint32_t>{"", 18})]);
  EXPECT_EQ(0xBBBBBBBBu, object[(layout::Field<uint32_t>{"", 22})]);
}

TEST_F(StoreAccessTest, NothingIsReadAsNothing) {
  EXPECT_FALSE(ReadObject(7));
  EXPECT_FALSE(DataObject());
}

TEST_F(StoreAccessTest, AReleasedObjectIsNotFreed) {
  store.Add(7, 1);
  void* block;
  {
    DataObject object = ReadObject(7);
    block = object.release();
    EXPECT_FALSE(object);
  }
  EXPECT_EQ(1u, store.LiveBlocks());
  SMILFreeGeneric(block);
}

TEST_F(StoreAccessTest, ListsChildren) {
  store.List(2, 19, {51, 50, 51});
  const OidList list = ListChildren(2, 19);
  ASSERT_EQ(3u, list.size());
  EXPECT_EQ(51u, list[0]);
  EXPECT_EQ(50u, list[1]);
  EXPECT_EQ(51u, list[2]);
  EXPECT_FALSE(list.empty());
}

TEST_F(StoreAccessTest, AFailedListingIsNoListAndAnEmptyOneIsAList) {
  store.List(2, 19, {});
  const OidList empty = ListChildren(2, 19);
  EXPECT_TRUE(empty);
  EXPECT_TRUE(empty.empty());
  const OidList failed = ListChildren(2, 20);
  EXPECT_FALSE(failed);
  EXPECT_TRUE(failed.empty());
  EXPECT_EQ(0u, failed.size());
}

TEST_F(StoreAccessTest, GetsTheChildAtAnIndex) {
  store.List(2, 19, {50, 51});
  store.List(9, 19, {51});
  store.Add(50, 19);
  store.Add(51, 19);
  EXPECT_EQ(50u, OidOf(GetChildObjectOfOid2(0, 19)));
  EXPECT_EQ(51u, OidOf(GetChildObjectOfOid2(1, 19)));
  EXPECT_EQ(51u, OidOf(GetChildObject(9, 19, 0)));
}

TEST_F(StoreAccessTest, AnIndexEqualToTheCountYieldsNothing) {
  store.List(2, 19, {50, 51});
  store.Add(50, 19);
  store.Add(51, 19);
  EXPECT_FALSE(GetChildObjectOfOid2(2, 19));
  EXPECT_FALSE(GetChildObjectOfOid2(65535, 19));
  EXPECT_FALSE(GetChildObject(2, 19, 2));
}

TEST_F(StoreAccessTest, ACountOfZeroYieldsNothingForAnyIndex) {
  store.List(2, 19, {});
  EXPECT_FALSE(GetChildObjectOfOid2(0, 19));
  EXPECT_FALSE(GetChildObjectOfOid2(1, 19));
  EXPECT_FALSE(GetChildObject(2, 19, 0));
}

TEST_F(StoreAccessTest, AFailedListingOrReadYieldsNothing) {
  store.List(2, 19, {50});
  EXPECT_FALSE(GetChildObjectOfOid2(0, 19));
  EXPECT_FALSE(GetChildObject(3, 19, 0));
}

/// Chassis 2 and 5 have fans, chassis 3 has none, and the listing of chassis 4 fails where a test
/// lists it.
class CursorTest : public StoreAccessTest {
 protected:
  CursorTest() {
    store.List(1, 17, {2, 3, 5});
    store.List(2, 23, {21, 22});
    store.List(3, 23, {});
    store.List(5, 23, {51});
    for (const uint32_t oid : {21, 22, 51}) store.Add(oid, 23);
  }

  uint32_t Next() {
    const uint32_t oid = OidOf(GetObjectByCursor(outer, inner, 23));
    if (oid != 0) ++inner;
    return oid;
  }

  uint32_t outer = 0;
  uint32_t inner = 0;
};

TEST_F(CursorTest, WalksEveryObjectOfEveryChassisInListOrder) {
  EXPECT_EQ(21u, Next());
  EXPECT_EQ(22u, Next());
  EXPECT_EQ(51u, Next());
  EXPECT_EQ(0u, Next());
  EXPECT_EQ(0u, Next());
}

TEST_F(CursorTest, LeavesThePositionOfWhatItGives) {
  inner = 1;
  EXPECT_EQ(22u, OidOf(GetObjectByCursor(outer, inner, 23)));
  EXPECT_EQ(0u, outer);
  EXPECT_EQ(1u, inner);
}

TEST_F(CursorTest, SkipsAChassisWithoutTheTypeAndStartsTheNextAtItsBeginning) {
  inner = 2;
  EXPECT_EQ(51u, OidOf(GetObjectByCursor(outer, inner, 23)));
  EXPECT_EQ(2u, outer);
  EXPECT_EQ(0u, inner);
}

TEST_F(CursorTest, AFailedListingOfAChassisEndsTheWalk) {
  store.FailListing(3, 23);
  outer = 1;
  EXPECT_EQ(0u, Next());
  EXPECT_EQ(1u, outer);
}

TEST_F(CursorTest, AFailedListingOfTheChassisYieldsNothing) {
  store.FailListing(1, 17);
  EXPECT_EQ(0u, Next());
}

TEST_F(CursorTest, AnObjectThatCannotBeReadYieldsNothingAtItsPosition) {
  store.FailRead(21);
  EXPECT_EQ(0u, Next());
  EXPECT_EQ(0u, outer);
  EXPECT_EQ(0u, inner);
}

TEST_F(CursorTest, StartsBehindTheLastChassisWithNothing) {
  outer = 3;
  EXPECT_EQ(0u, Next());
}

TEST_F(CursorTest, EndsBehindPosition65535OfAList) {
  store.List(2, 23, std::vector<uint32_t>(65'537, 21));
  inner = 65'535;
  EXPECT_EQ(21u, Next());
  EXPECT_EQ(0u, Next());
}

TEST_F(CursorTest, EndsBehindTheChassisAtPosition65535) {
  std::vector<uint32_t> chassis(65'536, 3);
  chassis.push_back(5);
  store.List(1, 17, chassis);
  outer = 65'534;
  EXPECT_EQ(0u, Next());
  EXPECT_EQ(65'536u, outer);
}

}  // namespace
}  // namespace tqcim::testing
