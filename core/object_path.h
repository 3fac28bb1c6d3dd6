/// Object-path texts, with which associations refer to other instances.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>
#include <variant>

#include "core/text.h"

namespace tqcim {

using WideView = std::basic_string_view<OLECHAR>;

/// A path text in a fixed buffer: a longer one is cut, never written past it.
class ObjectPath {
 public:
  WideView View() const { return {text_, length_}; }

  void Append(WideView text);
  /// Up to the terminator; null is nothing.
  void Append(const OLECHAR* text);
  /// In decimal.
  void Append(int32_t number);

 private:
  static constexpr size_t kMaxLength = 255;

  OLECHAR text_[kMaxLength] = {};
  size_t length_ = 0;
};

/// A format text, taken apart when it is compiled: "%s" stands for a wide text, "%d" for a number.
class PathFormat {
 public:
  consteval PathFormat(const OLECHAR* format) {
    for (WideView rest(format);; rest.remove_prefix(pieces_[count_ - 1].size() + 2)) {
      const size_t place = rest.find(OLECHAR{'%'});
      pieces_[count_++] = rest.substr(0, place);
      if (place == WideView::npos) break;
    }
  }

  /// What stands before, between and behind the places.
  std::span<const WideView> Pieces() const { return {pieces_.data(), count_}; }

 private:
  static constexpr size_t kMostPieces = 4;

  std::array<WideView, kMostPieces> pieces_{};
  size_t count_ = 0;
};

/// Fills the places of a format, of which there are as many as arguments, in the order given.
ObjectPath FormatObjectPath(const PathFormat& format,
                            std::initializer_list<std::variant<const OLECHAR*, int32_t>> arguments);

/// The computer's name as the support library converts it, for use in paths.
class PathComputerName : public Ucs2Text {
 public:
  PathComputerName();
};

}  // namespace tqcim
