/// Names that somebody who mistyped one may have meant.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tqcim::tools {

/// At most three of the names, the nearest first: those that contain the text or differ from it in
/// a few letters. Case doesn't matter.
std::vector<std::string> NearestNames(std::string_view text, const std::vector<std::string>& names);

}  // namespace tqcim::tools
