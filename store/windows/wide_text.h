/// The system's texts.
#pragma once

#include <string>
#include <string_view>

#include "store/text.h"

namespace tqcim::store {

inline std::string Utf8(std::wstring_view text) {
  return Utf8FromUtf16(std::u16string(text.begin(), text.end()));
}

}  // namespace tqcim::store
