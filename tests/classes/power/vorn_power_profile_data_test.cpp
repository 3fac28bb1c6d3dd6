#include "tests/classes/power/power_test.h"

namespace tqcim::testing {
namespace {

/// A profile with a custom object for each part of the machine.
class VornPowerProfileDataTest : public PowerTest {
 protected:
  VornPowerProfileDataTest() {
    store.Add(700, 48).U16(16, 0x000F).U16(18, 0xBEEF).U16(20, 2).U16(22, 0xBEEF);
    store.List(2, 48, {700});
    AddCustom(780, 80, 0x80C0, 0x8005);
    AddCustom(781, 81, 0x81C0, 0x8105);
    AddCustom(782, 82, 0x82C0, 0x8205);
  }

  void AddCustom(uint32_t oid, uint16_t type, uint16_t capabilities, uint16_t setting) {
    store.Add(oid, type)
        .U16(16, 0xBEEF)
        .U16(18, capabilities)
        .U16(20, 0xBEEF)
        .U16(22, setting)
        .U16(24, 0xBEEF);
    store.List(700, type, {oid});
  }

  HRESULT EnumerateProfile() { return Enumerate("VORN_PowerProfileData"); }
  HRESULT GetProfile() { return GetWithoutKeys("VORN_PowerProfileData"); }
};

/// Custom capabilities and settings: type 82 is the processor's, 80 the memory's, 81 the fans'.
const Puts kProfile = {{"chassisIndex", VT_UI1, 0, "0"},
                       {"supportedProfile", VT_I4, 0, "15"},
                       {"profileSetting", VT_I4, 0, "2"}};
const Puts kProcessor = {{"customCPUCaps", VT_I4, 0, "33472"},
                         {"customCPUSettings", VT_I4, 0, "33285"}};
const Puts kMemory = {{"customMemCaps", VT_I4, 0, "32960"},
                      {"customMemSettings", VT_I4, 0, "32773"}};
const Puts kFans = {{"customFanCaps", VT_I4, 0, "33216"}, {"customFanSettings", VT_I4, 0, "33029"}};

Puts Together(std::initializer_list<Puts> parts) {
  Puts puts;
  for (const Puts& part : parts) puts.insert(puts.end(), part.begin(), part.end());
  return puts;
}

TEST_F(VornPowerProfileDataTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, EnumerateProfile());
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(Together({kProfile, kProcessor, kMemory, kFans}), Delivered(0));
}

TEST_F(VornPowerProfileDataTest, TheCustomProfilesAreReadBehindTheSpawnOrBeforeIt) {
  const std::vector<std::string> profile = {"children 2/48", "object 700", "free"};
  const std::vector<std::string> custom = {"children 700/80", "object 780", "free",
                                           "children 700/81", "object 781", "free",
                                           "children 700/82", "object 782", "free"};
  for (uint32_t i = 0; i < 2; ++i) definition.SpawnNothing(i, Hr(0x80041006));
  store.RecordCalls();
  EnumerateProfile();
  std::vector<std::string> expected = profile;
  expected.push_back("free");
  EXPECT_EQ(expected, store.Calls()) << "the enumeration spawns first";
  GetProfile();
  expected.insert(expected.end(), profile.begin(), profile.end());
  expected.insert(expected.end(), custom.begin(), custom.end());
  expected.insert(expected.end(), 4, "free");
  EXPECT_EQ(expected, store.Calls());
}

TEST_F(VornPowerProfileDataTest, TheEnumerationReadsMemoryThenFansThenProcessors) {
  store.RecordCalls();
  EnumerateProfile();
  std::vector<std::string> expected = {"children 2/48",   "object 700",  //
                                       "children 700/80", "object 780",  //
                                       "children 700/81", "object 781",  //
                                       "children 700/82", "object 782"};
  expected.insert(expected.end(), 8, "free");
  EXPECT_EQ(expected, store.Calls());
}

TEST_F(VornPowerProfileDataTest, TheEnumerationHoldsTheListsToo) {
  size_t live = 0;
  sink.AtIndicate([&] { live = store.LiveBlocks(); });
  EnumerateProfile();
  EXPECT_EQ(8u, live) << "four objects and four lists";
  GetProfile();
  EXPECT_EQ(4u, live) << "four objects";
}

TEST_F(VornPowerProfileDataTest, IsGotByAnyKeys) {
  EXPECT_EQ(0, Get("VORN_PowerProfileData", NumberKey(OLESTR("chassisIndex"), 9)));
  FakeKeyList unreadable;
  unreadable.FailCount(Hr(0x80041008));
  EXPECT_EQ(0, Get("VORN_PowerProfileData", unreadable));
  EXPECT_EQ(0, GetProfile());
  ASSERT_EQ(3u, DeliveredCount());
  for (size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(Together({kProfile, kProcessor, kMemory, kFans}), Delivered(i));
  }
}

TEST_F(VornPowerProfileDataTest, Type80IsTheMemorys81TheFansAnd82TheProcessors) {
  for (const uint16_t type : std::initializer_list<uint16_t>{80, 81, 82})
    store.FailListing(700, type);
  store.FailListing(700, 80, 0);
  EnumerateProfile();
  EXPECT_EQ(Together({kProfile, kMemory}), Delivered(0));
  store.FailListing(700, 80);
  store.FailListing(700, 81, 0);
  EnumerateProfile();
  EXPECT_EQ(Together({kProfile, kFans}), Delivered(1));
  store.FailListing(700, 81);
  store.FailListing(700, 82, 0);
  EnumerateProfile();
  EXPECT_EQ(Together({kProfile, kProcessor}), Delivered(2));
}

TEST_F(VornPowerProfileDataTest, WordsHaveNoSign) {
  store.Object(700).U16(16, 0xFFFF).U16(20, 0x8000);
  EnumerateProfile();
  EXPECT_EQ("65535", Value(0, "supportedProfile"));
  EXPECT_EQ("32768", Value(0, "profileSetting"));
}

TEST_F(VornPowerProfileDataTest, APartWithoutACustomObjectHasNoWords) {
  store.List(700, 82, {});
  EXPECT_EQ(0, EnumerateProfile());
  EXPECT_EQ(0, GetProfile());
  EXPECT_EQ(Together({kProfile, kMemory, kFans}), Delivered(0));
  EXPECT_EQ(Together({kProfile, kMemory, kFans}), Delivered(1));
}

TEST_F(VornPowerProfileDataTest, AnUnreadableCustomObjectIsNone) {
  store.FailRead(780);
  EXPECT_EQ(0, EnumerateProfile());
  EXPECT_EQ(0, GetProfile());
  EXPECT_EQ(Together({kProfile, kProcessor, kFans}), Delivered(0));
  EXPECT_EQ(Together({kProfile, kProcessor, kFans}), Delivered(1));
}

TEST_F(VornPowerProfileDataTest, WithoutCustomObjectsTheProfileRemains) {
  for (const uint16_t type : std::initializer_list<uint16_t>{80, 81, 82})
    store.FailListing(700, type);
  EXPECT_EQ(0, EnumerateProfile());
  EXPECT_EQ(0, GetProfile());
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(kProfile, Delivered(0));
  EXPECT_EQ(kProfile, Delivered(1));
}

TEST_F(VornPowerProfileDataTest, TakesTheFirstCustomObjectOfEachType) {
  store.Add(790, 80).U16(18, 1).U16(22, 1);
  store.List(700, 80, {780, 790});
  EnumerateProfile();
  EXPECT_EQ("32960", Value(0, "customMemCaps"));
}

TEST_F(VornPowerProfileDataTest, CustomObjectsAreListedUnderTheProfilesOwnIdentifier) {
  store.Object(700).U32(4, 777);
  EnumerateProfile();
  EXPECT_EQ(kProfile, Delivered(0));
}

TEST_F(VornPowerProfileDataTest, PublishesTheFirstProfileOnly) {
  store.Add(701, 48).U16(16, 1).U16(20, 1);
  store.List(2, 48, {700, 701});
  EXPECT_EQ(0, EnumerateProfile());
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ("15", Value(0, "supportedProfile"));
}

TEST_F(VornPowerProfileDataTest, WithoutAProfileEnumerationIsSuccessAndGettingNotFound) {
  store.List(2, 48, {});
  EXPECT_EQ(0, EnumerateProfile());
  EXPECT_EQ(Hr(0x80041002), GetProfile());
  store.FailListing(2, 48);
  EXPECT_EQ(0, EnumerateProfile());
  EXPECT_EQ(Hr(0x80041002), GetProfile());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornPowerProfileDataTest, AnUnreadableProfileIsSuccessToEnumerateAndNotFoundToGet) {
  store.FailRead(700);
  EXPECT_EQ(0, EnumerateProfile());
  EXPECT_EQ(Hr(0x80041002), GetProfile());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornPowerProfileDataTest, AFailedSpawnIsSuccessToEnumerate) {
  definition.SpawnNothing(0, Hr(0x80041006));
  EXPECT_EQ(0, EnumerateProfile());
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornPowerProfileDataTest, GettingReturnsTheResultOfASpawnWithoutAnInstance) {
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, S_OK);
  EXPECT_EQ(Hr(0x80041006), GetProfile());
  EXPECT_EQ(0, GetProfile());
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornPowerProfileDataTest, ADeliveryIsSuccessWhateverTheSinkDoes) {
  sink.KeepInstances();
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(0, EnumerateProfile());
  EXPECT_EQ(0, GetProfile());
  EXPECT_EQ(2u, DeliveredCount());
}

}  // namespace
}  // namespace tqcim::testing
