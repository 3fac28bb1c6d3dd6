// How far the walks go that several classes share. What they deliver and return is tested with the
// classes.
#include "classes/walks.h"

#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

/// Two chassis of 65,538 children each, all the same object.
class WalksTest : public HandlerTest {
 protected:
  WalksTest() {
    store.Add(500, 23);
    store.List(1, 17, {2, 3});
    const std::vector<uint32_t> oids(65'538, 500);
    store.ListLong(2, 23, oids);
    store.ListLong(3, 23, oids);
  }
};

TEST_F(WalksTest, AWalkThroughAListEndsAfterPosition65535) {
  uint32_t last = 0;
  EXPECT_EQ(0, EnumerateListed(
                   23, &definition, &sink,
                   [&](Instance&, const DataObject&, uint16_t position) { last = position; }));
  EXPECT_EQ(65'536u, DeliveredCount());
  EXPECT_EQ(65'535u, last);
}

TEST_F(WalksTest, AWalkByCursorEndsAfterPosition65535AndBeforeTheNextChassis) {
  uint32_t lastInner = 0;
  uint32_t lastOuter = 9;
  EXPECT_EQ(0, EnumerateByCursor(23, &definition, &sink,
                                 [&](Instance&, const DataObject&, uint32_t inner, uint32_t outer) {
                                   lastInner = inner;
                                   lastOuter = outer;
                                 }));
  EXPECT_EQ(65'536u, DeliveredCount());
  EXPECT_EQ(65'535u, lastInner);
  EXPECT_EQ(0u, lastOuter);
}

}  // namespace
}  // namespace tqcim::testing
