#include "store/snapshot.h"

#include <gtest/gtest.h>

#include <functional>
#include <thread>

#include "platform/layouts/catalogue.h"
#include "store/snapshot_builder.h"
#include "store/store_error.h"
#include "tests/store/raw_bytes.h"

namespace tqcim::store {
namespace {

using testing::BytesOf;
using testing::Oids;
using testing::Text;
using testing::U16;
using testing::U32;
using testing::U8;

namespace layouts = tqcim::layout;

/// A builder that holds the system and the main chassis.
SnapshotBuilder WithChassis() {
  SnapshotBuilder builder;
  builder.Add(1, layouts::system::kLayout, Status::kOk, {});
  builder.Add(2, layouts::chassis::kLayout, Status::kOk, {1});
  return builder;
}

std::string FailureOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const StoreError& error) {
    return error.what();
  }
  return "no failure";
}

std::string BuildFailure(SnapshotBuilder& builder) {
  return FailureOf([&] { builder.Build(); });
}

TEST(Snapshot, AHeaderHoldsOidTypeAndStatus) {
  SnapshotBuilder builder = WithChassis();
  builder.Add(0x01020304, layouts::bios_settings::kLayout, Status::kCritical, {2});
  const auto snapshot = builder.Build();
  const std::byte* object = BytesOf(*snapshot, 0x01020304);
  EXPECT_EQ(U32(object, 4), 0x01020304U);
  EXPECT_EQ(U16(object, 8), 45057);
  EXPECT_EQ(U8(object, 10), 4);
  EXPECT_EQ(U32(object, 0), 0U);
}

TEST(Snapshot, ABodyIsAsLongAsItsLayout) {
  EXPECT_EQ(BodySize(layouts::memory_device::kLayout), 116U);
  EXPECT_EQ(BodySize(layouts::power_consumption::kLayout), 100U);
}

TEST(Snapshot, AnObjectThatIsReadAsASensorHasAnEmptyName) {
  SnapshotBuilder builder = WithChassis();
  builder.Add(3, layouts::bios_settings::kLayout, Status::kOk, {2});
  builder.Add(4, layouts::power_supply::kLayout, Status::kOk, {2})
      .Set(layouts::power_supply::kName, "PS1");
  const auto snapshot = builder.Build();
  for (const uint32_t oid : {1U, 2U, 3U, 4U}) {
    ASSERT_GE(snapshot->Find(oid)->bytes.size(), 76U) << oid;
    EXPECT_EQ(U32(BytesOf(*snapshot, oid), 72), 0U) << oid;
    EXPECT_EQ(U16(BytesOf(*snapshot, oid), 0), 0U) << oid;
  }
}

TEST(Snapshot, FieldsStandAtTheirOffsetsLittleEndian) {
  SnapshotBuilder builder = WithChassis();
  builder.Add(3, layouts::probe::kVoltageLayout, Status::kOk, {2})
      .Set(layouts::probe::kCurrentReading, -2)
      .Set(layouts::probe::kSettableThresholds, 0x0102)
      .Set(layouts::probe::kName, "P\xC3\xA4");
  const auto snapshot = builder.Build();
  const std::byte* object = BytesOf(*snapshot, 3);
  const uint8_t expectedReading[] = {0xFE, 0xFF, 0xFF, 0xFF};
  for (size_t i = 0; i < 4; ++i) EXPECT_EQ(U8(object, 20 + i), expectedReading[i]);
  EXPECT_EQ(U8(object, 70), 0x02);
  EXPECT_EQ(U8(object, 71), 0x01);
  // The text stands right behind the body of 76 bytes: 'P', 'ä', zero.
  EXPECT_EQ(U32(object, 72), 76U);
  const uint8_t expectedText[] = {0x50, 0x00, 0xE4, 0x00, 0x00, 0x00};
  ASSERT_EQ(snapshot->Find(3)->bytes.size(), 82U);
  for (size_t i = 0; i < 6; ++i) EXPECT_EQ(U8(object, 76 + i), expectedText[i]);
}

TEST(Snapshot, TextsStandAtEvenOffsetsBehindAnOddBody) {
  static constexpr layout::Ucs2Field kName{"name", 77};
  static constexpr layout::FieldInfo kFields[] = {kName};
  static constexpr layout::ObjectLayout kOdd{17, "odd", kFields};
  ObjectDraft draft(3, kOdd, Status::kOk, {2}, "");
  draft.Set(kName, "x");
  const StoredObject object = draft.Finish(*std::pmr::new_delete_resource());
  EXPECT_EQ(U32(object.bytes.data(), 77), 82U);
  EXPECT_EQ(object.bytes.size(), 86U);
}

TEST(Snapshot, AFieldThatNobodySetHoldsItsNone) {
  SnapshotBuilder builder = WithChassis();
  builder.Add(3, layouts::memory_redundancy::kLayout, Status::kOk, {2});
  builder.Add(4, layouts::sd_card::kLayout, Status::kOk, {2});
  const auto snapshot = builder.Build();
  EXPECT_EQ(U8(BytesOf(*snapshot, 3), 18), 0xFF);
  EXPECT_EQ(U32(BytesOf(*snapshot, 4), 24), 0xFFFFFFFFU);
  EXPECT_EQ(U32(BytesOf(*snapshot, 4), 20), 0U);
}

TEST(Snapshot, ATextThatNobodySetIsEmptyOrHasOffsetZeroAsItsLayoutSays) {
  SnapshotBuilder builder = WithChassis();
  builder.Add(3, layouts::processor::kLayout, Status::kOk, {2});
  const auto snapshot = builder.Build();
  const std::byte* object = BytesOf(*snapshot, 3);
  EXPECT_EQ(U32(object, 72), 0U) << "brand: readers ask first";
  EXPECT_EQ(U32(object, 80), 0U) << "stepping: readers ask first";
  EXPECT_EQ(U32(object, 76), 86U) << "model: readers take it";
  EXPECT_EQ(Text(object, 76), u"");
}

TEST(Snapshot, AnEmptyTextThatWasSetIsThere) {
  SnapshotBuilder builder = WithChassis();
  builder.Add(3, layouts::processor::kLayout, Status::kOk, {2}).Set(layouts::processor::kBrand, "");
  const auto snapshot = builder.Build();
  EXPECT_EQ(U32(BytesOf(*snapshot, 3), 72), 86U);
  EXPECT_EQ(Text(BytesOf(*snapshot, 3), 72), u"");
}

TEST(Snapshot, TheOrderInWhichTextsAreSetDoesNotShowAndTheLastOneCounts) {
  const auto build = [](const std::function<void(ObjectDraft&)>& set) {
    SnapshotBuilder builder = WithChassis();
    set(builder.Add(3, layouts::firmware::kLayout, Status::kOk, {2}));
    return builder.Build();
  };
  const auto a = build([](ObjectDraft& draft) {
    draft.Set(layouts::firmware::kVersion, "1").Set(layouts::firmware::kName, "BMC");
  });
  const auto b = build([](ObjectDraft& draft) {
    draft.Set(layouts::firmware::kName, "old one")
        .Set(layouts::firmware::kName, "BMC")
        .Set(layouts::firmware::kVersion, "1");
  });
  EXPECT_EQ(*a->Find(3), *b->Find(3));
}

TEST(Snapshot, ChildrenAreListedByParentAndTypeInTheOrderAdded) {
  SnapshotBuilder builder = WithChassis();
  builder.Add(9, layouts::firmware::kLayout, Status::kOk, {2});
  builder.Add(5, layouts::bios::kLayout, Status::kOk, {2});
  builder.Add(4, layouts::firmware::kLayout, Status::kOk, {2});
  const auto snapshot = builder.Build();
  EXPECT_EQ(Oids(snapshot->Children(1, 17)), std::vector<uint32_t>({2}));
  EXPECT_EQ(Oids(snapshot->Children(2, 19)), std::vector<uint32_t>({9, 4}));
  EXPECT_EQ(Oids(snapshot->Children(2, 212)), std::vector<uint32_t>({5}));
}

TEST(Snapshot, AnObjectStandsUnderEachOfItsParents) {
  SnapshotBuilder builder = WithChassis();
  // The parent may come after its child.
  builder.Add(4, layouts::processor::kLayout, Status::kOk, {3, 2});
  builder.Add(3, layouts::processor_device::kLayout, Status::kOk, {2});
  const auto snapshot = builder.Build();
  EXPECT_EQ(Oids(snapshot->Children(3, 210)), std::vector<uint32_t>({4}));
  EXPECT_EQ(Oids(snapshot->Children(2, 210)), std::vector<uint32_t>({4}));
}

TEST(Snapshot, AParentWithoutChildrenOfATypeHasAnEmptyListAndNoParentHasNone) {
  const auto snapshot = WithChassis().Build();
  ASSERT_NE(snapshot->Children(2, 22), nullptr);
  EXPECT_EQ(U32(snapshot->Children(2, 22), 0), 0U);
  EXPECT_EQ(snapshot->Children(3, 22), nullptr);
}

TEST(Snapshot, NothingAtAllIsAStoreToo) {
  const auto snapshot = SnapshotBuilder().Build();
  EXPECT_EQ(snapshot->Find(1), nullptr);
  EXPECT_EQ(snapshot->Children(1, 17), nullptr);
}

TEST(Snapshot, IsHeldInServiceAndUntilEveryHoldIsGivenBackByWhateverThread) {
  const auto snapshot = WithChassis().Build();
  const auto elsewhere = [](auto action) { std::thread(action).join(); };
  EXPECT_TRUE(snapshot->IsHeld());
  EXPECT_FALSE(snapshot->Close()) << "in service";
  snapshot->Hold();
  elsewhere([&] { snapshot->Hold(); });
  snapshot->Retire();
  EXPECT_TRUE(snapshot->HoldRetired());
  for (int given = 0; given < 3; ++given) {
    EXPECT_TRUE(snapshot->IsHeld());
    EXPECT_FALSE(snapshot->Close()) << given << " given back";
    elsewhere([&] { snapshot->Release(); });
  }
  EXPECT_FALSE(snapshot->IsHeld());
}

TEST(Snapshot, IsHeldByNobodyOnceItIsClosed) {
  const auto snapshot = WithChassis().Build();
  snapshot->Retire();
  EXPECT_TRUE(snapshot->Close());
  EXPECT_FALSE(snapshot->HoldRetired());
  EXPECT_FALSE(snapshot->IsHeld());
}

TEST(SnapshotBuilder, RefusesAnOidThatIsTaken) {
  SnapshotBuilder builder = WithChassis();
  builder.Add(2, layouts::bios::kLayout, Status::kOk, {1}, "here:7");
  EXPECT_EQ(BuildFailure(builder), "here:7: OID 2 is already taken");
}

TEST(SnapshotBuilder, RefusesOidZero) {
  SnapshotBuilder builder = WithChassis();
  builder.Add(0, layouts::bios::kLayout, Status::kOk, {2}, "here:7");
  EXPECT_EQ(BuildFailure(builder), "here:7: OID 0 names no object");
}

TEST(SnapshotBuilder, RefusesAParentThatDoesNotExist) {
  SnapshotBuilder builder = WithChassis();
  builder.Add(3, layouts::bios::kLayout, Status::kOk, {77}, "here:7");
  EXPECT_EQ(BuildFailure(builder), "here:7: the parent 77 of object 3 does not exist");
}

TEST(SnapshotBuilder, RefusesAParentThatIsGivenTwice) {
  SnapshotBuilder builder = WithChassis();
  builder.Add(3, layouts::bios::kLayout, Status::kOk, {2, 2}, "here:7");
  EXPECT_EQ(BuildFailure(builder), "here:7: object 3 names the parent 2 twice");
}

TEST(SnapshotBuilder, RefusesAnObjectWithoutParents) {
  SnapshotBuilder builder = WithChassis();
  builder.Add(3, layouts::bios::kLayout, Status::kOk, {}, "here:7");
  EXPECT_EQ(BuildFailure(builder), "here:7: object 3 has no parent");
}

TEST(SnapshotBuilder, RefusesASystemElsewhereAndAnythingElseAsTheRoot) {
  SnapshotBuilder second = WithChassis();
  second.Add(3, layouts::system::kLayout, Status::kOk, {1}, "here:7");
  EXPECT_EQ(BuildFailure(second), "here:7: the system object, and nothing else, has OID 1");
  SnapshotBuilder other;
  other.Add(1, layouts::chassis::kLayout, Status::kOk, {}, "here:8");
  EXPECT_EQ(BuildFailure(other), "here:8: the system object, and nothing else, has OID 1");
  SnapshotBuilder below;
  below.Add(1, layouts::system::kLayout, Status::kOk, {2}, "here:9");
  EXPECT_EQ(BuildFailure(below), "here:9: the system object has no parents");
}

TEST(SnapshotBuilder, RefusesParentsThatLeadInACircle) {
  SnapshotBuilder builder = WithChassis();
  builder.Add(3, layouts::processor_device::kLayout, Status::kOk, {2, 4}, "here:7");
  builder.Add(4, layouts::processor::kLayout, Status::kOk, {3}, "here:8");
  EXPECT_EQ(BuildFailure(builder), "here:7: the parents of object 3 lead in a circle");
  SnapshotBuilder self = WithChassis();
  self.Add(3, layouts::processor_device::kLayout, Status::kOk, {3}, "here:7");
  EXPECT_EQ(BuildFailure(self), "here:7: the parents of object 3 lead in a circle");
}

TEST(SnapshotBuilder, AListHoldsAsManyChildrenAsThereArePositionsAndNoMore) {
  SnapshotBuilder builder = WithChassis();
  for (uint32_t oid = 3; oid < 3 + 65536; ++oid) {
    builder.Add(oid, layouts::pointing_device::kLayout, Status::kOk, {2});
  }
  EXPECT_EQ(U32(builder.Build()->Children(2, 208), 0), 65536U);

  SnapshotBuilder more = WithChassis();
  for (uint32_t oid = 3; oid < 3 + 65537; ++oid) {
    more.Add(oid, layouts::pointing_device::kLayout, Status::kOk, {2},
             "here:" + std::to_string(oid));
  }
  EXPECT_EQ(BuildFailure(more), "here:65539: object 2 has more than 65536 children of type 208");
}

TEST(ObjectDraft, RefusesTextsThatReadersWouldMisread) {
  SnapshotBuilder builder = WithChassis();
  ObjectDraft& draft = builder.Add(3, layouts::bios::kLayout, Status::kOk, {2}, "here:7");
  const auto set = [&](std::string_view text) {
    return FailureOf([&] { draft.Set(layouts::bios::kVersion, text); });
  };
  EXPECT_EQ(set(std::string_view("1\0002", 3)),
            "here:7: the text of version contains a NUL character");
  EXPECT_EQ(set("\xED\xA0\x80"), "here:7: the text of version is not well-formed UTF-8");
  EXPECT_EQ(set("\xFF"), "here:7: the text of version is not well-formed UTF-8");
}

TEST(ObjectDraft, RefusesAFieldOfAnotherType) {
  SnapshotBuilder builder = WithChassis();
  ObjectDraft& draft = builder.Add(3, layouts::bios::kLayout, Status::kOk, {2}, "here:7");
  EXPECT_EQ(FailureOf([&] { draft.Set(layouts::processor::kCoreCount, 4); }),
            "here:7: a bios has no coreCount");
  EXPECT_EQ(FailureOf([&] { draft.Set(layouts::processor::kBrand, "x"); }),
            "here:7: a bios has no brand");
}

}  // namespace
}  // namespace tqcim::store
