#include "core/object_path.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "core/computer_name.h"

namespace tqcim {

void ObjectPath::Append(WideView text) {
  const size_t fitting = std::min(text.size(), kMaxLength - length_);
  std::copy_n(text.data(), fitting, text_ + length_);
  length_ += fitting;
}

void ObjectPath::Append(const OLECHAR* text) {
  if (!text) return;
  while (*text && length_ < kMaxLength) text_[length_++] = *text++;
}

void ObjectPath::Append(int32_t number) {
  char digits[std::numeric_limits<int32_t>::digits10 + 2];
  const char* const end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
  for (const char* digit = digits; digit != end && length_ < kMaxLength; ++digit) {
    text_[length_++] = static_cast<OLECHAR>(*digit);
  }
}

ObjectPath FormatObjectPath(
    const PathFormat& format,
    std::initializer_list<std::variant<const OLECHAR*, int32_t>> arguments) {
  ObjectPath path;
  auto piece = format.Pieces().begin();
  path.Append(*piece);
  for (const auto& argument : arguments) {
    std::visit([&](auto value) { path.Append(value); }, argument);
    path.Append(*++piece);
  }
  return path;
}

PathComputerName::PathComputerName() : Ucs2Text(ComputerName()) {}

}  // namespace tqcim
