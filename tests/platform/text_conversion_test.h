/// What the tests of the conversions between narrow and wide text share.
#pragma once

#include <string>
#include <string_view>

#include "platform/wmi.h"

/// Text of at most 64 units.
inline std::basic_string<OLECHAR> Widen(UINT codePage, std::string_view narrow) {
  OLECHAR wide[64];
  const int length =
      MultiByteToWideChar(codePage, 0, narrow.data(), static_cast<int>(narrow.size()), wide, 64);
  return {wide, static_cast<size_t>(length)};
}
