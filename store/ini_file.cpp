#include "store/ini_file.h"

#include <algorithm>
#include <charconv>
#include <sstream>
#include <string>

#include "store/files.h"

namespace tqcim::store {
namespace {

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool SameName(std::string_view a, std::string_view b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [&](char x, char y) { return lower(x) == lower(y); });
}

std::optional<uint16_t> NumberOf(std::string_view text) {
  uint16_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

}  // namespace

std::optional<uint16_t> ReadIniNumber(const std::filesystem::path& file, std::string_view section,
                                      std::string_view key) {
  std::error_code error;
  if (!std::filesystem::exists(file, error)) return std::nullopt;
  std::istringstream lines(ReadFile(file));
  bool inSection = false;
  for (std::string line; std::getline(lines, line);) {
    const std::string_view content = Trimmed(line);
    if (content.empty() || content[0] == ';' || content[0] == '#') continue;
    if (content.front() == '[' && content.back() == ']') {
      inSection = SameName(Trimmed(content.substr(1, content.size() - 2)), section);
      continue;
    }
    const size_t equals = content.find('=');
    if (!inSection || equals == std::string_view::npos) continue;
    if (SameName(Trimmed(content.substr(0, equals)), key)) {
      return NumberOf(Trimmed(content.substr(equals + 1)));
    }
  }
  return std::nullopt;
}

}  // namespace tqcim::store
