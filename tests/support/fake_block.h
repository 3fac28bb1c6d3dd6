/// The bytes of a data object or an event record, written at literal offsets.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tqcim::testing {

/// What is not set is zero. A block grows where a field stands behind its end; texts stand behind
/// the body, in the order of their fields.
class FakeBlock {
 public:
  /// Longer than the body of any object type.
  static constexpr size_t kBodySize = 256;

  explicit FakeBlock(size_t size = kBodySize) : body_(size) {}
  /// A data object, header filled. Header bytes without a meaning hold 0xEE.
  FakeBlock(uint32_t oid, uint16_t type, uint8_t status);

  FakeBlock& U8(uint32_t offset, uint8_t value) { return Write(offset, value, 1); }
  FakeBlock& U16(uint32_t offset, uint16_t value) { return Write(offset, value, 2); }
  FakeBlock& U32(uint32_t offset, uint32_t value) { return Write(offset, value, 4); }
  FakeBlock& U64(uint32_t offset, uint64_t value) { return Write(offset, value, 8); }
  FakeBlock& I16(uint32_t offset, int16_t value) {
    return U16(offset, static_cast<uint16_t>(value));
  }
  FakeBlock& I32(uint32_t offset, int32_t value) {
    return U32(offset, static_cast<uint32_t>(value));
  }
  FakeBlock& I64(uint32_t offset, int64_t value) {
    return U64(offset, static_cast<uint64_t>(value));
  }

  /// A zero-terminated UCS-2 text whose offset the 32-bit field at `offset` holds.
  FakeBlock& Ucs2(uint32_t offset, std::u16string_view text);
  /// A text that SMILDOGetByOffsetUTF8Str hands out for the value of the field at `offset`.
  FakeBlock& Utf8(uint32_t offset, std::string text);

  /// A finished copy.
  struct Image {
    std::vector<uint8_t> bytes;
    /// By the value of their fields.
    std::map<uint32_t, std::string> utf8Texts;
  };
  Image Build() const;

 private:
  FakeBlock& Write(uint32_t offset, uint64_t value, uint32_t width);

  std::vector<uint8_t> body_;
  std::map<uint32_t, std::u16string> ucs2Texts_;
  std::map<uint32_t, std::string> utf8Texts_;
};

}  // namespace tqcim::testing
