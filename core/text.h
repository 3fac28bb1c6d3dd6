/// Text conversions and comparisons between the store's texts and WMI's.
#pragma once

#include <memory>

#include "platform/com.h"

namespace tqcim {

/// Narrow text to a new BSTR with the ANSI code page. The store's UTF-8 texts are converted the
/// same way: existing consumers see them decoded as ANSI. Null gives null.
Bstr NarrowToBstr(const char* text);

/// A BSTR to narrow text with the ANSI code page. Null gives null.
std::unique_ptr<char[]> BstrToNarrow(const OLECHAR* text);

/// A narrow text as the support library converts it, which the provider has always given this room.
class Ucs2Text {
 public:
  explicit Ucs2Text(const char* narrow);
  const OLECHAR* text() const { return text_; }

 private:
  static constexpr uint32_t kSizeInBytes = 256;

  OLECHAR text_[kSizeInBytes / sizeof(OLECHAR)] = {};
};

/// Whether two texts are equal without regard to the case of the letters A to Z. A null text equals
/// none.
bool EqualIgnoringCase(const OLECHAR* a, const OLECHAR* b);

/// Whether two texts are equal character by character. A null text equals none.
bool Equal(const OLECHAR* a, const OLECHAR* b);

/// The number at the beginning of a text, as "%d" reads it: blanks, a sign, decimal digits; numbers
/// beyond 32 bits wrap. 0 for a text that does not begin with a number, and for null.
int32_t ScanDecimal(const OLECHAR* text);
int32_t ScanDecimal(const char* text);
/// The same after the conversion to narrow text, which makes plain digits and blanks of those that
/// the ANSI code page has no others for.
int32_t ScanAsNarrow(const OLECHAR* text);

}  // namespace tqcim
