/// Reading the object store: owners of what the libraries hand out, and the look-ups that the
/// handlers share. Every block goes back to its library exactly once, on every path.
#pragma once

#include <cstring>
#include <memory>

#include "platform/layout.h"
#include "platform/layouts/header.h"
#include "platform/layouts/system.h"
#include "platform/libraries.h"

namespace tqcim {

struct GenericDeleter {
  void operator()(void* block) const { SMILFreeGeneric(block); }
};
struct SupportDeleter {
  void operator()(void* block) const { SMFreeMem(block); }
};

/// UTF-8 text of the object library.
using Utf8Text = std::unique_ptr<char, GenericDeleter>;
/// Narrow text in memory of the support library.
using SupportText = std::unique_ptr<char, SupportDeleter>;

/// A block with typed fields that a library handed out, or nothing.
template <typename Deleter>
class Block {
 public:
  Block() = default;
  /// Takes over a block of the library; null is nothing.
  explicit Block(void* block) : block_(static_cast<uint8_t*>(block)) {}

  explicit operator bool() const { return block_ != nullptr; }

  template <typename T>
  T operator[](const layout::Field<T>& field) const {
    return Read<T>(field.offset);
  }

  /// The text in place; it lives as long as the block. Only for a field that has a text.
  const OLECHAR* operator[](const layout::Ucs2Field& field) const {
    return reinterpret_cast<const OLECHAR*>(block_.get() + TextOffset(field));
  }

  /// The raw value of a text field; 0 where an optional text is absent.
  uint32_t TextOffset(const layout::Ucs2Field& field) const { return Read<uint32_t>(field.offset); }

  /// Gives the block up without freeing it.
  void* release() { return block_.release(); }

 protected:
  template <typename T>
  T Read(uint32_t offset) const {
    T value;
    std::memcpy(&value, block_.get() + offset, sizeof value);
    return value;
  }

  std::unique_ptr<uint8_t, Deleter> block_;
};

/// A data object of the store, or nothing.
class DataObject : public Block<GenericDeleter> {
 public:
  using Block::Block;
  using Block::operator[];

  Utf8Text operator[](const layout::Utf8Field& field) const {
    return Utf8Text(SMILDOGetByOffsetUTF8Str(block_.get(), Read<uint32_t>(field.offset)));
  }

  template <typename T>
  void Write(const layout::Field<T>& field, T value) {
    std::memcpy(block_.get() + field.offset, &value, sizeof value);
  }

  uint32_t Oid() const { return (*this)[layout::header::kOid]; }
  /// The same where it stands, for a library that takes it from there.
  uint32_t* OidInPlace() const {
    return reinterpret_cast<uint32_t*>(block_.get() + layout::header::kOid.offset);
  }
  uint16_t Type() const { return (*this)[layout::header::kType]; }
  uint8_t Status() const { return (*this)[layout::header::kStatus]; }
};

/// The OIDs of the children of an object, or nothing where the listing failed.
class OidList {
 public:
  explicit OidList(void* block) : block_(static_cast<uint32_t*>(block)) {}

  explicit operator bool() const { return block_ != nullptr; }
  /// Number of OIDs; 0 where the listing failed.
  uint32_t size() const { return block_ ? block_.get()[0] : 0; }
  bool empty() const { return size() == 0; }
  uint32_t operator[](uint32_t position) const { return block_.get()[position + 1]; }

 private:
  std::unique_ptr<uint32_t, GenericDeleter> block_;
};

/// 16-bit positions end a walk here instead of starting it over.
inline constexpr uint32_t kPositionLimit = 65'536;
/// A read that fails and is tried again at the same position counts as absent after so many tries,
/// so that no store can hang the host.
inline constexpr uint32_t kReadTries = 65'536;

OidList ListChildren(uint32_t parentOid, uint16_t objectType);
DataObject ReadObject(uint32_t oid);

/// The first child of a type, or nothing, and the list that names it, held as long.
struct FirstChild {
  FirstChild(uint32_t parentOid, uint16_t type)
      : list(ListChildren(parentOid, type)),
        object(list.empty() ? DataObject() : ReadObject(list[0])) {}

  OidList list;
  DataObject object;
};

/// The `Status` text of an object status. Never null; a status beyond the known ones is "Stressed".
const OLECHAR* StatusToText(uint32_t status);

/// The child at `index` of a type below OID 2; nothing if the list is missing or too short.
DataObject GetChildObjectOfOid2(uint16_t index, uint16_t objectType);
/// The same below `parentOid`.
DataObject GetChildObject(uint32_t parentOid, uint16_t objectType, uint16_t index);

/// A resumable walk over every object of a type below every chassis, in list order. Gives the
/// object at position `inner` of the chassis at position `outer`, moving on to the next chassis
/// (and `inner` back to 0) where the list is at its end; the caller adds 1 to `inner` to go on.
/// Nothing when the chassis run out, when a listing or the read fails, and past position 65,535 of
/// a list.
DataObject GetObjectByCursor(uint32_t& outer, uint32_t& inner, uint16_t objectType);

}  // namespace tqcim
