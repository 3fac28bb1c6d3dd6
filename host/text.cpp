#include "host/text.h"

#include <algorithm>
#include <array>

namespace tqcim::host {
namespace {

char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// A function object, so that it is inlined.
constexpr auto kAreEqualLetters = [](char x, char y) { return x == y || Lower(x) == Lower(y); };

}  // namespace

size_t CharacterCount(std::string_view utf8) {
  return utf8.size() -
         static_cast<size_t>(std::count_if(utf8.begin(), utf8.end(), ContinuesCharacter));
}

WideText ToWide(std::string_view utf8) {
  const int size = static_cast<int>(utf8.size());
  const int needed = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
  WideText wide(static_cast<size_t>(needed), OLECHAR{});
  if (needed > 0) MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), needed);
  return wide;
}

std::string ToUtf8(WideView wide) {
  const auto convert = [&](char* utf8, int room) {
    const int size = static_cast<int>(wide.size());
    return static_cast<size_t>(
        WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, utf8, room, nullptr, nullptr));
  };
  // Names and most values are short enough for a room that holds them whatever they are.
  constexpr size_t kBytesPerUnit = 3;
  std::array<char, 384> room;
  if (wide.size() <= room.size() / kBytesPerUnit) {
    return {room.data(), convert(room.data(), static_cast<int>(room.size()))};
  }
  std::string utf8(convert(nullptr, 0), '\0');
  convert(utf8.data(), static_cast<int>(utf8.size()));
  return utf8;
}

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), Lower);
  return lower;
}

bool HaveEqualLetters(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), kAreEqualLetters);
}

bool NameOrder::operator()(std::string_view a, std::string_view b) const {
  if (a.size() != b.size()) return a.size() < b.size();
  const auto [in_a, in_b] = std::mismatch(a.begin(), a.end(), b.begin(), kAreEqualLetters);
  return in_a != a.end() && Lower(*in_a) < Lower(*in_b);
}

}  // namespace tqcim::host
