#include "store/text.h"

#include <cstddef>
#include <cstdint>

namespace tqcim::store {
namespace {

constexpr char32_t kMalformed = 0xFFFFFFFF;
constexpr char32_t kReplacement = 0xFFFD;

bool IsHighSurrogate(char32_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsLowSurrogate(char32_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// Takes the code point that starts at `position` and moves past it.
char32_t TakeCodePoint(std::string_view utf8, size_t& position) {
  const auto lead = static_cast<uint8_t>(utf8[position++]);
  if (lead < 0x80) return lead;
  const int continuations = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
  if (lead < 0xC2 || lead > 0xF4) return kMalformed;
  char32_t codePoint = lead & (0x3F >> continuations);
  for (int i = 0; i < continuations; ++i) {
    if (position == utf8.size()) return kMalformed;
    const auto next = static_cast<uint8_t>(utf8[position++]);
    if ((next & 0xC0) != 0x80) return kMalformed;
    codePoint = codePoint << 6 | (next & 0x3F);
  }
  constexpr char32_t kSmallest[] = {0, 0x80, 0x800, 0x10000};
  const bool surrogate = IsHighSurrogate(codePoint) || IsLowSurrogate(codePoint);
  if (codePoint < kSmallest[continuations] || codePoint > 0x10FFFF || surrogate) return kMalformed;
  return codePoint;
}

void AppendUtf8(std::string& utf8, char32_t codePoint) {
  const auto append = [&](char32_t byte) { utf8 += static_cast<char>(static_cast<uint8_t>(byte)); };
  if (codePoint < 0x80) {
    append(codePoint);
    return;
  }
  if (codePoint < 0x800) {
    append(0xC0 | codePoint >> 6);
  } else if (codePoint < 0x10000) {
    append(0xE0 | codePoint >> 12);
    append(0x80 | (codePoint >> 6 & 0x3F));
  } else {
    append(0xF0 | codePoint >> 18);
    append(0x80 | (codePoint >> 12 & 0x3F));
    append(0x80 | (codePoint >> 6 & 0x3F));
  }
  append(0x80 | (codePoint & 0x3F));
}

}  // namespace

std::optional<std::u16string> Utf16FromUtf8(std::string_view utf8) {
  std::u16string utf16;
  utf16.reserve(utf8.size());
  for (size_t position = 0; position < utf8.size();) {
    const char32_t codePoint = TakeCodePoint(utf8, position);
    if (codePoint == kMalformed) return std::nullopt;
    if (codePoint < 0x10000) {
      utf16 += static_cast<char16_t>(codePoint);
    } else {
      utf16 += static_cast<char16_t>(0xD800 + ((codePoint - 0x10000) >> 10));
      utf16 += static_cast<char16_t>(0xDC00 + ((codePoint - 0x10000) & 0x3FF));
    }
  }
  return utf16;
}

std::string Utf8FromUtf16(std::u16string_view utf16) {
  std::string utf8;
  utf8.reserve(utf16.size());
  for (size_t position = 0; position < utf16.size(); ++position) {
    char32_t codePoint = utf16[position];
    if (IsHighSurrogate(codePoint) && position + 1 < utf16.size() &&
        IsLowSurrogate(utf16[position + 1])) {
      codePoint = 0x10000 + ((codePoint - 0xD800) << 10) + (utf16[++position] - 0xDC00U);
    } else if (IsHighSurrogate(codePoint) || IsLowSurrogate(codePoint)) {
      codePoint = kReplacement;
    }
    AppendUtf8(utf8, codePoint);
  }
  return utf8;
}

}  // namespace tqcim::store
