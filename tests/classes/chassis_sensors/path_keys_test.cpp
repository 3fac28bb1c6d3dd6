#include "core/path_keys.h"

#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

/// Four keys: A="10", B=11, b="12" and A=13.
class PathKeysTest : public BalancedTest {
 protected:
  PathKeysTest() {
    keys.Add(StringKey(OLESTR("A"), OLESTR("10")));
    keys.Add(NumberKey(OLESTR("B"), 11));
    keys.Add(StringKey(OLESTR("b"), OLESTR("12")));
    keys.Add(NumberKey(OLESTR("A"), 13));
  }

  /// The value found, or the reads' result for none: "10", "status 0".
  static std::string Text(const PathKey& key) {
    return key.found ? ValueText(*key.value) : "status " + std::to_string(key.status);
  }

  FakeKeyList keys;
};

TEST_F(PathKeysTest, TheFirstKeyIsFoundWhateverItsName) {
  EXPECT_EQ("10", Text(FirstKey(&keys)));
  EXPECT_EQ(std::vector<ULONG>{0}, keys.Reads());
}

TEST_F(PathKeysTest, TheFirstKeyOfANameIsFoundWhateverItsValueAndCase) {
  EXPECT_EQ("11", Text(FindKey(&keys, OLESTR("b"))));
  EXPECT_EQ("10", Text(FindKey(&keys, OLESTR("a"))));
  EXPECT_EQ("status 0", Text(FindKey(&keys, OLESTR("AB"))));
  EXPECT_EQ("status 0", Text(FindKey(&keys, OLESTR(""))));
}

TEST_F(PathKeysTest, TheFirstTextOfANameIsFound) {
  EXPECT_EQ("12", Text(FindTextKey(&keys, OLESTR("B"), TextKey::kByApparentType)));
  EXPECT_EQ("12", Text(FindTextKey(&keys, OLESTR("B"), TextKey::kByVariant)));
}

TEST_F(PathKeysTest, WhatATextIsThePathTellsOrTheVariant) {
  keys.Add({OLESTR("C"), Variant::Text(OLESTR("14")), CIM_REFERENCE});
  keys.Add({OLESTR("C"), Variant::Int32(15), CIM_STRING});
  EXPECT_EQ("15", Text(FindTextKey(&keys, OLESTR("C"), TextKey::kByApparentType)));
  EXPECT_EQ("14", Text(FindTextKey(&keys, OLESTR("C"), TextKey::kByVariant)));
}

TEST_F(PathKeysTest, AKeyThatCannotBeReadIsPassedOver) {
  keys.FailKey(1, Hr(0x80041008));
  EXPECT_EQ("12", Text(FindKey(&keys, OLESTR("B"))));
  EXPECT_EQ((std::vector<ULONG>{0, 1, 2}), keys.Reads());
  EXPECT_EQ("12", Text(FindTextKey(&keys, OLESTR("B"), TextKey::kByVariant)));
  EXPECT_EQ("status 0", Text(FindKey(&keys, OLESTR("C"))));
  keys.FailKey(3, Hr(0x80041003));
  EXPECT_EQ("status -2147217405", Text(FindKey(&keys, OLESTR("C")))) << "the last read counts";
}

TEST_F(PathKeysTest, AKeyThatCannotBeReadEndsTheSearchOfClassesThatAskForThat) {
  keys.FailKey(1, Hr(0x80041008));
  const auto find = [this](const OLECHAR* name) {
    return Text(FindTextKey(&keys, name, TextKey::kByVariant, UnreadableKey::kEndsTheSearch));
  };
  EXPECT_EQ("10", find(OLESTR("A")));
  EXPECT_EQ("status -2147217400", find(OLESTR("B")));
  EXPECT_EQ((std::vector<ULONG>{0, 0, 1}), keys.Reads());
}

TEST_F(PathKeysTest, AFirstKeyThatCannotBeReadIsNotReplacedByTheNext) {
  keys.FailKey(0, Hr(0x80041008));
  EXPECT_EQ("status -2147217400", Text(FirstKey(&keys)));
  EXPECT_EQ(std::vector<ULONG>{0}, keys.Reads());
}

TEST_F(PathKeysTest, ASuccessThatIsNot0GivesAKeyAndEndsNoSearch) {
  keys.FailKey(0, S_FALSE);
  keys.FailKey(3, S_FALSE);
  EXPECT_EQ("10", Text(FirstKey(&keys)));
  EXPECT_EQ("11", Text(FindKey(&keys, OLESTR("B"))));
  EXPECT_EQ("status 1", Text(FindKey(&keys, OLESTR("C"))));
}

TEST_F(PathKeysTest, WithoutKeysTheCountsResultStands) {
  FakeKeyList none;
  EXPECT_EQ("status 0", Text(FirstKey(&none)));
  keys.FailCount(Hr(0x80041008));
  EXPECT_EQ("status -2147217400", Text(FirstKey(&keys)));
  EXPECT_EQ("status -2147217406", Text(FirstKey(nullptr))) << "not found";
}

TEST_F(PathKeysTest, ANumberIsTheIntegerOrWhatTheTextBeginsWith) {
  EXPECT_EQ(7, NumberOf(Variant::Int32(7)));
  EXPECT_EQ(-7, NumberOf(Variant::Int32(-7)));
  EXPECT_EQ(-1, NumberOf(Variant::Int32(0xFFFFFFFFu)));
  EXPECT_EQ(42, NumberOf(Variant::Text(OLESTR(" 42nd"))));
  EXPECT_EQ(-42, NumberOf(Variant::Text(OLESTR("-42"))));
  EXPECT_EQ(0, NumberOf(Variant::Text(OLESTR("record"))));
  EXPECT_EQ(0, NumberOf(Variant::Text(static_cast<const OLECHAR*>(nullptr))));
}

}  // namespace
}  // namespace tqcim::testing
