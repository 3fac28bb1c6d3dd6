#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

constexpr const char* kSdCard = "VORN_SDCardDevice";

class VornSdCardDeviceTest : public HandlerTest {
 protected:
  VornSdCardDeviceTest() {
    store.Add(133, 52).U8(16, 2).U8(17, 1).U16(18, 1).U32(20, 16384).U32(24, 0).U32(28, 5).Ucs2(
        40, u"Internal card A");
    store.Add(131, 52)
        .U8(16, 255)
        .U8(17, 255)
        .U16(18, 0)
        .U32(20, 4294967295)
        .U32(24, 0xFFFFFFFF)
        .U32(28, 4294967294)
        .Ucs2(40, u"Internal card B");
    store.Add(132, 52).U8(17, 254).Ucs2(40, u"");
    store.List(2, 52, {133, 131, 132});
  }

  /// Gets by the text of a key; gives the names of the cards delivered by that.
  std::vector<std::string> NamesGotBy(const OLECHAR* text) {
    const size_t before = DeliveredCount();
    EXPECT_EQ(0, Get(kSdCard, StringKey(OLESTR("DeviceID"), text)));
    std::vector<std::string> names;
    for (size_t i = before; i < DeliveredCount(); ++i) names.push_back(Value(i, "Name"));
    return names;
  }
};

const Puts kCardA = {{"sdType", VT_UI1, 0, "2"},
                     {"sdCertified", VT_UI1, 0, "2"},
                     {"isSDCardPresent", VT_BOOL, 0, "1"},
                     {"sdCardSizeMB", VT_I4, 0, "16384"},
                     {"sdCardFreeSizeMB", VT_I4, 0, "0"},
                     {"sdCardState", VT_I4, 0, "5"},
                     {"Name", VT_BSTR, 0, "Internal card A"},
                     {"DeviceID", VT_BSTR, 0, "0"}};

const Puts kCardB = {{"sdType", VT_UI1, 0, "255"},
                     {"isSDCardPresent", VT_BOOL, 0, "0"},
                     {"sdCardSizeMB", VT_I4, 0, "-1"},
                     {"sdCardState", VT_I4, 0, "-2"},
                     {"Name", VT_BSTR, 0, "Internal card B"},
                     {"DeviceID", VT_BSTR, 0, "1"}};

const Puts kCardWithoutName = {{"sdType", VT_UI1, 0, "0"},
                               {"sdCertified", VT_UI1, 0, "0"},
                               {"isSDCardPresent", VT_BOOL, 0, "0"},
                               {"sdCardSizeMB", VT_I4, 0, "0"},
                               {"sdCardFreeSizeMB", VT_I4, 0, "0"},
                               {"sdCardState", VT_I4, 0, "0"},
                               {"Name", VT_BSTR, 0, ""},
                               {"DeviceID", VT_BSTR, 0, "2"}};

TEST_F(VornSdCardDeviceTest, EnumeratesEveryCardInStoreOrder) {
  EXPECT_EQ(0, Enumerate(kSdCard));
  ASSERT_EQ(3u, DeliveredCount());
  EXPECT_EQ(kCardA, Delivered(0));
  EXPECT_EQ(kCardB, Delivered(1));
  EXPECT_EQ(kCardWithoutName, Delivered(2));
}

TEST_F(VornSdCardDeviceTest, ACardGoesBackToTheLibraryBeforeItIsDelivered) {
  std::vector<size_t> live;
  sink.AtIndicate([&] { live.push_back(store.LiveBlocks()); });
  Enumerate(kSdCard);
  NamesGotBy(OLESTR("1"));
  EXPECT_EQ((std::vector<size_t>{1, 1, 1, 1}), live) << "the list alone is there";
}

TEST_F(VornSdCardDeviceTest, CertificationIsTranslated) {
  constexpr std::pair<uint8_t, const char*> kRows[] = {
      {0, "1"},          {1, "2"},   {2, "<absent>"},  {3, "<absent>"},
      {253, "<absent>"}, {254, "0"}, {255, "<absent>"}};
  for (const auto& [code, value] : kRows) {
    store.Object(133).U8(17, code);
    const size_t card = DeliveredCount();
    Enumerate(kSdCard);
    EXPECT_EQ(value, Value(card, "sdCertified")) << int{code};
  }
}

TEST_F(VornSdCardDeviceTest, PresenceIsTheStores16BitValueCopiedUnchanged) {
  constexpr std::pair<uint16_t, const char*> kRows[] = {
      {0, "0"}, {1, "1"}, {256, "256"}, {0x8000, "-32768"}, {0xFFFF, "-1"}};
  for (const auto& [raw, value] : kRows) {
    store.Object(133).U16(18, raw);
    const size_t card = DeliveredCount();
    Enumerate(kSdCard);
    EXPECT_EQ(value, Value(card, "isSDCardPresent")) << raw;
  }
}

TEST_F(VornSdCardDeviceTest, AnUnknownFreeSizeIsLeftOut) {
  constexpr std::pair<uint32_t, const char*> kRows[] = {{0, "0"},
                                                        {1, "1"},
                                                        {0x80000000, "-2147483648"},
                                                        {0xFFFFFFFD, "-3"},
                                                        {0xFFFFFFFE, "<absent>"},
                                                        {0xFFFFFFFF, "<absent>"}};
  for (const auto& [freeSize, value] : kRows) {
    store.Object(133).U32(24, freeSize);
    const size_t card = DeliveredCount();
    Enumerate(kSdCard);
    EXPECT_EQ(value, Value(card, "sdCardFreeSizeMB")) << freeSize;
  }
}

TEST_F(VornSdCardDeviceTest, EnumerationListsOnce) {
  store.RecordCalls();
  Enumerate(kSdCard);
  EXPECT_EQ((std::vector<std::string>{"children 2/52", "object 133", "free", "object 131", "free",
                                      "object 132", "free", "free"}),
            store.Calls());
}

TEST_F(VornSdCardDeviceTest, NoCardsAreSuccess) {
  store.List(2, 52, {});
  EXPECT_EQ(0, Enumerate(kSdCard));
  EXPECT_TRUE(NamesGotBy(OLESTR("0")).empty());
  store.FailListing(2, 52);
  EXPECT_EQ(0, Enumerate(kSdCard));
  EXPECT_TRUE(NamesGotBy(OLESTR("0")).empty());
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornSdCardDeviceTest, EnumerationEndsAtTheFirstCardThatCannotBeRead) {
  store.FailRead(131);
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), Enumerate(kSdCard));
  EXPECT_EQ(1u, DeliveredCount());
  store.FailRead(133);
  EXPECT_EQ(0, Enumerate(kSdCard));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(VornSdCardDeviceTest, EnumerationStopsAtAFailedSpawnAndReturnsIt) {
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), Enumerate(kSdCard));
  EXPECT_EQ(1u, DeliveredCount());
  EXPECT_EQ(2u, definition.Spawns());
}

TEST_F(VornSdCardDeviceTest, EnumerationStopsWhereASuccessfulSpawnGaveNoInstance) {
  sink.SetIndicateResult(Hr(0x80041032));
  definition.SpawnNothing(1, S_OK);
  EXPECT_EQ(0, Enumerate(kSdCard));
  EXPECT_EQ(1u, DeliveredCount());
  EXPECT_EQ(2u, definition.Spawns());
}

TEST_F(VornSdCardDeviceTest, EnumerationGoesOnAfterARefusalAndReturnsTheLastDelivery) {
  sink.KeepInstances();
  sink.Refuse(0, Hr(0x80041032));
  EXPECT_EQ(0, Enumerate(kSdCard));
  EXPECT_EQ(3u, DeliveredCount());
  sink.Refuse(5, Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), Enumerate(kSdCard));
}

TEST_F(VornSdCardDeviceTest, IsGotByItsPosition) {
  EXPECT_EQ(0, Get(kSdCard, StringKey(OLESTR("DeviceID"), OLESTR("0"))));
  EXPECT_EQ(0, Get(kSdCard, StringKey(OLESTR("DeviceID"), OLESTR("1"))));
  EXPECT_EQ(0, Get(kSdCard, StringKey(OLESTR("DeviceID"), OLESTR("2"))));
  ASSERT_EQ(3u, DeliveredCount());
  EXPECT_EQ(kCardA, Delivered(0));
  EXPECT_EQ(kCardB, Delivered(1));
  EXPECT_EQ(kCardWithoutName, Delivered(2));
}

TEST_F(VornSdCardDeviceTest, PositionsOfTwoDigitsAreMatchedToo) {
  std::vector<uint32_t> oids(12, 133);
  oids[10] = 131;
  store.List(2, 52, oids);
  EXPECT_EQ((std::vector<std::string>{"Internal card B"}), NamesGotBy(OLESTR("10")));
  EXPECT_EQ("10", Value(0, "DeviceID"));
}

TEST_F(VornSdCardDeviceTest, PositionsCountOnBeyond32767) {
  std::vector<uint32_t> oids(32'769, 133);
  oids[32'768] = 131;
  store.List(2, 52, oids);
  EXPECT_EQ((std::vector<std::string>{"Internal card B"}), NamesGotBy(OLESTR("32768")));
  EXPECT_EQ("32768", Value(0, "DeviceID"));
}

TEST_F(VornSdCardDeviceTest, TheKeyIsComparedAsTextAndNotAsANumber) {
  for (const OLECHAR* text :
       {OLESTR("01"), OLESTR(" 1"), OLESTR("1 "), OLESTR("+1"), OLESTR("1.0"), OLESTR("0x1"),
        OLESTR("-0"), OLESTR("3"), OLESTR("65537"), OLESTR(""), OLESTR("Internal card B")}) {
    EXPECT_TRUE(NamesGotBy(text).empty()) << Printable(text);
  }
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornSdCardDeviceTest, TheFirstKeyCountsWhateverItsName) {
  FakeKeyList keys;
  keys.Add(StringKey(OLESTR("SystemName"), OLESTR("1")))
      .Add(StringKey(OLESTR("DeviceID"), OLESTR("0")));
  EXPECT_EQ(0, Get(kSdCard, keys));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kCardB, Delivered(0));
  EXPECT_EQ((std::vector<ULONG>{0}), keys.Reads());
}

TEST_F(VornSdCardDeviceTest, ALaterKeyIsNotTried) {
  FakeKeyList keys;
  keys.Add(StringKey(OLESTR("SystemName"), OLESTR("RACK42-NODE0007")))
      .Add(StringKey(OLESTR("DeviceID"), OLESTR("0")));
  EXPECT_EQ(0, Get(kSdCard, keys));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornSdCardDeviceTest, AKeyWithoutTextFindsNothing) {
  EXPECT_EQ(0, Get(kSdCard, NumberKey(OLESTR("DeviceID"), 0)));
  EXPECT_TRUE(NamesGotBy(nullptr).empty());
  FakeKeyList noKeys;
  EXPECT_EQ(0, Get(kSdCard, noKeys));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornSdCardDeviceTest, GettingReturnsTheFailureOfReadingTheKeys) {
  store.RecordCalls();
  FakeKeyList uncounted;
  uncounted.FailCount(Hr(0x80041008));
  EXPECT_EQ(Hr(0x80041008), Get(kSdCard, uncounted));
  FakeKeyList unread;
  unread.Add(StringKey(OLESTR("DeviceID"), OLESTR("0"))).FailKey(0, Hr(0x80041003));
  EXPECT_EQ(Hr(0x80041003), Get(kSdCard, unread));
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys(kSdCard));
  EXPECT_TRUE(store.Calls().empty());
}

TEST_F(VornSdCardDeviceTest, GettingReadsTheMatchingCardOnly) {
  store.RecordCalls();
  NamesGotBy(OLESTR("1"));
  EXPECT_EQ((std::vector<std::string>{"children 2/52", "object 131", "free", "free"}),
            store.Calls());
}

TEST_F(VornSdCardDeviceTest, AMatchThatCannotBeReadSpawnsAnInstanceThatIsNotDelivered) {
  store.FailRead(131);
  EXPECT_TRUE(NamesGotBy(OLESTR("1")).empty());
  EXPECT_EQ(1u, definition.Spawns());
}

TEST_F(VornSdCardDeviceTest, GettingReturnsTheStatusOfASpawnWithoutInstance) {
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, S_OK);
  EXPECT_EQ(Hr(0x80041006), Get(kSdCard, StringKey(OLESTR("DeviceID"), OLESTR("0"))));
  EXPECT_EQ(0, Get(kSdCard, StringKey(OLESTR("DeviceID"), OLESTR("0"))));
  store.FailRead(131);
  definition.SpawnNothing(2, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), Get(kSdCard, StringKey(OLESTR("DeviceID"), OLESTR("1"))));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornSdCardDeviceTest, GettingReturnsTheStatusOfTheDelivery) {
  sink.KeepInstances();
  EXPECT_EQ(0, Get(kSdCard, StringKey(OLESTR("DeviceID"), OLESTR("0"))));
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), Get(kSdCard, StringKey(OLESTR("DeviceID"), OLESTR("0"))));
}

}  // namespace
}  // namespace tqcim::testing
