#include "fuzz/store_checks.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

#include "fuzz/check.h"
#include "platform/layouts/catalogue.h"
#include "store/snapshot_builder.h"
#include "store/store.h"
#include "store/store_file.h"

namespace tqcim::fuzz {

using store::Store;

namespace {

uint32_t Number32At(const void* block, uint32_t offset) {
  uint32_t number;
  std::memcpy(&number, static_cast<const std::byte*>(block) + offset, sizeof number);
  return number;
}

/// Reads units up to the end of a text; the sanitizer sees where one runs past its block.
void ReadUnits(const void* block, uint32_t offset) {
  char16_t unit = 0;
  do {
    std::memcpy(&unit, static_cast<const std::byte*>(block) + offset, sizeof unit);
    offset += sizeof unit;
  } while (unit != 0);
}

void ReadTexts(void* object, const layout::ObjectLayout& layout) {
  for (const layout::FieldInfo& field : layout.fields) {
    if (field.kind != layout::FieldKind::kText) continue;
    const uint32_t offset = Number32At(object, field.offset);
    if (offset == 0) {
      Check(field.absent == layout::AbsentText::kZeroOffset, "a text that is taken is there");
      continue;
    }
    Check(offset >= store::BodySize(layout) && offset % 2 == 0, "a text stands behind the body");
    ReadUnits(object, offset);
    void* text = Store::TextAt(object, offset);
    Check(text != nullptr, "a text is handed out");
    Store::Free(text);
  }
}

void ReadRecords(const Store& store, uint32_t oid) {
  const uint32_t count = store.CountRecords(oid);
  for (uint32_t index = 0; index < count; ++index) {
    void* record = store.CopyRecord(oid, index);
    Check(record != nullptr, "a record that is counted is there");
    ReadUnits(record, Number32At(record, layout::event_record::kText.offset));
    Store::Free(record);
  }
  Check(store.CopyRecord(oid, count) == nullptr, "no record stands past the end");
}

void ReadObject(const Store& store, uint32_t oid, const layout::ObjectLayout& layout) {
  void* object = store.CopyObject(oid);
  Check(object != nullptr, "an object that is listed is there");
  Check(Number32At(object, layout::header::kOid.offset) == oid, "an object has its OID");
  uint16_t type;
  std::memcpy(&type, static_cast<std::byte*>(object) + layout::header::kType.offset, sizeof type);
  Check(type == layout.type, "an object is of the type of its list");
  ReadTexts(object, layout);
  Store::Free(object);
  ReadRecords(store, oid);
}

/// Returns how many children it has read.
size_t ReadChildren(const Store& store, uint32_t parent) {
  size_t read = 0;
  for (const layout::ObjectLayout& layout : layout::kCatalogue) {
    void* list = store.ListChildren(parent, layout.type);
    Check(list != nullptr, "an object has a list of children");
    const uint32_t count = Number32At(list, 0);
    for (uint32_t i = 0; i < count; ++i) ReadObject(store, Number32At(list, 4 + 4 * i), layout);
    read += count;
    Store::Free(list);
  }
  return read;
}

}  // namespace

void CheckComesBack(const store::Snapshot& snapshot) {
  const auto again = store::ParseStoreFile(store::FormatStoreFile(snapshot), "again");
  Check(std::ranges::equal(snapshot.Objects(), again->Objects()), "a store file reads back equal");
}

void CheckIsReadable(std::unique_ptr<store::Snapshot> snapshot) {
  std::vector<uint32_t> oids;
  size_t listed = 0;
  for (const store::StoredObject& object : snapshot->Objects()) {
    oids.push_back(object.oid);
    listed += object.parents.size();
  }
  Store store;
  store.Replace(std::move(snapshot));
  size_t read = 0;
  for (const uint32_t oid : oids) read += ReadChildren(store, oid);
  Check(read == listed, "every object is listed under each of its parents");
}

}  // namespace tqcim::fuzz
