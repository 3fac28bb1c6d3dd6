#include <algorithm>
#include <cstring>
#include <nlohmann/json.hpp>
#include <span>

#include "platform/layouts/catalogue.h"
#include "store/files.h"
#include "store/store_file.h"
#include "store/store_file_words.h"
#include "store/text.h"

namespace tqcim::store {

using layout::AbsentText;
using layout::FieldInfo;
using layout::FieldKind;

namespace {

std::string JsonText(std::string_view utf8) {
  return nlohmann::json(utf8).dump();
}

uint64_t IntegerAt(const StoredObject& object, const FieldInfo& field) {
  uint64_t value = 0;
  for (uint32_t i = 0; i < field.width; ++i) {
    value |= static_cast<uint64_t>(object.bytes[field.offset + i]) << (8 * i);
  }
  return value;
}

std::string TextAt(const StoredObject& object, size_t offset) {
  std::u16string text((object.bytes.size() - offset) / sizeof(char16_t), u'\0');
  std::memcpy(text.data(), object.bytes.data() + offset, text.size() * sizeof(char16_t));
  return Utf8FromUtf16(text.substr(0, text.find(u'\0')));
}

std::string FormatInteger(uint64_t value, const FieldInfo& field) {
  if (field.kind == FieldKind::kUnsigned) return std::to_string(value);
  const uint32_t unusedBits = 64 - 8 * field.width;
  return std::to_string(static_cast<int64_t>(value << unusedBits) >> unusedBits);
}

/// The field's value as JSON, empty where the field holds its "none".
std::string FormatField(const StoredObject& object, const FieldInfo& field) {
  const uint64_t value = IntegerAt(object, field);
  if (field.kind != FieldKind::kText) {
    // No field is without bytes, which the analyser can't know.
    // NOLINTNEXTLINE(clang-analyzer-core.UndefinedBinaryOperatorResult)
    const uint64_t allBits = ~uint64_t{0} >> (64 - 8 * field.width);
    return value == (field.none & allBits) ? "" : FormatInteger(value, field);
  }
  if (value == 0) return "";
  const std::string text = TextAt(object, value);
  return text.empty() && field.absent == AbsentText::kEmpty ? "" : JsonText(text);
}

/// Whether another field that is written tells all of this one's bytes.
bool IsToldByAnother(const StoredObject& object, const FieldInfo& field,
                     std::span<const FieldInfo> fields) {
  return std::any_of(fields.begin(), fields.end(), [&](const FieldInfo& other) {
    return other.width > field.width && other.offset <= field.offset &&
           other.offset + other.width >= field.offset + field.width &&
           !FormatField(object, other).empty();
  });
}

std::string FormatStatus(uint64_t status) {
  return status < words::kStatus.size() ? JsonText(words::kStatus[status]) : std::to_string(status);
}

std::string FormatRecord(const LogRecord& record) {
  return "{\"time\": " + std::to_string(record.time) +
         ", \"severity\": " + FormatStatus(record.severity) +
         ", \"text\": " + JsonText(Utf8FromUtf16(record.text)) + "}";
}

std::string FormatObject(const StoredObject& object) {
  const auto layout =
      std::find_if(std::begin(layout::kCatalogue), std::end(layout::kCatalogue),
                   [&](const layout::ObjectLayout& known) { return known.type == object.type; });
  std::string text = "    {\n      \"oid\": " + std::to_string(object.oid) +
                     ", \"type\": " + JsonText(layout->name) +
                     ", \"status\": " + FormatStatus(IntegerAt(object, layout::header::kStatus));
  if (!object.parents.empty()) {
    text += ", \"parents\": " + nlohmann::json(object.parents).dump();
  }
  std::string fields;
  for (const FieldInfo& field : layout->fields) {
    const std::string value = FormatField(object, field);
    if (value.empty() || IsToldByAnother(object, field, layout->fields)) continue;
    fields += (fields.empty() ? "" : ",\n") + ("        " + JsonText(field.name)) + ": " + value;
  }
  std::string records;
  for (const LogRecord& record : object.records) {
    records += (records.empty() ? "" : ",\n") + ("        " + FormatRecord(record));
  }
  if (!fields.empty()) text += ",\n      \"fields\": {\n" + fields + "\n      }";
  if (!records.empty()) text += ",\n      \"records\": [\n" + records + "\n      ]";
  return text + "\n    }";
}

}  // namespace

std::string FormatStoreFile(const Snapshot& snapshot) {
  std::string text = "{\n  \"format\": " + JsonText(words::kFormat) +
                     ",\n  \"version\": " + std::to_string(words::kVersion) + ",\n  \"objects\": [";
  for (const StoredObject& object : snapshot.Objects()) {
    text += (text.back() == '[' ? "\n" : ",\n") + FormatObject(object);
  }
  return text + "\n  ]\n}\n";
}

void WriteStoreFile(const Snapshot& snapshot, const std::filesystem::path& path) {
  WriteFile(path, FormatStoreFile(snapshot));
}

}  // namespace tqcim::store
