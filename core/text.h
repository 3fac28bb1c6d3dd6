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

/// Whether two texts are equal without regard to the case of the letters A to Z. A null text equals
/// none.
bool EqualIgnoringCase(const OLECHAR* a, const OLECHAR* b);

/// Whether two texts are equal character by character. A null text equals none.
bool Equal(const OLECHAR* a, const OLECHAR* b);

/// The number at the beginning of a text, as "%d" reads it: blanks, a sign, decimal digits; numbers
/// beyond 32 bits wrap. 0 for a text that does not begin with a number, and for null.
int32_t ScanDecimal(const OLECHAR* text);
int32_t ScanDecimal(const char* text);

}  // namespace tqcim
