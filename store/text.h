/// Conversion between UTF-8 and the UTF-16 code units in which data objects hold their texts, and
/// texts in error sentences.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tqcim::store {

/// Whether the text is well-formed UTF-8 (overlong forms, surrogates and values past U+10FFFF are
/// not).
bool IsUtf8(std::string_view text);

/// The text as UTF-16, or nothing where it is not well-formed.
std::optional<std::u16string> Utf16FromUtf8(std::string_view utf8);

/// UTF-8 takes at most so many bytes for a UTF-16 unit.
inline constexpr size_t kUtf8BytesPerUnit = 3;

/// Writes `units` UTF-16 units, wherever in memory they stand, as UTF-8 and returns its end; there
/// is room for kUtf8BytesPerUnit bytes each. An unpaired surrogate becomes U+FFFD.
char* PutUtf8(const void* utf16, size_t units, char* utf8);

/// The text as UTF-8, by the same rules.
std::string Utf8FromUtf16(std::u16string_view utf16);

/// The text in quotes, for error sentences: shortened, and in printable ASCII on one line whatever
/// it contains.
std::string Quoted(std::string_view text);

}  // namespace tqcim::store
