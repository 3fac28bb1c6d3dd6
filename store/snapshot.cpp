#include "store/snapshot.h"

#include <cstring>
#include <map>
#include <new>
#include <utility>

namespace tqcim::store {
namespace {

/// Marks in the count of late holds that there will be no more.
constexpr int64_t kClosed = int64_t{1} << 62;

}  // namespace

Snapshot::Snapshot(std::vector<StoredObject> objects)
    : objects_(std::move(objects)), emptyList_(MakeList({})) {
  // Ordered, so that the lists of neighbours lie side by side: walks go from one to the next.
  std::map<ListKey, std::vector<uint32_t>> children;
  for (const StoredObject& object : objects_) {
    byOid_.emplace(object.oid, &object);
    for (const uint32_t parent : object.parents) {
      children[{parent, object.type}].push_back(object.oid);
    }
  }
  for (const auto& [key, oids] : children) lists_.emplace(key, MakeList(oids));
}

const StoredObject* Snapshot::Find(uint32_t oid) const {
  const auto found = byOid_.find(oid);
  return found == byOid_.end() ? nullptr : found->second;
}

uint32_t* Snapshot::Children(uint32_t parent, uint16_t type) const {
  const auto found = lists_.find({parent, type});
  if (found == lists_.end() && Find(parent) == nullptr) return nullptr;
  const ListBlock& block = found == lists_.end() ? emptyList_ : found->second;
  return reinterpret_cast<uint32_t*>(block.get() + sizeof(BlockPrefix));
}

bool Snapshot::HoldRetired() {
  if ((lateHolds_.fetch_add(1, std::memory_order_relaxed) & kClosed) == 0) return true;
  lateHolds_.fetch_sub(1, std::memory_order_relaxed);
  return false;
}

bool Snapshot::IsHeld() const {
  if (inService_.load(std::memory_order_acquire)) return true;
  const int64_t holds = holds_.Sum();
  return holds + (lateHolds_.load(std::memory_order_acquire) & ~kClosed) != 0;
}

bool Snapshot::Close() {
  if (inService_.load(std::memory_order_acquire)) return false;
  const int64_t holds = holds_.Sum();
  int64_t late = lateHolds_.load(std::memory_order_acquire);
  return holds + late == 0 &&
         lateHolds_.compare_exchange_strong(late, late | kClosed, std::memory_order_acq_rel);
}

Snapshot::ListBlock Snapshot::MakeList(std::span<const uint32_t> oids) {
  const size_t size = sizeof(uint32_t) + oids.size_bytes();
  auto block = std::make_unique<std::byte[]>(sizeof(BlockPrefix) + size);
  new (block.get()) BlockPrefix{this, BlockKind::kSharedList, static_cast<uint32_t>(size)};
  std::byte* list = block.get() + sizeof(BlockPrefix);
  const auto count = static_cast<uint32_t>(oids.size());
  std::memcpy(list, &count, sizeof(count));
  if (!oids.empty()) std::memcpy(list + sizeof(count), oids.data(), oids.size_bytes());
  return block;
}

}  // namespace tqcim::store
