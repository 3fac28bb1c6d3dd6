/// Text of the platform and of the rest of the host: UTF-16 and UTF-8, and CIM's caseless names.
#pragma once

#include <string>
#include <string_view>

#include "platform/wmi.h"

namespace tqcim::host {

using WideText = std::basic_string<OLECHAR>;
using WideView = std::basic_string_view<OLECHAR>;

/// What is not valid in one form becomes U+FFFD in the other.
WideText ToWide(std::string_view utf8);
std::string ToUtf8(WideView wide);

/// Whether a byte of UTF-8 goes on with a character.
inline bool ContinuesCharacter(char byte) {
  return (byte & 0xC0) == 0x80;
}
size_t CharacterCount(std::string_view utf8);

inline bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// CIM names differ in nothing but the case of ASCII letters: the lower-case form stands for all.
std::string LowerCase(std::string_view text);
bool HaveEqualLetters(std::string_view a, std::string_view b);
inline bool EqualNames(std::string_view a, std::string_view b) {
  return a.size() == b.size() && HaveEqualLetters(a, b);
}

/// An order of names in which those that differ in case alone are one. The shorter come first: most
/// names of a schema begin alike.
struct NameOrder {
  using is_transparent = void;
  bool operator()(std::string_view a, std::string_view b) const;
};

}  // namespace tqcim::host
