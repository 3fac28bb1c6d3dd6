// How the classes that are got by a key find it.
#include "tests/classes/power/power_test.h"

namespace tqcim::testing {
namespace {

/// A class, and its key in two spellings. A class returns the result of the key list's last call
/// where it finds no key, or "not found" always.
struct KeyedClass {
  const char* name;
  const OLECHAR* key;
  const OLECHAR* keyInOtherCase;
  bool isNotFoundWithoutKey;

  HRESULT WithoutKey(HRESULT lastCall) const {
    return isNotFoundWithoutKey ? Hr(0x80041002) : lastCall;
  }
};

std::ostream& operator<<(std::ostream& out, const KeyedClass& keyed) {
  return out << keyed.name;
}

/// In each class the key "1" finds one instance.
class PowerKeysTest : public PowerTest, public ::testing::WithParamInterface<KeyedClass> {
 protected:
  PowerKeysTest() {
    SetChassis({100});
    AddSupply(200, u"1");
    store.List(100, 21, {200});
    AddProbe(300, 23, u"first");
    AddProbe(301, 23, u"second");
    store.List(100, 25, {300, 301});
    AddGroup(400, u"1");
    store.List(2, 2, {400});
    store.Add(500, 40).Utf8(96, "first");
    store.Add(501, 40).Utf8(96, "second");
    store.List(2, 40, {500, 501});
  }

  FakeKey Wanted() const { return StringKey(GetParam().key, OLESTR("1")); }
};

TEST_P(PowerKeysTest, TheKeyFindsOneInstance) {
  EXPECT_EQ(0, Get(GetParam().name, Wanted()));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_P(PowerKeysTest, TheCaseOfTheKeysNameDoesNotMatter) {
  EXPECT_EQ(0, Get(GetParam().name, StringKey(GetParam().keyInOtherCase, OLESTR("1"))));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_P(PowerKeysTest, KeysOfOtherNamesArePassedOver) {
  FakeKeyList keys;
  keys.Add(StringKey(OLESTR("SystemName"), OLESTR("1"))).Add(Wanted());
  EXPECT_EQ(0, Get(GetParam().name, keys));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_P(PowerKeysTest, AKeyThatIsNoTextIsPassedOver) {
  FakeKeyList keys;
  keys.Add(NumberKey(GetParam().key, 1)).Add({GetParam().key, Variant::Int32(1), CIM_STRING});
  EXPECT_EQ(GetParam().WithoutKey(0), Get(GetParam().name, keys));
  EXPECT_EQ(0u, DeliveredCount());
  keys.Add(Wanted());
  EXPECT_EQ(0, Get(GetParam().name, keys));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_P(PowerKeysTest, ATextIsTakenWhateverThePathTakesItFor) {
  EXPECT_EQ(0,
            Get(GetParam().name, FakeKey{GetParam().key, Variant::Text(OLESTR("1")), CIM_SINT32}));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_P(PowerKeysTest, KeysBehindTheFirstAreNotRead) {
  FakeKeyList keys;
  keys.Add(Wanted()).Add(StringKey(GetParam().key, OLESTR("99")));
  EXPECT_EQ(0, Get(GetParam().name, keys));
  EXPECT_EQ(1u, DeliveredCount());
  EXPECT_EQ((std::vector<ULONG>{0}), keys.Reads());
}

TEST_P(PowerKeysTest, WithoutTheKeyNothingIsReadAndTheLastReadIsTheResult) {
  store.RecordCalls();
  FakeKeyList keys;
  EXPECT_EQ(GetParam().WithoutKey(0), Get(GetParam().name, keys));
  keys.Add(StringKey(OLESTR("Tag"), OLESTR("1"))).Add(StringKey(OLESTR("Caption"), OLESTR("1")));
  EXPECT_EQ(GetParam().WithoutKey(0), Get(GetParam().name, keys));
  keys.FailKey(1, S_FALSE);
  EXPECT_EQ(GetParam().WithoutKey(S_FALSE), Get(GetParam().name, keys));
  EXPECT_TRUE(store.Calls().empty());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_P(PowerKeysTest, WhereTheKeyFindsNothingTheResultOfItsReadingStands) {
  FakeKeyList keys;
  keys.Add(StringKey(GetParam().key, OLESTR("99")));
  keys.FailKey(0, S_FALSE);
  EXPECT_EQ(GetParam().WithoutKey(S_FALSE), Get(GetParam().name, keys));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_P(PowerKeysTest, AKeyThatCannotBeReadIsPassedOver) {
  FakeKeyList keys;
  keys.Add(Wanted()).Add(Wanted());
  keys.FailKey(0, Hr(0x80041008));
  EXPECT_EQ(0, Get(GetParam().name, keys));
  EXPECT_EQ((std::vector<ULONG>{0, 1}), keys.Reads());
  EXPECT_EQ(1u, DeliveredCount());
  keys.FailKey(1, Hr(0x80041003));
  EXPECT_EQ(GetParam().WithoutKey(Hr(0x80041003)), Get(GetParam().name, keys));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_P(PowerKeysTest, KeysThatCannotBeCountedAreNotRead) {
  FakeKeyList keys;
  keys.Add(Wanted());
  keys.FailCount(Hr(0x80041008));
  EXPECT_EQ(GetParam().WithoutKey(Hr(0x80041008)), Get(GetParam().name, keys));
  EXPECT_TRUE(keys.Reads().empty());
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_P(PowerKeysTest, WithoutAKeyListNothingIsFound) {
  // Power supplies alone never tell it.
  const bool neverTold = GetParam().name == std::string_view("CIM_PowerSupply");
  EXPECT_EQ(neverTold ? S_OK : Hr(0x80041002), GetWithoutKeys(GetParam().name));
  EXPECT_EQ(0u, DeliveredCount());
}

constexpr KeyedClass kKeyedClasses[] = {
    {"CIM_PowerSupply", OLESTR("DeviceID"), OLESTR("deviceId"), false},
    {"VORN_PowerConsumptionAmpsSensor", OLESTR("DeviceID"), OLESTR("deviceid"), false},
    {"VORN_PowerConsumptionWattsSensor", OLESTR("DeviceID"), OLESTR("DEVICEID"), false},
    {"VORN_PSRedundancyGroup", OLESTR("Name"), OLESTR("name"), false},
    {"VORN_FanRedundancyGroup", OLESTR("Name"), OLESTR("NAME"), false},
    {"VORN_PowerConsumptionData", OLESTR("DeviceID"), OLESTR("dEVICEid"), true}};

INSTANTIATE_TEST_SUITE_P(Classes, PowerKeysTest, ::testing::ValuesIn(kKeyedClasses), kClassName);

}  // namespace
}  // namespace tqcim::testing
