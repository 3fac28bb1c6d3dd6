/// An immutable picture of the managed system: objects by OID and child lists by parent and type.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <memory_resource>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/shards.h"

namespace tqcim::store {

class Snapshot;

/// Stands hidden before every block that leaves the store.
struct BlockPrefix {
  /// The snapshot in which a child list stands, which the caller's hold keeps alive; null for a
  /// block that is the caller's own.
  Snapshot* owner;
  /// The block's room in bytes, without this prefix.
  size_t size;
};
static_assert(sizeof(BlockPrefix) == 16, "blocks stay aligned as malloc aligns them");

inline BlockPrefix* PrefixOf(void* block) {
  return static_cast<BlockPrefix*>(block) - 1;
}

/// A record of an event log. `time` is in seconds since 1970-01-01 UTC, 0 for none; `severity` is
/// in the coding of object statuses.
struct LogRecord {
  int64_t time;
  uint8_t severity;
  std::u16string text;

  bool operator==(const LogRecord&) const = default;
};

/// A data object as it stands in a snapshot.
struct StoredObject {
  uint32_t oid;
  uint16_t type;
  /// Header, body and texts.
  std::pmr::vector<std::byte> bytes;
  /// The objects under which it is listed, in the order given.
  std::vector<uint32_t> parents;
  /// What an event log holds, the oldest first.
  std::vector<LogRecord> records;

  bool operator==(const StoredObject&) const = default;
};

/// Objects stand in the order in which they were added, and each child list in that same order. A
/// snapshot without objects is the store of a machine of which nothing is known.
///
/// A snapshot lives as long as it is held: by the store while it is the one in service, and by
/// every list that a caller has not freed yet.
class Snapshot {
 public:
  /// `objects` are complete and consistent, and their bytes lie in `memory`: SnapshotBuilder sees
  /// to that.
  Snapshot(std::unique_ptr<std::pmr::memory_resource> memory, std::vector<StoredObject> objects);
  Snapshot(const Snapshot&) = delete;
  Snapshot& operator=(const Snapshot&) = delete;

  std::span<const StoredObject> Objects() const { return objects_; }

  /// The object, or null.
  const StoredObject* Find(uint32_t oid) const;

  /// The shared block (count and OIDs) of the children of one type, of count 0 where there are
  /// none; null where there is no such parent.
  uint32_t* Children(uint32_t parent, uint16_t type) const;

  /// One more hold of the snapshot in service.
  void Hold() { ++holds_; }
  /// Gives any hold back.
  void Release() { --holds_; }
  /// The store doesn't hold it any more. From here on nobody calls Hold.
  void Retire() { inService_.store(false, std::memory_order_release); }
  /// One more hold of a snapshot that is out of service or about to be, unless it was closed.
  bool HoldRetired();

  /// Whether the store or a caller holds it. May still be true just after the last hold went, and
  /// is never false while there is one.
  bool IsHeld() const;
  /// Closes it where nobody holds it: nobody will again. False, and nothing is done, where somebody
  /// does.
  bool Close();

 private:
  /// The children of one type; the block's prefix stands at `offset` in `blocks_`.
  struct ChildList {
    uint16_t type;
    uint32_t offset;
  };
  /// An object, and which of `lists_` are its own.
  struct Entry {
    const StoredObject* object;
    uint32_t firstList;
    uint32_t endOfLists;
  };

  void MakeLists();
  /// Writes a list to `blocks_`, and says where the next one goes.
  uint32_t PutList(uint32_t offset, std::span<const uint32_t> oids);

  /// The callers' holds less `lateHolds_`.
  ShardedCount holds_;
  /// Of the objects' bytes, and of `byOid_`.
  const std::unique_ptr<std::pmr::memory_resource> memory_;
  const std::vector<StoredObject> objects_;
  std::pmr::unordered_map<uint32_t, Entry> byOid_;
  /// By the OID of the parent and the type, as are the blocks, of which the first is empty: walks
  /// go from neighbour to neighbour.
  std::vector<ChildList> lists_;
  std::unique_ptr<std::byte[]> blocks_;

  std::atomic<bool> inService_{true};
  /// What HoldRetired gave. Never falls: holds are given back to `holds_`. There only counting down
  /// is left once the snapshot is retired, so that a sum is never too small if this is read after
  /// it.
  std::atomic<int64_t> lateHolds_{0};
};

}  // namespace tqcim::store
