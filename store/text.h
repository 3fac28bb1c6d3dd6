/// Conversion between UTF-8 and the UTF-16 code units in which data objects hold their texts.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tqcim::store {

/// The text as UTF-16, or nothing where `utf8` is malformed (overlong forms, surrogates and values
/// past U+10FFFF included).
std::optional<std::u16string> Utf16FromUtf8(std::string_view utf8);

/// The text as UTF-8; an unpaired surrogate becomes U+FFFD.
std::string Utf8FromUtf16(std::u16string_view utf16);

}  // namespace tqcim::store
