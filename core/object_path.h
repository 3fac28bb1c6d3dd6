/// Object-path texts, with which associations refer to other instances.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <variant>

#include "platform/wmi.h"

namespace tqcim {

/// A path text in a fixed buffer: a longer one is cut, never written past it.
struct ObjectPath {
  OLECHAR text[256] = {};
};

/// Fills a format text: "%s" takes a wide text, "%d" a number in decimal, in the order given.
ObjectPath FormatObjectPath(const OLECHAR* format,
                            std::initializer_list<std::variant<const OLECHAR*, int32_t>> arguments);

/// The computer's name as the support library converts it, for use in paths.
class PathComputerName {
 public:
  PathComputerName();
  const OLECHAR* text() const { return text_; }

 private:
  OLECHAR text_[128] = {};
};

}  // namespace tqcim
