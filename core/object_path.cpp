#include "core/object_path.h"

#include <iterator>
#include <string>

#include "core/computer_name.h"
#include "platform/libraries.h"

namespace tqcim {
namespace {

/// Appends to a fixed buffer and keeps the terminator.
class PathWriter {
 public:
  explicit PathWriter(ObjectPath& path) : next_(path.text), last_(std::end(path.text) - 1) {}

  void Append(OLECHAR c) {
    if (next_ != last_) *next_++ = c;
  }
  void Append(const OLECHAR* text) {
    for (; text && *text; ++text) Append(*text);
  }
  void Append(int32_t number) {
    for (const char digit : std::to_string(number)) Append(static_cast<OLECHAR>(digit));
  }

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
  for (; *format; ++format) {
    if (*format != OLECHAR{'%'}) {
      writer.Append(*format);
      continue;
    }
    ++format;
    std::visit([&](auto value) { writer.Append(value); }, *argument++);
  }
  return path;
}

PathComputerName::PathComputerName() {
  uint32_t size = sizeof text_;
  SMUTF8StrToUCS2Str(text_, &size, ComputerName());
}

}  // namespace tqcim
