/// Builds snapshots from what a source tells: objects by layout, with the layout's "none" wherever
/// the source says nothing.
#pragma once

#include <cstdint>
#include <deque>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/layout.h"
#include "store/snapshot.h"

namespace tqcim::store {

/// The status byte of a data object; larger is worse.
enum class Status : uint8_t {
  kOther = 0,
  kUnknown = 1,
  kOk = 2,
  kNonCritical = 3,
  kCritical = 4,
  kNonRecoverable = 5,
};

/// The length of header and body of a type: up to the end of its last field, and never shorter than
/// what a sensor's name needs. Any object can be asked for as a discrete sensor, and then gives the
/// text at that place: an empty one where its own type has nothing there.
uint32_t BodySize(const layout::ObjectLayout& layout);

/// One object that is being put together. Every setter throws StoreError, naming the object's
/// place, when the value doesn't fit the field or the field isn't one of the object's type.
class ObjectDraft {
 public:
  /// `place` begins every error sentence about the object: a file with line or offset.
  ObjectDraft(uint32_t oid, const layout::ObjectLayout& layout, Status status,
              std::vector<uint32_t> parents, std::string place);

  /// `value` is the bit pattern of an integer field.
  void SetInteger(const layout::FieldInfo& field, uint64_t value);
  /// `utf8` must be well-formed and without NUL.
  void SetText(const layout::FieldInfo& field, std::string_view utf8);

  template <typename T>
  ObjectDraft& Set(const layout::Field<T>& field, std::type_identity_t<T> value) {
    SetInteger(field, static_cast<uint64_t>(value));
    return *this;
  }
  ObjectDraft& Set(const layout::Ucs2Field& field, std::string_view utf8) {
    SetText(field, utf8);
    return *this;
  }
  ObjectDraft& Set(const layout::Utf8Field& field, std::string_view utf8) {
    SetText(field, utf8);
    return *this;
  }

  /// Adds a record behind those that an event log has. `utf8` must be well-formed and without NUL.
  void AddRecord(int64_t time, Status severity, std::string_view utf8);

  uint32_t Oid() const { return oid_; }
  const std::string& Place() const { return place_; }
  const std::vector<uint32_t>& Parents() const { return parents_; }
  uint16_t Type() const { return layout_->type; }

  /// The finished object: the texts stand behind the body in the order of their fields, each at an
  /// even offset. Its bytes lie in `memory`. The draft is used up.
  StoredObject Finish(std::pmr::memory_resource& memory);

 private:
  void Store(uint32_t offset, uint32_t width, uint64_t value);
  void RequireOwnField(const layout::FieldInfo& field) const;
  /// The text as the store holds it; `name` is what errors call it.
  std::u16string StoredText(const char* name, std::string_view utf8) const;

  uint32_t oid_;
  const layout::ObjectLayout* layout_;
  std::vector<uint32_t> parents_;
  std::string place_;
  std::vector<std::byte> bytes_;
  /// The texts set so far, by the offset of their field.
  std::vector<std::pair<uint32_t, std::u16string>> texts_;
  std::vector<LogRecord> records_;
};

/// Collects objects and checks that together they make a complete store.
class SnapshotBuilder {
 public:
  /// Adds an object, which is listed under each of `parents` behind those added before it. Parents
  /// may be added later. The draft stays valid as long as the builder.
  ObjectDraft& Add(uint32_t oid, const layout::ObjectLayout& layout, Status status,
                   std::vector<uint32_t> parents, std::string place = {});

  /// The snapshot of all objects added; the builder is used up. Throws StoreError unless OIDs are
  /// unique and not 0, every parent exists and is given once, every object descends from the
  /// system (OID 1), nothing descends from itself, and no list is longer than 65,536 (positions
  /// are 16-bit numbers).
  std::unique_ptr<Snapshot> Build();

 private:
  void CheckObjects() const;
  void CheckLists() const;
  void CheckDescent() const;

  std::deque<ObjectDraft> drafts_;
};

}  // namespace tqcim::store
