/// CIM_ManagedSystemElement.Status and its words.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace tqcim::tools {

inline constexpr std::string_view kStatus = "Status";

/// The worse a status, the higher its rank; a text that isn't one of the words ranks above all.
inline size_t StatusRank(std::string_view status) {
  constexpr std::string_view kOrder[] = {"Other",    "Unknown", "OK",
                                         "Stressed", "Error",   "NonRecover"};
  const auto* found = std::find(std::begin(kOrder), std::end(kOrder), status);
  return static_cast<size_t>(found - std::begin(kOrder));
}

}  // namespace tqcim::tools
