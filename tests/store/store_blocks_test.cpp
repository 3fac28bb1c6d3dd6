#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "platform/layouts/catalogue.h"
#include "store/snapshot_builder.h"
#include "store/store.h"
#include "tests/store/raw_bytes.h"

namespace tqcim::store {
namespace {

using testing::Oids;
using testing::U32;
using testing::U8;

namespace layouts = tqcim::layout;

/// A system with one chassis and, below it, firmware objects of these OIDs.
std::unique_ptr<Snapshot> WithFirmware(std::initializer_list<uint32_t> oids,
                                       const char* version = "1.0") {
  SnapshotBuilder builder;
  builder.Add(1, layouts::system::kLayout, Status::kOk, {});
  builder.Add(2, layouts::chassis::kLayout, Status::kOk, {1});
  for (const uint32_t oid : oids) {
    builder.Add(oid, layouts::firmware::kLayout, Status::kOk, {2})
        .Set(layouts::firmware::kVersion, version);
  }
  return builder.Build();
}

std::string VersionOf(void* firmware) {
  void* text = Store::TextAt(firmware, U32(firmware, 32));
  std::string version = static_cast<char*>(text);
  Store::Free(text);
  return version;
}

TEST(StoreBlocks, AStoreWithoutASnapshotKnowsNothing) {
  const Store store;
  EXPECT_EQ(store.CopyObject(1), nullptr);
  EXPECT_EQ(store.ListChildren(1, 17), nullptr);
}

TEST(StoreBlocks, EveryListingHandsOutTheSameBlock) {
  Store store;
  store.Replace(WithFirmware({5, 6}));
  void* first = store.ListChildren(2, 19);
  void* second = store.ListChildren(2, 19);
  EXPECT_EQ(first, second);
  EXPECT_EQ(Oids(first), std::vector<uint32_t>({5, 6}));
  Store::Free(first);
  EXPECT_EQ(Oids(second), std::vector<uint32_t>({5, 6}));
  Store::Free(second);
}

TEST(StoreBlocks, EveryObjectIsACopyThatItsReaderMayWriteInto) {
  Store store;
  store.Replace(WithFirmware({5}));
  void* first = store.CopyObject(5);
  void* second = store.CopyObject(5);
  EXPECT_NE(first, second);
  std::memset(first, 0xAA, 40);
  EXPECT_EQ(U32(second, 4), 5U);
  Store::Free(first);
  void* third = store.CopyObject(5);
  EXPECT_EQ(U32(third, 4), 5U);
  Store::Free(third);
  Store::Free(second);
}

TEST(StoreBlocks, BlocksAreAlignedForEveryField) {
  Store store;
  store.Replace(WithFirmware({5}));
  void* object = store.CopyObject(5);
  EXPECT_EQ(reinterpret_cast<uintptr_t>(object) % 16, 0U);
  void* list = store.ListChildren(2, 19);
  EXPECT_EQ(reinterpret_cast<uintptr_t>(list) % 4, 0U);
  Store::Free(list);
  Store::Free(object);
}

TEST(StoreBlocks, EachListHoldsItsSnapshotUntilItIsFreed) {
  Store store;
  store.Replace(WithFirmware({5}));
  const auto kept = [&] {
    store.Replace(WithFirmware({5}));
    return store.SnapshotCount();
  };
  void* a = store.ListChildren(2, 19);
  void* b = store.ListChildren(2, 22);
  void* c = store.ListChildren(2, 19);
  void* object = store.CopyObject(5);
  for (void* list : {a, b, c}) {
    EXPECT_EQ(kept(), 2U);
    Store::Free(list);
  }
  EXPECT_EQ(kept(), 1U) << "a copy holds nothing";
  Store::Free(object);
}

TEST(StoreBlocks, ARefreshIsSeenAtOnce) {
  Store store;
  store.Replace(WithFirmware({5}, "1.0"));
  store.Replace(WithFirmware({5, 6}, "2.0"));
  void* object = store.CopyObject(5);
  EXPECT_EQ(VersionOf(object), "2.0");
  Store::Free(object);
  void* list = store.ListChildren(2, 19);
  EXPECT_EQ(Oids(list), std::vector<uint32_t>({5, 6}));
  Store::Free(list);
  EXPECT_EQ(store.SnapshotCount(), 1U);
}

TEST(StoreBlocks, AnOidOfAHeldListStaysReadableAfterARefreshAndNoLonger) {
  Store store;
  store.Replace(WithFirmware({5, 6}));
  void* held = store.ListChildren(2, 19);
  store.Replace(WithFirmware({6}));
  EXPECT_EQ(Oids(held), std::vector<uint32_t>({5, 6}));
  void* object = store.CopyObject(5);
  ASSERT_NE(object, nullptr);
  EXPECT_EQ(U32(object, 4), 5U);
  EXPECT_EQ(store.SnapshotCount(), 2U);
  Store::Free(held);
  EXPECT_EQ(store.CopyObject(5), nullptr);
  EXPECT_EQ(VersionOf(object), "1.0") << "a copy is the caller's own";
  Store::Free(object);
}

TEST(StoreBlocks, ChildrenOfAHeldOidStayListableAfterARefresh) {
  Store store;
  SnapshotBuilder builder;
  builder.Add(1, layouts::system::kLayout, Status::kOk, {});
  builder.Add(7, layouts::chassis::kLayout, Status::kOk, {1});
  builder.Add(8, layouts::firmware::kLayout, Status::kOk, {7});
  store.Replace(builder.Build());
  void* chassis = store.ListChildren(1, 17);
  store.Replace(WithFirmware({5}));
  void* firmware = store.ListChildren(7, 19);
  ASSERT_NE(firmware, nullptr);
  EXPECT_EQ(Oids(firmware), std::vector<uint32_t>({8}));
  Store::Free(chassis);
  void* object = store.CopyObject(8);
  EXPECT_NE(object, nullptr) << "the inner list holds the retired snapshot too";
  Store::Free(object);
  Store::Free(firmware);
  EXPECT_EQ(store.ListChildren(7, 19), nullptr);
}

TEST(StoreBlocks, WhatTheSnapshotInServiceKnowsComesFromIt) {
  Store store;
  store.Replace(WithFirmware({5}, "1.0"));
  void* held = store.ListChildren(2, 19);
  store.Replace(WithFirmware({5}, "2.0"));
  void* object = store.CopyObject(5);
  EXPECT_EQ(VersionOf(object), "2.0");
  Store::Free(object);
  Store::Free(held);
}

TEST(StoreBlocks, AnOidThatBecomesAnotherTypeIsAbsentWhileAListOfBeforeIsHeld) {
  Store store;
  store.Replace(WithFirmware({5}));
  void* held = store.ListChildren(2, 19);
  SnapshotBuilder builder;
  builder.Add(1, layouts::system::kLayout, Status::kOk, {});
  builder.Add(5, layouts::chassis::kLayout, Status::kOk, {1});
  store.Replace(builder.Build());
  EXPECT_EQ(store.CopyObject(5), nullptr);
  Store::Free(held);
  void* object = store.CopyObject(5);
  ASSERT_NE(object, nullptr);
  Store::Free(object);
}

TEST(StoreBlocks, ARetiredSnapshotGoesWithTheRefreshAfterItsLastListWasFreed) {
  Store store;
  store.Replace(WithFirmware({5}));
  void* held = store.ListChildren(2, 19);
  store.Replace(WithFirmware({6}));
  store.Replace(WithFirmware({7}));
  EXPECT_EQ(store.SnapshotCount(), 2U) << "the one in between was never held";
  Store::Free(held);
  store.Replace(WithFirmware({8}));
  EXPECT_EQ(store.SnapshotCount(), 1U);
}

TEST(StoreBlocks, ATextIsFoundAtItsOffsetOnly) {
  Store store;
  store.Replace(WithFirmware({5}, "\xC3\xA4 1"));
  void* object = store.CopyObject(5);
  // The body ends at 76; the version takes 8 bytes, the empty name 2.
  EXPECT_EQ(U32(object, 32), 76U);
  EXPECT_EQ(VersionOf(object), "\xC3\xA4 1");
  EXPECT_EQ(Store::TextAt(object, 0), nullptr);
  EXPECT_EQ(Store::TextAt(object, 15), nullptr) << "inside the header";
  void* behindHeader = Store::TextAt(object, 16);
  EXPECT_NE(behindHeader, nullptr);
  Store::Free(behindHeader);
  EXPECT_EQ(Store::TextAt(object, 86), nullptr) << "right behind the object";
  EXPECT_EQ(Store::TextAt(object, 85), nullptr) << "half a character";
  EXPECT_EQ(Store::TextAt(object, 0xFFFFFFFF), nullptr);
  void* empty = Store::TextAt(object, 84);
  ASSERT_NE(empty, nullptr);
  EXPECT_STREQ(static_cast<char*>(empty), "");
  Store::Free(empty);
  Store::Free(object);
}

TEST(StoreBlocks, ATextWithoutItsEndIsNone) {
  static constexpr layout::Field<uint32_t> kLast{"last", 80};
  static constexpr layout::FieldInfo kFields[] = {kLast};
  static constexpr layout::ObjectLayout kWithoutTexts{50, "withoutTexts", kFields};
  SnapshotBuilder builder;
  builder.Add(1, layouts::system::kLayout, Status::kOk, {});
  builder.Add(3, kWithoutTexts, Status::kOk, {1}).Set(kLast, 0x00410041);
  Store store;
  store.Replace(builder.Build());
  void* object = store.CopyObject(3);
  EXPECT_EQ(Store::TextAt(object, 80), nullptr);
  Store::Free(object);
}

TEST(StoreBlocks, FreeingNothingIsAllowed) {
  Store::Free(nullptr);
}

TEST(StoreBlocks, TheFirstToOpenLoadsAndTheOthersDoNot) {
  Store store;
  int loads = 0;
  const auto load = [&] {
    ++loads;
    return WithFirmware({5});
  };
  store.OpenOnce(load);
  store.OpenOnce(load);
  EXPECT_EQ(loads, 1);
}

}  // namespace
}  // namespace tqcim::store
