#include "core/object_path.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

#include "core/computer_name.h"
#include "platform/libraries.h"

namespace tqcim {
namespace {

using WideView = std::basic_string_view<OLECHAR>;

/// Appends to a fixed buffer and keeps the terminator.
class PathWriter {
 public:
  explicit PathWriter(ObjectPath& path) : next_(path.text), last_(std::end(path.text) - 1) {}

  template <typename Char>
  void Append(std::basic_string_view<Char> text) {
    const auto fitting = std::min(text.size(), static_cast<size_t>(last_ - next_));
    next_ = std::copy_n(text.begin(), fitting, next_);
  }
  void Append(const OLECHAR* text) {
    if (text) Append(WideView(text));
  }
  void Append(int32_t number) { Append(std::string_view(std::to_string(number))); }

 private:
  OLECHAR* next_;
  OLECHAR* const last_;
};

}  // namespace

ObjectPath FormatObjectPath(
    const OLECHAR* format, std::initializer_list<std::variant<const OLECHAR*, int32_t>> arguments) {
  ObjectPath path;
  PathWriter writer(path);
  auto argument = arguments.begin();
  WideView rest(format);
  for (size_t place = rest.find(OLECHAR{'%'}); place != WideView::npos;
       place = rest.find(OLECHAR{'%'})) {
    writer.Append(rest.substr(0, place));
    std::visit([&](auto value) { writer.Append(value); }, *argument++);
    rest.remove_prefix(place + 2);
  }
  writer.Append(rest);
  return path;
}

PathComputerName::PathComputerName() {
  uint32_t size = sizeof text_;
  SMUTF8StrToUCS2Str(text_, &size, ComputerName());
}

}  // namespace tqcim
