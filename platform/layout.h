/// How a data object is read and written: typed fields at fixed offsets.
///
/// All offsets are bytes from the start of the data object, header included; integers are
/// little-endian and may stand at any offset. A text field holds the 32-bit offset, from the start
/// of the data object, of a zero-terminated UCS-2 text.
#pragma once

#include <cstdint>
#include <span>
#include <type_traits>

namespace tqcim::layout {

/// An integer of type T. `none` is what stands there when the source of the object does not say.
template <typename T>
struct Field {
  static_assert(std::is_integral_v<T>);
  const char* name;
  uint32_t offset;
  T none = 0;
};

/// What a text field holds when there is no text.
enum class AbsentText {
  kEmpty,       ///< the offset of an empty text: readers take the text without asking
  kZeroOffset,  ///< offset 0: readers ask first
};

/// A text that readers take as UCS-2 straight from the object.
struct Ucs2Field {
  const char* name;
  uint32_t offset;
  AbsentText absent = AbsentText::kEmpty;
};

/// A text that readers ask the object library for, which hands it out as UTF-8, or nothing where
/// the offset is 0.
struct Utf8Field {
  const char* name;
  uint32_t offset;
};

enum class FieldKind { kUnsigned, kSigned, kText };

/// A field without its type, for the writers of data objects. `width` is in bytes; `none` holds the
/// value's bit pattern.
struct FieldInfo {
  const char* name;
  uint32_t offset;
  uint32_t width;
  FieldKind kind;
  AbsentText absent;
  uint64_t none;

  template <typename T>
  constexpr FieldInfo(const Field<T>& field)
      : name(field.name),
        offset(field.offset),
        width(sizeof(T)),
        kind(std::is_signed_v<T> ? FieldKind::kSigned : FieldKind::kUnsigned),
        absent(AbsentText::kEmpty),
        none(static_cast<uint64_t>(field.none)) {}

  constexpr FieldInfo(const Ucs2Field& field)
      : name(field.name),
        offset(field.offset),
        width(4),
        kind(FieldKind::kText),
        absent(field.absent),
        none(0) {}

  constexpr FieldInfo(const Utf8Field& field)
      : name(field.name),
        offset(field.offset),
        width(4),
        kind(FieldKind::kText),
        absent(AbsentText::kZeroOffset),
        none(0) {}
};

/// One object type: its number, its name in store files, and the fields of its body. Two fields
/// may share bytes (a probe holds a reading or a state).
struct ObjectLayout {
  uint16_t type;
  const char* name;
  std::span<const FieldInfo> fields;
};

}  // namespace tqcim::layout
