#include "store/text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <nlohmann/json.hpp>

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

/// Of more than one byte.
char* PutCodePoint(char32_t codePoint, char* utf8) {
  const auto put = [&](char32_t byte) { *utf8++ = static_cast<char>(static_cast<uint8_t>(byte)); };
  if (codePoint < 0x800) {
    put(0xC0 | codePoint >> 6);
  } else if (codePoint < 0x10000) {
    put(0xE0 | codePoint >> 12);
    put(0x80 | (codePoint >> 6 & 0x3F));
  } else {
    put(0xF0 | codePoint >> 18);
    put(0x80 | (codePoint >> 12 & 0x3F));
    put(0x80 | (codePoint >> 6 & 0x3F));
  }
  put(0x80 | (codePoint & 0x3F));
  return utf8;
}

}  // namespace

bool IsUtf8(std::string_view text) {
  for (size_t position = 0; position < text.size();) {
    if (TakeCodePoint(text, position) == kMalformed) return false;
  }
  return true;
}

std::optional<std::u16string> Utf16FromUtf8(std::string_view utf8) {
  // Most texts are ASCII from end to end.
  const auto ascii_end =
      std::find_if(utf8.begin(), utf8.end(), [](char c) { return (c & 0x80) != 0; });
  std::u16string utf16(utf8.begin(), ascii_end);
  for (auto position = static_cast<size_t>(ascii_end - utf8.begin()); position < utf8.size();) {
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

char* PutUtf8(const void* utf16, size_t units, char* utf8) {
  const auto unitAt = [utf16](size_t position) {
    char16_t unit;
    std::memcpy(&unit, static_cast<const char*>(utf16) + position * sizeof unit, sizeof unit);
    return char32_t{unit};
  };
  for (size_t position = 0; position < units; ++position) {
    char32_t codePoint = unitAt(position);
    if (codePoint < 0x80) {
      *utf8++ = static_cast<char>(codePoint);
      continue;
    }
    if (IsHighSurrogate(codePoint) && position + 1 < units &&
        IsLowSurrogate(unitAt(position + 1))) {
      codePoint = 0x10000 + ((codePoint - 0xD800) << 10) + (unitAt(++position) - 0xDC00U);
    } else if (IsHighSurrogate(codePoint) || IsLowSurrogate(codePoint)) {
      codePoint = kReplacement;
    }
    utf8 = PutCodePoint(codePoint, utf8);
  }
  return utf8;
}

std::string Utf8FromUtf16(std::u16string_view utf16) {
  std::string utf8(utf16.size() * kUtf8BytesPerUnit, '\0');
  const char* end = PutUtf8(utf16.data(), utf16.size(), utf8.data());
  utf8.resize(static_cast<size_t>(end - utf8.data()));
  return utf8;
}

std::string Quoted(std::string_view text) {
  using nlohmann::json;
  constexpr size_t kLongest = 60;
  const bool cut = text.size() > kLongest;
  return json(std::string(text.substr(0, kLongest)) + (cut ? "..." : ""))
      .dump(-1, ' ', true, json::error_handler_t::replace);
}

}  // namespace tqcim::store
