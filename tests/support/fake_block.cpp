#include "tests/support/fake_block.h"

#include <algorithm>

namespace tqcim::testing {
namespace {

void WriteLittleEndian(std::vector<uint8_t>& bytes, uint32_t offset, uint64_t value,
                       uint32_t width) {
  for (uint32_t i = 0; i < width; ++i) {
    bytes[offset + i] = static_cast<uint8_t>(value >> (8 * i));
  }
}

/// Where the next text begins, behind the body and the texts before it: an even offset.
uint32_t NextTextOffset(std::vector<uint8_t>& bytes) {
  bytes.resize((bytes.size() + 1) / 2 * 2);
  return static_cast<uint32_t>(bytes.size());
}

}  // namespace

FakeBlock::FakeBlock(uint32_t oid, uint16_t type, uint8_t status) : FakeBlock() {
  std::fill_n(body_.begin(), 16, uint8_t{0xEE});
  U32(4, oid).U16(8, type).U8(10, status);
}

FakeBlock& FakeBlock::Ucs2(uint32_t offset, std::u16string_view text) {
  ucs2Texts_[offset] = text;
  return U32(offset, 0);
}

FakeBlock& FakeBlock::Utf8(uint32_t offset, std::string text) {
  utf8Texts_[offset] = std::move(text);
  return U32(offset, 0);
}

FakeBlock::Image FakeBlock::Build() const {
  Image image{body_, {}};
  for (const auto& [field, text] : ucs2Texts_) {
    const uint32_t textOffset = NextTextOffset(image.bytes);
    WriteLittleEndian(image.bytes, field, textOffset, 4);
    for (const char16_t c : text) {
      image.bytes.push_back(static_cast<uint8_t>(c & 0xFF));
      image.bytes.push_back(static_cast<uint8_t>(c >> 8));
    }
    image.bytes.insert(image.bytes.end(), 2, 0);
  }
  for (const auto& [field, text] : utf8Texts_) {
    const uint32_t textOffset = NextTextOffset(image.bytes);
    WriteLittleEndian(image.bytes, field, textOffset, 4);
    image.utf8Texts[textOffset] = text;
    image.bytes.insert(image.bytes.end(), 2, 0);
  }
  return image;
}

FakeBlock& FakeBlock::Write(uint32_t offset, uint64_t value, uint32_t width) {
  body_.resize(std::max<size_t>(body_.size(), offset + width));
  WriteLittleEndian(body_, offset, value, width);
  return *this;
}

}  // namespace tqcim::testing
