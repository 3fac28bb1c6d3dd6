#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

class VornSystemTest : public HandlerTest {
 protected:
  VornSystemTest() { store.Add(1, 1, 2); }
};

const Puts kSystem = {{"Status", VT_BSTR, 0, "OK"},
                      {"Name", VT_BSTR, 0, "RACK42-NODE0007"},
                      {"CreationClassName", VT_BSTR, 0, "VORN_System"}};

TEST_F(VornSystemTest, EnumeratesTheOneSystem) {
  EXPECT_EQ(0, Enumerate("VORN_System"));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kSystem, Delivered(0));
}

TEST_F(VornSystemTest, ReadsNothingButTheRootObject) {
  store.RecordCalls();
  Enumerate("VORN_System");
  EXPECT_EQ((std::vector<std::string>{"object 1", "free"}), store.Calls());
}

TEST_F(VornSystemTest, StatusFollowsTheRootObject) {
  constexpr std::pair<uint8_t, const char*> kTexts[] = {
      {0, "Other"}, {1, "Unknown"},    {2, "OK"},       {3, "Stressed"},
      {4, "Error"}, {5, "NonRecover"}, {6, "Stressed"}, {255, "Stressed"}};
  for (const auto& [status, text] : kTexts) {
    store.Object(1).U8(10, status);
    Enumerate("VORN_System");
    EXPECT_EQ(text, Value(DeliveredCount() - 1, "Status")) << int{status};
  }
}

TEST_F(VornSystemTest, IsDeliveredForWhateverKeys) {
  EXPECT_EQ(0, Get("VORN_System", StringKey(OLESTR("Name"), OLESTR("another computer"))));
  EXPECT_EQ(0, Get("VORN_System", NumberKey(OLESTR("Tag"), 7)));
  EXPECT_EQ(0, GetWithoutKeys("VORN_System"));
  ASSERT_EQ(3u, DeliveredCount());
  for (size_t i = 0; i < 3; ++i) EXPECT_EQ(kSystem, Delivered(i));
}

TEST_F(VornSystemTest, DoesNotLookAtTheKeys) {
  FakeKeyList keys;
  keys.FailCount(Hr(0x80041008));
  EXPECT_EQ(0, Get("VORN_System", keys));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(VornSystemTest, IsNotFoundWithoutTheRootObject) {
  store.Remove(1);
  EXPECT_EQ(Hr(0x80041002), Enumerate("VORN_System"));
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys("VORN_System"));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornSystemTest, ReturnsTheFailureOfTheSpawn) {
  definition.SpawnNothing(0, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), Enumerate("VORN_System"));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornSystemTest, DeliversNothingWhereASuccessfulSpawnGaveNoInstance) {
  definition.SpawnNothing(0, S_OK);
  EXPECT_EQ(0, Enumerate("VORN_System"));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornSystemTest, ReturnsTheSinksRefusal) {
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), Enumerate("VORN_System"));
  EXPECT_EQ(Hr(0x80041032), GetWithoutKeys("VORN_System"));
}

}  // namespace
}  // namespace tqcim::testing
