#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

#include "platform/layouts/catalogue.h"
#include "store/files.h"
#include "store/json_document.h"
#include "store/snapshot_builder.h"
#include "store/store_file.h"
#include "store/store_file_words.h"
#include "store/text.h"

namespace tqcim::store {

using layout::FieldInfo;
using layout::FieldKind;
using layout::ObjectLayout;
using Kind = JsonValue::Kind;

namespace {

template <typename T>
T NumberUpTo(const JsonDocument& document, const JsonValue& value, T largest) {
  if (value.kind != Kind::kUnsigned || value.number > largest) {
    document.Refuse(value, "not a whole number from 0 to " + std::to_string(largest));
  }
  return static_cast<T>(value.number);
}

uint32_t OidOf(const JsonDocument& document, const JsonValue& value) {
  return NumberUpTo(document, value, std::numeric_limits<uint32_t>::max());
}

const ObjectLayout& LayoutOf(const JsonDocument& document, const JsonValue& type) {
  const auto found =
      std::find_if(std::begin(layout::kCatalogue), std::end(layout::kCatalogue),
                   [&](const ObjectLayout& layout) { return type.text == layout.name; });
  if (found == std::end(layout::kCatalogue)) {
    document.Refuse(type, "there is no object type " + Quoted(type.text));
  }
  return *found;
}

Status StatusOf(const JsonDocument& document, const JsonValue* status) {
  if (status == nullptr) return Status::kUnknown;
  if (status->kind != Kind::kText) {
    return static_cast<Status>(NumberUpTo<uint8_t>(document, *status, 255));
  }
  const auto word = std::find(words::kStatus.begin(), words::kStatus.end(), status->text);
  if (word == words::kStatus.end()) {
    document.Refuse(*status, "there is no status " + Quoted(status->text));
  }
  return static_cast<Status>(word - words::kStatus.begin());
}

/// The bit pattern of the value of an integer field.
uint64_t IntegerOf(const JsonDocument& document, const JsonValue& value, const FieldInfo& field) {
  const uint64_t allBits = std::numeric_limits<uint64_t>::max() >> (64 - 8 * field.width);
  const bool isSigned = field.kind == FieldKind::kSigned;
  const uint64_t largest = isSigned ? allBits >> 1 : allBits;
  const int64_t smallest = isSigned ? -static_cast<int64_t>(largest) - 1 : 0;
  const bool fits =
      (value.kind == Kind::kUnsigned && value.number <= largest) ||
      (value.kind == Kind::kNegative && static_cast<int64_t>(value.number) >= smallest);
  if (!fits) {
    document.Refuse(value, Quoted(field.name) + " takes a whole number from " +
                               std::to_string(smallest) + " to " + std::to_string(largest));
  }
  return value.number;
}

bool IsInt64(const JsonValue& value) {
  return value.kind == Kind::kNegative ||
         (value.kind == Kind::kUnsigned && value.number <= std::numeric_limits<int64_t>::max());
}

bool ShareBytes(const FieldInfo& a, const FieldInfo& b) {
  return a.offset < b.offset + b.width && b.offset < a.offset + a.width;
}

void ReadFields(const JsonDocument& document, const JsonValue& fields, const ObjectLayout& layout,
                ObjectDraft& draft) {
  std::vector<const FieldInfo*> given;
  for (const JsonMember& member : fields.members) {
    const auto field =
        std::find_if(layout.fields.begin(), layout.fields.end(),
                     [&](const FieldInfo& known) { return member.name == known.name; });
    if (field == layout.fields.end()) {
      document.Refuse(member.value,
                      std::string("a ") + layout.name + " has no field " + Quoted(member.name));
    }
    for (const FieldInfo* other : given) {
      if (ShareBytes(*field, *other)) {
        document.Refuse(member.value, Quoted(member.name) + " stands in the same bytes as " +
                                          Quoted(other->name) + ": give one of them");
      }
    }
    given.push_back(&*field);
    if (field->kind != FieldKind::kText) {
      draft.SetInteger(*field, IntegerOf(document, member.value, *field));
      continue;
    }
    if (member.value.kind != Kind::kText) {
      document.Refuse(member.value, Quoted(member.name) + " takes a text");
    }
    draft.SetText(*field, member.value.text);
  }
}

void ReadRecord(const JsonDocument& document, const JsonValue& record, ObjectDraft& draft) {
  document.RequireMembers(record, "a log record", {"time", "severity", "text"});
  const JsonValue* time = record.Member("time");
  if (time != nullptr && !IsInt64(*time)) {
    document.Refuse(*time, "\"time\" takes whole seconds since 1970-01-01 UTC");
  }
  const JsonValue& text = document.Required(record, "text", Kind::kText);
  draft.AddRecord(time == nullptr ? 0 : static_cast<int64_t>(time->number),
                  StatusOf(document, record.Member("severity")), text.text);
}

void ReadObject(const JsonDocument& document, const JsonValue& object, SnapshotBuilder& builder) {
  document.RequireMembers(object, "an object of the store",
                          {"oid", "type", "status", "parents", "fields", "records"});
  const uint32_t oid = OidOf(document, document.Required(object, "oid", Kind::kUnsigned));
  const ObjectLayout& layout = LayoutOf(document, document.Required(object, "type", Kind::kText));
  const Status status = StatusOf(document, object.Member("status"));
  std::vector<uint32_t> parents;
  if (const JsonValue* list = document.Optional(object, "parents", Kind::kArray)) {
    for (const JsonValue& parent : list->items) parents.push_back(OidOf(document, parent));
  }
  ObjectDraft& draft =
      builder.Add(oid, layout, status, std::move(parents), document.PlaceOf(object));
  if (const JsonValue* fields = document.Optional(object, "fields", Kind::kObject)) {
    ReadFields(document, *fields, layout, draft);
  }
  if (const JsonValue* records = document.Optional(object, "records", Kind::kArray)) {
    for (const JsonValue& record : records->items) ReadRecord(document, record, draft);
  }
}

}  // namespace

std::unique_ptr<Snapshot> LoadStoreFile(const std::filesystem::path& path) {
  return ParseStoreFile(ReadFile(path), TextOf(path));
}

std::unique_ptr<Snapshot> ParseStoreFile(std::string_view contents, const std::string& file) {
  const JsonDocument document(contents, file);
  const JsonValue& root = document.Root();
  document.RequireMembers(root, "a store file", {"format", "version", "objects"});
  const JsonValue& format = document.Required(root, "format", Kind::kText);
  if (format.text != words::kFormat) {
    document.Refuse(format,
                    "the format " + Quoted(format.text) + " is not " + Quoted(words::kFormat));
  }
  const JsonValue& version = document.Required(root, "version", Kind::kUnsigned);
  if (version.number != words::kVersion) {
    document.Refuse(
        version, "version " + std::to_string(version.number) + " of the format is not known; 1 is");
  }
  const JsonValue& objects = document.Required(root, "objects", Kind::kArray);
  if (objects.items.empty()) document.Refuse(objects, "a store has at least its system object");
  SnapshotBuilder builder;
  for (const JsonValue& object : objects.items) ReadObject(document, object, builder);
  return builder.Build();
}

}  // namespace tqcim::store
