#include "host/text.h"

#include <algorithm>

namespace tqcim::host {
namespace {

char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

std::string PathText(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

WideText ToWide(std::string_view utf8) {
  const int size = static_cast<int>(utf8.size());
  const int needed = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
  WideText wide(static_cast<size_t>(needed), OLECHAR{});
  if (needed > 0) MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), needed);
  return wide;
}

std::string ToUtf8(WideView wide) {
  const int size = static_cast<int>(wide.size());
  const int needed =
      WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<size_t>(needed), '\0');
  if (needed > 0) {
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, utf8.data(), needed, nullptr, nullptr);
  }
  return utf8;
}

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), Lower);
  return lower;
}

bool HaveEqualLetters(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(),
                    [](char x, char y) { return x == y || Lower(x) == Lower(y); });
}

bool NameOrder::operator()(std::string_view a, std::string_view b) const {
  if (a.size() != b.size()) return a.size() < b.size();
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                      [](char x, char y) { return Lower(x) < Lower(y); });
}

}  // namespace tqcim::host
