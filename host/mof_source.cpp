#include "host/mof_source.h"

#include <algorithm>

namespace tqcim::host {
namespace {

std::string Place(const MofSource& source, std::string_view part) {
  const std::string_view text = WithoutByteOrderMark(source.text);
  const std::string_view before = text.substr(0, static_cast<size_t>(part.data() - text.data()));
  const auto lines_before = std::count(before.begin(), before.end(), '\n');
  // Without a line before, npos + 1 is 0.
  const size_t line_start = before.rfind('\n') + 1;
  return source.name + ":" + std::to_string(lines_before + 1) + ":" +
         std::to_string(before.size() - line_start + 1);
}

}  // namespace

std::string_view WithoutByteOrderMark(std::string_view text) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  return text.substr(text.starts_with(kMark) ? kMark.size() : 0);
}

MofError::MofError(const MofSource& source, std::string_view part, const std::string& reason)
    : std::runtime_error(Place(source, part) + ": " + reason) {}

}  // namespace tqcim::host
