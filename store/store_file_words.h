/// The words that reading and writing store files share.
#pragma once

#include <array>
#include <string_view>

namespace tqcim::store::words {

inline constexpr std::string_view kFormat = "tqcim-store";
inline constexpr int kVersion = 1;

/// The status words, at the position of their status value.
inline constexpr std::array<std::string_view, 6> kStatus = {
    "other", "unknown", "ok", "nonCritical", "critical", "nonRecoverable"};

}  // namespace tqcim::store::words
