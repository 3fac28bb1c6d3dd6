#include "store/store.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <optional>
#include <thread>
#include <utility>

#include "platform/layouts/event_log.h"
#include "platform/layouts/header.h"
#include "store/text.h"

namespace tqcim::store {
namespace {

/// A block for a caller, uninitialised, with its prefix before it; null if there is no memory.
std::byte* NewBlock(size_t size) {
  void* memory = std::malloc(sizeof(BlockPrefix) + size);
  if (memory == nullptr) return nullptr;
  new (memory) BlockPrefix{nullptr, size};
  return static_cast<std::byte*>(memory) + sizeof(BlockPrefix);
}

void* CopyOf(const StoredObject& object) {
  std::byte* block = NewBlock(object.bytes.size());
  if (block != nullptr) std::memcpy(block, object.bytes.data(), object.bytes.size());
  return block;
}

void* CopyOf(const LogRecord& record) {
  namespace layout_of = layout::event_record;
  const size_t textSize = (record.text.size() + 1) * sizeof(char16_t);
  std::byte* block = NewBlock(layout_of::kBodySize + textSize);
  if (block == nullptr) return nullptr;
  std::memset(block, 0, layout_of::kBodySize);
  std::memcpy(block + layout_of::kTime.offset, &record.time, sizeof record.time);
  std::memcpy(block + layout_of::kSeverity.offset, &record.severity, sizeof record.severity);
  std::memcpy(block + layout_of::kText.offset, &layout_of::kBodySize, sizeof(uint32_t));
  std::memcpy(block + layout_of::kBodySize, record.text.c_str(), textSize);
  return block;
}

/// The units before the terminator, of which there may be none within the room.
std::optional<size_t> LengthOfUtf16(const std::byte* utf16, size_t room) {
  for (size_t length = 0; length < room; ++length) {
    char16_t unit;
    std::memcpy(&unit, utf16 + length * sizeof unit, sizeof unit);
    if (unit == 0) return length;
  }
  return std::nullopt;
}

}  // namespace

class Store::ReadSection {
 public:
  explicit ReadSection(const Store& store) {
    const uint64_t epoch = store.epoch_.load();
    for (size_t slot = ShardOfThread() * (kReaders / kShards);; ++slot) {
      reader_ = &store.readers_[slot % kReaders];
      uint64_t none = 0;
      if (reader_->epoch.compare_exchange_strong(none, epoch)) break;
    }
    view_ = store.view_.load();
  }
  ~ReadSection() { reader_->epoch.store(0, std::memory_order_release); }
  ReadSection(const ReadSection&) = delete;
  ReadSection& operator=(const ReadSection&) = delete;

  const View* operator->() const { return view_; }

 private:
  Reader* reader_;
  const View* view_;
};

Store::Store() : view_(new View) {}

Store::~Store() {
  delete view_.load();
}

void Store::OpenFirst(const std::function<std::unique_ptr<Snapshot>()>& load) {
  const std::lock_guard lock(refresh_);
  if (!opened_.load(std::memory_order_relaxed)) Publish(load());
}

void Store::Replace(std::unique_ptr<Snapshot> snapshot) {
  const std::lock_guard lock(refresh_);
  Publish(std::move(snapshot));
}

template <typename Take>
auto Store::WithObject(uint32_t oid, Take take) const {
  using Taken = decltype(take(std::declval<const StoredObject&>()));
  const ReadSection view(*this);
  if (view->current == nullptr) return Taken{};
  const StoredObject* object = view->current->Find(oid);
  for (const Snapshot* retired : view->retired) {
    if (!retired->IsHeld()) continue;
    const StoredObject* former = retired->Find(oid);
    if (object == nullptr) object = former;
    if (former != nullptr && former->type != object->type) return Taken{};
  }
  return object != nullptr ? take(*object) : Taken{};
}

void* Store::CopyObject(uint32_t oid) const {
  return WithObject(oid, [](const StoredObject& object) { return CopyOf(object); });
}

uint32_t Store::CountRecords(uint32_t oid) const {
  return WithObject(
      oid, [](const StoredObject& object) { return static_cast<uint32_t>(object.records.size()); });
}

void* Store::CopyRecord(uint32_t oid, uint32_t index) const {
  return WithObject(oid, [index](const StoredObject& object) {
    return index < object.records.size() ? CopyOf(object.records[index]) : nullptr;
  });
}

void* Store::ListChildren(uint32_t parent, uint16_t type) const {
  const ReadSection view(*this);
  if (view->current == nullptr) return nullptr;
  uint32_t* list = view->current->Children(parent, type);
  if (list != nullptr) {
    view->current->Hold();
    return list;
  }
  for (Snapshot* retired : view->retired) {
    list = retired->Children(parent, type);
    if (list != nullptr && retired->IsHeld() && retired->HoldRetired()) return list;
  }
  return nullptr;
}

void* Store::TextAt(void* object, uint32_t offset) {
  const size_t size = PrefixOf(object)->size;
  if (offset < layout::header::kSize || offset >= size) return nullptr;
  const std::byte* const utf16 = static_cast<const std::byte*>(object) + offset;
  const std::optional<size_t> units = LengthOfUtf16(utf16, (size - offset) / sizeof(char16_t));
  if (!units) return nullptr;
  std::byte* block = NewBlock(*units * kUtf8BytesPerUnit + 1);
  if (block != nullptr) *PutUtf8(utf16, *units, reinterpret_cast<char*>(block)) = '\0';
  return block;
}

void Store::Free(void* block) {
  if (block == nullptr) return;
  BlockPrefix* prefix = PrefixOf(block);
  if (prefix->owner != nullptr) {
    prefix->owner->Release();
  } else {
    std::free(prefix);
  }
}

size_t Store::SnapshotCount() const {
  const std::lock_guard lock(refresh_);
  return snapshots_.size();
}

void Store::Publish(std::unique_ptr<Snapshot> snapshot) {
  Snapshot* const previous = view_.load()->current;
  Snapshot* const current = snapshot.get();
  snapshots_.push_back(std::move(snapshot));
  InstallView(current);
  opened_.store(true, std::memory_order_release);
  if (previous == nullptr) return;
  // No reader sees `previous` as the one in service any more.
  previous->Retire();
  InstallView(current);
}

void Store::InstallView(Snapshot* current) {
  auto view = std::make_unique<View>();
  view->current = current;
  std::vector<std::unique_ptr<Snapshot>> kept;
  std::vector<std::unique_ptr<Snapshot>> gone;
  kept.reserve(snapshots_.size());
  gone.reserve(snapshots_.size());
  view->retired.reserve(snapshots_.size());
  for (auto& snapshot : snapshots_) {
    const bool held = !snapshot->Close();
    if (held && snapshot.get() != current) view->retired.push_back(snapshot.get());
    (held ? kept : gone).push_back(std::move(snapshot));
  }
  snapshots_ = std::move(kept);
  const std::unique_ptr<const View> last(view_.exchange(view.release()));
  WaitForReaders();
}

void Store::WaitForReaders() {
  const uint64_t last = epoch_.fetch_add(1);
  const auto sees_old_view = [last](const Reader& reader) {
    const uint64_t epoch = reader.epoch.load();
    return epoch != 0 && epoch <= last;
  };
  for (const Reader& reader : readers_) {
    while (sees_old_view(reader)) std::this_thread::yield();
  }
}

}  // namespace tqcim::store
