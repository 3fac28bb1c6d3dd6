#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

#include "platform/layouts/catalogue.h"
#include "platform/libraries.h"
#include "store/snapshot_builder.h"
#include "store/store.h"
#include "store/store_control.h"
#include "tests/store/raw_bytes.h"
#include "tests/support/temporary_folder.h"

namespace tqcim::store {
namespace {

using testing::Oids;
using testing::U32;

namespace layouts = tqcim::layout;

/// Ten firmware objects whose OIDs and firmware type tell the generation.
std::unique_ptr<Snapshot> Generation(uint32_t number) {
  SnapshotBuilder builder;
  builder.Add(1, layouts::system::kLayout, Status::kOk, {});
  builder.Add(2, layouts::chassis::kLayout, Status::kOk, {1});
  for (uint32_t i = 0; i < 10; ++i) {
    builder.Add(1000 * (number + 1) + i, layouts::firmware::kLayout, Status::kOk, {2})
        .Set(layouts::firmware::kFirmwareType, static_cast<uint8_t>(number))
        .Set(layouts::firmware::kVersion, std::to_string(number));
  }
  return builder.Build();
}

/// Walks the firmware of whatever generation is in service. Every object of the list must be there,
/// be of the list's own generation, and be a parent that can be listed.
void Walk(const Store& store, std::atomic<int>& failures) {
  void* list = store.ListChildren(2, 19);
  const std::vector<uint32_t> oids = Oids(list);
  if (oids.size() != 10) ++failures;
  for (const uint32_t oid : oids) {
    void* object = store.CopyObject(oid);
    if (object == nullptr || U32(object, 4) != oid) {
      ++failures;
    } else {
      void* text = Store::TextAt(object, U32(object, 32));
      if (std::to_string(oid / 1000 - 1) != static_cast<char*>(text)) ++failures;
      Store::Free(text);
    }
    Store::Free(object);
    void* children = store.ListChildren(oid, 19);
    if (children == nullptr) ++failures;
    Store::Free(children);
  }
  Store::Free(list);
}

void RunTogether(std::vector<std::function<void()>> actions) {
  std::vector<std::thread> threads;
  for (auto& action : actions) threads.emplace_back(std::move(action));
  for (std::thread& thread : threads) thread.join();
}

TEST(StoreConcurrency, WalksStayWholeWhileSnapshotsAreReplaced) {
  Store store;
  store.Replace(Generation(0));
  std::atomic<int> failures{0};
  std::atomic<bool> refreshing{true};
  const auto read = [&] {
    do Walk(store, failures);
    while (refreshing);
  };
  const auto refresh = [&] {
    for (uint32_t number = 1; number <= 200; ++number) store.Replace(Generation(number));
    refreshing = false;
  };
  RunTogether({read, read, read, refresh});
  EXPECT_EQ(failures, 0);
  store.Replace(Generation(201));
  EXPECT_EQ(store.SnapshotCount(), 1U) << "every hold was given back";
}

TEST(StoreConcurrency, RefreshesMayComeFromSeveralThreads) {
  Store store;
  store.Replace(Generation(0));
  std::atomic<int> failures{0};
  const auto refresh = [&] {
    for (uint32_t number = 1; number <= 50; ++number) store.Replace(Generation(number));
  };
  const auto read = [&] {
    for (int i = 0; i < 200; ++i) Walk(store, failures);
  };
  RunTogether({refresh, refresh, read, read});
  EXPECT_EQ(failures, 0);
  store.Replace(Generation(51));
  EXPECT_EQ(store.SnapshotCount(), 1U);
}

TEST(StoreConcurrency, OfManyFirstUsersOneLoads) {
  Store store;
  std::atomic<int> loads{0};
  std::atomic<int> failures{0};
  const auto use = [&] {
    store.OpenOnce([&] {
      ++loads;
      return Generation(0);
    });
    Walk(store, failures);
  };
  RunTogether({use, use, use, use, use, use, use, use});
  EXPECT_EQ(loads, 1);
  EXPECT_EQ(failures, 0);
}

/// A server without memory modules, which the sample has.
constexpr const char* kBareServer = R"({
  "format": "tqcim-store", "version": 1,
  "objects": [
    {"oid": 1, "type": "system", "status": "ok"},
    {"oid": 2, "type": "chassis", "status": "ok", "parents": [1]}
  ]
})";

TEST(StoreConcurrency, WalksOfTheLibraryStayWholeWhileSourcesAreOpened) {
  const testing::TemporaryFolder folder;
  const std::string bare = "store-file:" + folder.Write("bare.json", kBareServer).string();
  ASSERT_EQ(TQStoreOpen("sample", nullptr, 0), 0);
  std::atomic<int> failures{0};
  std::atomic<int> found{0};
  std::atomic<bool> opening{true};
  const auto walk = [&] {
    do {
      uint32_t chassis = 2;
      void* list = SMILListChildOIDByType(&chassis, 225);
      for (uint32_t oid : Oids(list)) {
        void* object = SMILGetObjByOID(&oid);
        if (object == nullptr || U32(object, 4) != oid) ++failures;
        SMILFreeGeneric(object);
        ++found;
      }
      SMILFreeGeneric(list);
    } while (opening);
  };
  const auto open = [&] {
    for (int i = 0; i < 30; ++i) {
      if (TQStoreOpen(i % 2 == 0 ? bare.c_str() : "sample", nullptr, 0) != 0) ++failures;
    }
    opening = false;
  };
  RunTogether({walk, walk, open});
  walk();
  EXPECT_EQ(failures, 0);
  EXPECT_GT(found, 0);
}

}  // namespace
}  // namespace tqcim::store
