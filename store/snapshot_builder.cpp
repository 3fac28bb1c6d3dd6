#include "store/snapshot_builder.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <unordered_set>

#include "platform/layouts/event_log.h"
#include "platform/layouts/header.h"
#include "platform/layouts/probes.h"
#include "platform/layouts/system.h"
#include "store/store_error.h"
#include "store/text.h"

namespace tqcim::store {

using layout::AbsentText;
using layout::FieldInfo;
using layout::FieldKind;

namespace {

/// Handlers walk lists by 16-bit positions.
constexpr size_t kMostChildren = 65536;

std::string Number(uint64_t number) {
  return std::to_string(number);
}

}  // namespace

uint32_t BodySize(const layout::ObjectLayout& layout) {
  const FieldInfo sensorName = layout::probe::kName;
  uint32_t size = sensorName.offset + sensorName.width;
  for (const FieldInfo& field : layout.fields) size = std::max(size, field.offset + field.width);
  return size;
}

ObjectDraft::ObjectDraft(uint32_t oid, const layout::ObjectLayout& layout, Status status,
                         std::vector<uint32_t> parents, std::string place)
    : oid_(oid),
      layout_(&layout),
      parents_(std::move(parents)),
      place_(std::move(place)),
      bytes_(BodySize(layout)) {
  const auto put = [&](const FieldInfo& field, uint64_t value) {
    Store(field.offset, field.width, value);
  };
  put(layout::header::kOid, oid);
  put(layout::header::kType, layout.type);
  put(layout::header::kStatus, static_cast<uint8_t>(status));
  for (const FieldInfo& field : layout.fields) put(field, field.none);
}

void ObjectDraft::SetInteger(const FieldInfo& field, uint64_t value) {
  RequireOwnField(field);
  Store(field.offset, field.width, value);
}

void ObjectDraft::SetText(const FieldInfo& field, std::string_view utf8) {
  RequireOwnField(field);
  std::u16string text = StoredText(field.name, utf8);
  std::erase_if(texts_, [&](const auto& known) { return known.first == field.offset; });
  texts_.emplace_back(field.offset, std::move(text));
}

void ObjectDraft::AddRecord(int64_t time, Status severity, std::string_view utf8) {
  if (layout_->type != layout::event_log::kType) {
    throw StoreError(place_, std::string("a ") + layout_->name + " has no records");
  }
  records_.push_back({time, static_cast<uint8_t>(severity), StoredText("a record", utf8)});
}

std::u16string ObjectDraft::StoredText(const char* name, std::string_view utf8) const {
  const auto refuse = [&](const char* reason) {
    throw StoreError(place_, std::string("the text of ") + name + " " + reason);
  };
  if (utf8.find('\0') != std::string_view::npos) refuse("contains a NUL character");
  std::optional<std::u16string> utf16 = Utf16FromUtf8(utf8);
  if (!utf16) refuse("is not well-formed UTF-8");
  return std::move(*utf16);
}

StoredObject ObjectDraft::Finish(std::pmr::memory_resource& memory) {
  const auto append = [&](char16_t unit) {
    bytes_.push_back(static_cast<std::byte>(unit & 0xFF));
    bytes_.push_back(static_cast<std::byte>(unit >> 8));
  };
  if (bytes_.size() % 2 != 0) bytes_.push_back({});
  for (const FieldInfo& field : layout_->fields) {
    if (field.kind != FieldKind::kText) continue;
    const auto text = std::find_if(texts_.begin(), texts_.end(),
                                   [&](const auto& t) { return t.first == field.offset; });
    if (text == texts_.end() && field.absent == AbsentText::kZeroOffset) continue;
    Store(field.offset, field.width, bytes_.size());
    if (text != texts_.end()) std::for_each(text->second.begin(), text->second.end(), append);
    append(u'\0');
  }
  std::pmr::vector<std::byte> bytes(bytes_.begin(), bytes_.end(), &memory);
  return {oid_, layout_->type, std::move(bytes), std::move(parents_), std::move(records_)};
}

void ObjectDraft::Store(uint32_t offset, uint32_t width, uint64_t value) {
  for (uint32_t i = 0; i < width; ++i) {
    bytes_[offset + i] = static_cast<std::byte>(value >> (8 * i) & 0xFF);
  }
}

void ObjectDraft::RequireOwnField(const FieldInfo& field) const {
  const bool own =
      std::any_of(layout_->fields.begin(), layout_->fields.end(), [&](const FieldInfo& known) {
        return known.offset == field.offset && known.width == field.width &&
               known.kind == field.kind && std::string_view(known.name) == field.name;
      });
  if (!own) throw StoreError(place_, std::string("a ") + layout_->name + " has no " + field.name);
}

ObjectDraft& SnapshotBuilder::Add(uint32_t oid, const layout::ObjectLayout& layout, Status status,
                                  std::vector<uint32_t> parents, std::string place) {
  return drafts_.emplace_back(oid, layout, status, std::move(parents), std::move(place));
}

std::unique_ptr<Snapshot> SnapshotBuilder::Build() {
  CheckObjects();
  CheckLists();
  CheckDescent();
  // One behind the other, as walks read them.
  auto memory = std::make_unique<std::pmr::monotonic_buffer_resource>();
  std::vector<StoredObject> objects;
  objects.reserve(drafts_.size());
  for (ObjectDraft& draft : drafts_) objects.push_back(draft.Finish(*memory));
  drafts_.clear();
  return std::make_unique<Snapshot>(std::move(memory), std::move(objects));
}

void SnapshotBuilder::CheckObjects() const {
  std::unordered_set<uint32_t> oids;
  for (const ObjectDraft& draft : drafts_) {
    if (draft.Oid() == 0) throw StoreError(draft.Place(), "OID 0 names no object");
    if (!oids.insert(draft.Oid()).second) {
      throw StoreError(draft.Place(), "OID " + Number(draft.Oid()) + " is already taken");
    }
    const bool isRoot = draft.Oid() == layout::system::kRootOid;
    if (isRoot != (draft.Type() == layout::system::kType)) {
      throw StoreError(draft.Place(), "the system object, and nothing else, has OID 1");
    }
    if (isRoot != draft.Parents().empty()) {
      throw StoreError(draft.Place(), isRoot ? "the system object has no parents"
                                             : "object " + Number(draft.Oid()) + " has no parent");
    }
  }
  for (const ObjectDraft& draft : drafts_) {
    for (const uint32_t parent : draft.Parents()) {
      if (!oids.contains(parent)) {
        throw StoreError(draft.Place(), "the parent " + Number(parent) + " of object " +
                                            Number(draft.Oid()) + " does not exist");
      }
    }
  }
}

void SnapshotBuilder::CheckLists() const {
  std::map<std::pair<uint32_t, uint16_t>, size_t> lengths;
  for (const ObjectDraft& draft : drafts_) {
    std::unordered_set<uint32_t> parents;
    for (const uint32_t parent : draft.Parents()) {
      if (!parents.insert(parent).second) {
        throw StoreError(draft.Place(), "object " + Number(draft.Oid()) + " names the parent " +
                                            Number(parent) + " twice");
      }
      if (++lengths[{parent, draft.Type()}] > kMostChildren) {
        throw StoreError(draft.Place(), "object " + Number(parent) + " has more than " +
                                            Number(kMostChildren) + " children of type " +
                                            Number(draft.Type()));
      }
    }
  }
}

/// Takes away, again and again, the objects whose parents are all taken away already; what is left
/// over is a circle and what hangs below it.
void SnapshotBuilder::CheckDescent() const {
  std::unordered_map<uint32_t, std::vector<const ObjectDraft*>> children;
  std::unordered_map<uint32_t, size_t> parentsLeft;
  std::vector<uint32_t> ready;
  for (const ObjectDraft& draft : drafts_) {
    parentsLeft[draft.Oid()] = draft.Parents().size();
    if (draft.Parents().empty()) ready.push_back(draft.Oid());
    for (const uint32_t parent : draft.Parents()) children[parent].push_back(&draft);
  }
  while (!ready.empty()) {
    const uint32_t oid = ready.back();
    ready.pop_back();
    for (const ObjectDraft* child : children[oid]) {
      if (--parentsLeft[child->Oid()] == 0) ready.push_back(child->Oid());
    }
  }
  for (const ObjectDraft& draft : drafts_) {
    if (parentsLeft[draft.Oid()] != 0) {
      throw StoreError(draft.Place(),
                       "the parents of object " + Number(draft.Oid()) + " lead in a circle");
    }
  }
}

}  // namespace tqcim::store
