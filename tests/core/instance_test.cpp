#include "core/instance.h"

#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

class InstanceTest : public BalancedTest {
 protected:
  FakeClass definition;
  FakeSink sink;
};

TEST_F(InstanceTest, PutsWhatItIsTold) {
  Instance instance(&definition);
  ASSERT_TRUE(instance);
  EXPECT_EQ(S_OK, instance.SpawnStatus());
  instance.Put(OLESTR("Text"), Variant::Text(OLESTR("a")));
  instance.Put(OLESTR("Number"), Variant::Int32(7), CIM_UINT32);
  instance.PutUint64(OLESTR("Big"), 18446744073709551615u);
  instance.PutDateTime(OLESTR("Time"), "20150314092653.000000+0.0");
  EXPECT_EQ(S_OK, instance.Indicate(&sink));
  ASSERT_EQ(1u, sink.Delivered().size());
  EXPECT_EQ((Puts{{"Text", VT_BSTR, 0, "a"},
                  {"Number", VT_I4, 19, "7"},
                  {"Big", VT_BSTR, 21, "18446744073709551615"},
                  {"Time", VT_BSTR, 101, "20150314092653.000000+0.0"}}),
            sink.Delivered()[0]);
}

TEST_F(InstanceTest, IsReleasedWithoutHavingBeenDelivered) {
  const Instance instance(&definition);
  EXPECT_EQ(1u, definition.Spawns());
}

TEST_F(InstanceTest, AFailedSpawnTellsItsResult) {
  definition.SpawnNothing(0, Hr(0x80041006));
  const Instance instance(&definition);
  EXPECT_FALSE(instance);
  EXPECT_EQ(Hr(0x80041006), instance.SpawnStatus());
}

TEST_F(InstanceTest, ReleaseTellsTheReferencesThatTheSinkKeeps) {
  sink.KeepInstances();
  Instance instance(&definition);
  instance.Indicate(&sink);
  EXPECT_EQ(1, instance.Release());
  EXPECT_FALSE(instance);
}

}  // namespace
}  // namespace tqcim::testing
