/// The store of a process: the snapshot in service, the ones that callers still hold, and the
/// blocks that callers are given.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

#include "platform/shards.h"
#include "store/snapshot.h"

namespace tqcim::store {

/// Readers take no locks: they enter a section, which only a refresh waits for.
///
/// An OID that stands in a list which a caller still holds stays readable after a refresh: what the
/// snapshot in service doesn't know is looked for in the retired snapshots that are still held.
/// What both know comes from the one in service. Where both know it as objects of different types
/// it is absent until those lists are freed: a caller never gets an object of another type than the
/// list told. A retired snapshot goes with the first refresh after its last list was freed.
///
/// All blocks are freed with Free. A call that finds nothing, or no memory, returns null.
class Store {
 public:
  Store();
  ~Store();
  Store(const Store&) = delete;
  Store& operator=(const Store&) = delete;

  /// Puts the snapshot that `load` returns in service, unless one is in service already. Of callers
  /// that come at once, one loads and the others wait for it.
  template <typename Load>
  void OpenOnce(Load load) {
    if (!opened_.load(std::memory_order_acquire)) OpenFirst(load);
  }
  /// Puts a snapshot in service.
  void Replace(std::unique_ptr<Snapshot> snapshot);

  /// A private copy of a data object.
  void* CopyObject(uint32_t oid) const;
  /// The number of records of an event log; 0 for any other OID.
  uint32_t CountRecords(uint32_t oid) const;
  /// Record `index` (from 0) of an event log.
  void* CopyRecord(uint32_t oid, uint32_t index) const;
  /// The child list, shared by all who ask: costs no copy and no allocation.
  void* ListChildren(uint32_t parent, uint16_t type) const;

  /// The text at `offset` of a block that CopyObject returned, as UTF-8. Null for offset 0 and
  /// wherever no terminated text lies behind the object's header.
  static void* TextAt(void* object, uint32_t offset);
  static void Free(void* block);

  /// The snapshots that the store keeps, the one in service included.
  size_t SnapshotCount() const;

 private:
  /// What readers see; replaced as a whole.
  struct View {
    Snapshot* current = nullptr;
    std::vector<Snapshot*> retired;
  };
  class ReadSection;

  /// What `take` makes of the object, or a null value where there is none.
  template <typename Take>
  auto WithObject(uint32_t oid, Take take) const;

  void OpenFirst(const std::function<std::unique_ptr<Snapshot>()>& load);
  void Publish(std::unique_ptr<Snapshot> snapshot);
  /// Shows readers `current` and the other snapshots that are still held, and frees those that
  /// aren't when no reader sees them any more.
  void InstallView(Snapshot* current);
  void WaitForReaders();

  std::atomic<const View*> view_;
  /// Whether there has been a snapshot: from then on there is always one.
  std::atomic<bool> opened_{false};
  /// A reader writes the epoch into a free slot, and 0 when it leaves: a slot is one reader's, so
  /// that only to come costs a locked instruction. A refresh starts the next epoch and waits for
  /// the readers of those before: then nobody sees the old view any more, and readers that keep
  /// coming can't hold the refresh up.
  std::atomic<uint64_t> epoch_{1};
  struct alignas(kCacheLine) Reader {
    std::atomic<uint64_t> epoch{0};
  };
  /// More than there are readers inside at once, who stay for some hundred instructions: a reader
  /// would wait for a free one.
  static constexpr size_t kReaders = 16 * kShards;
  mutable std::array<Reader, kReaders> readers_{};

  mutable std::mutex refresh_;
  std::vector<std::unique_ptr<Snapshot>> snapshots_;
};

}  // namespace tqcim::store
