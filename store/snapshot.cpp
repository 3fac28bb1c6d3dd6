#include "store/snapshot.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <new>
#include <utility>

namespace tqcim::store {
namespace {

/// Marks in the count of late holds that there will be no more.
constexpr int64_t kClosed = int64_t{1} << 62;

/// What a list takes of the room for all: each begins as aligned as malloc would have it.
constexpr size_t SizeOfList(size_t oids) {
  constexpr size_t kAlignment = sizeof(BlockPrefix);
  const size_t size = sizeof(BlockPrefix) + (1 + oids) * sizeof(uint32_t);
  return (size + kAlignment - 1) / kAlignment * kAlignment;
}

}  // namespace

Snapshot::Snapshot(std::unique_ptr<std::pmr::memory_resource> memory,
                   std::vector<StoredObject> objects)
    : memory_(std::move(memory)), objects_(std::move(objects)), byOid_(memory_.get()) {
  byOid_.reserve(objects_.size());
  for (const StoredObject& object : objects_) byOid_.emplace(object.oid, Entry{&object, 0, 0});
  MakeLists();
}

const StoredObject* Snapshot::Find(uint32_t oid) const {
  const auto found = byOid_.find(oid);
  return found == byOid_.end() ? nullptr : found->second.object;
}

uint32_t* Snapshot::Children(uint32_t parent, uint16_t type) const {
  const auto found = byOid_.find(parent);
  if (found == byOid_.end()) return nullptr;
  const Entry& entry = found->second;
  const ChildList* const end = lists_.data() + entry.endOfLists;
  const ChildList* const list =
      std::ranges::lower_bound(lists_.data() + entry.firstList, end, type, {}, &ChildList::type);
  const uint32_t offset = list != end && list->type == type ? list->offset : 0;
  return reinterpret_cast<uint32_t*>(blocks_.get() + offset + sizeof(BlockPrefix));
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

void Snapshot::MakeLists() {
  std::map<std::pair<uint32_t, uint16_t>, std::vector<uint32_t>> children;
  for (const StoredObject& object : objects_) {
    for (const uint32_t parent : object.parents) {
      children[{parent, object.type}].push_back(object.oid);
    }
  }
  size_t size = SizeOfList(0);
  for (const auto& [key, oids] : children) size += SizeOfList(oids.size());
  blocks_ = std::make_unique<std::byte[]>(size);
  lists_.reserve(children.size());
  uint32_t offset = PutList(0, {});
  for (const auto& [key, oids] : children) {
    const auto& [parent, type] = key;
    Entry& entry = byOid_.at(parent);
    const auto position = static_cast<uint32_t>(lists_.size());
    if (entry.endOfLists == 0) entry.firstList = position;
    entry.endOfLists = position + 1;
    lists_.push_back({type, offset});
    offset = PutList(offset, oids);
  }
}

uint32_t Snapshot::PutList(uint32_t offset, std::span<const uint32_t> oids) {
  const auto count = static_cast<uint32_t>(oids.size());
  std::byte* const block = blocks_.get() + offset;
  new (block) BlockPrefix{this, sizeof count + oids.size_bytes()};
  std::memcpy(block + sizeof(BlockPrefix), &count, sizeof count);
  std::copy_n(oids.begin(), count, reinterpret_cast<uint32_t*>(block + sizeof(BlockPrefix)) + 1);
  return offset + static_cast<uint32_t>(SizeOfList(count));
}

}  // namespace tqcim::store
