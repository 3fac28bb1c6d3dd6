#include "tools/nearest_names.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "host/text.h"

namespace tqcim::tools {
namespace {

/// How many letters have to be put in, taken out or changed to make one text of the other.
size_t EditDistance(std::string_view a, std::string_view b) {
  std::vector<size_t> previous(b.size() + 1);
  std::iota(previous.begin(), previous.end(), size_t{0});
  for (size_t i = 0; i < a.size(); ++i) {
    std::vector<size_t> current = {i + 1};
    for (size_t j = 0; j < b.size(); ++j) {
      const size_t change = previous[j] + (a[i] == b[j] ? 0 : 1);
      current.push_back(std::min({change, previous[j + 1] + 1, current[j] + 1}));
    }
    previous = std::move(current);
  }
  return previous.back();
}

}  // namespace

std::vector<std::string> NearestNames(std::string_view text,
                                      const std::vector<std::string>& names) {
  constexpr size_t kMostNames = 3;
  constexpr size_t kLongestText = 256;
  const std::string wanted = host::LowerCase(text);
  if (wanted.empty() || wanted.size() > kLongestText) return {};
  std::vector<std::pair<size_t, std::string>> candidates;
  for (const std::string& name : names) {
    const std::string lower = host::LowerCase(name);
    const size_t distance =
        lower.find(wanted) != std::string::npos ? 0 : EditDistance(wanted, lower);
    if (distance <= std::max<size_t>(2, wanted.size() / 3)) candidates.emplace_back(distance, name);
  }
  std::stable_sort(candidates.begin(), candidates.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  if (candidates.size() > kMostNames) candidates.resize(kMostNames);
  std::vector<std::string> nearest;
  nearest.reserve(candidates.size());
  for (auto& [distance, name] : candidates) nearest.push_back(std::move(name));
  return nearest;
}

}  // namespace tqcim::tools
