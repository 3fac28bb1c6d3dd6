/// Data objects and lists as raw memory, read at offsets that the tests write down themselves.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "store/snapshot.h"

namespace tqcim::testing {

template <typename T>
T At(const void* block, size_t offset) {
  T value;
  std::memcpy(&value, static_cast<const char*>(block) + offset, sizeof(value));
  return value;
}

inline uint8_t U8(const void* block, size_t offset) {
  return At<uint8_t>(block, offset);
}
inline uint16_t U16(const void* block, size_t offset) {
  return At<uint16_t>(block, offset);
}
inline uint32_t U32(const void* block, size_t offset) {
  return At<uint32_t>(block, offset);
}
inline uint64_t U64(const void* block, size_t offset) {
  return At<uint64_t>(block, offset);
}

/// The zero-terminated UCS-2 text to which the 32-bit field at `offset` points.
inline std::u16string Text(const void* block, size_t offset) {
  std::u16string text;
  for (size_t at = U32(block, offset); At<char16_t>(block, at) != 0; at += 2) {
    text += At<char16_t>(block, at);
  }
  return text;
}

/// The OIDs of a list block: a count and that many of them.
inline std::vector<uint32_t> Oids(const void* list) {
  std::vector<uint32_t> oids;
  for (uint32_t i = 0; i < U32(list, 0); ++i) oids.push_back(U32(list, 4 + 4 * size_t{i}));
  return oids;
}

/// The bytes of an object of a snapshot, which must be there.
inline const std::byte* BytesOf(const store::Snapshot& snapshot, uint32_t oid) {
  return snapshot.Find(oid)->bytes.data();
}

}  // namespace tqcim::testing
