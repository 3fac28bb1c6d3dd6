/// What a handler put into an instance, in a form that reads well in a test and in its output.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "platform/wmi.h"

namespace tqcim::testing {

/// One call of IWbemClassObject::Put, for example {"CoreCount", VT_I4, 0, "16"}.
struct RecordedPut {
  std::string name;
  VARTYPE variantType;
  /// The last argument of Put: 0, or what the handler said.
  CIMTYPE cimType;
  /// See ValueText.
  std::string value;

  bool operator==(const RecordedPut&) const = default;
};

/// The puts of one instance, in order.
using Puts = std::vector<RecordedPut>;

/// A variant's value as text: a text as it stands (characters beyond ASCII as \uXXXX), "<null>" for
/// a null BSTR, numbers and the raw value of booleans in decimal, arrays as {a,b}. An array whose
/// lower bound is not 0, or whose elements are not what the variant says, fails the test.
std::string ValueText(const VARIANT& value);

/// Wide text in the same form.
std::string Printable(const OLECHAR* text, size_t length);
std::string Printable(const OLECHAR* text);

std::ostream& operator<<(std::ostream& out, const RecordedPut& put);

}  // namespace tqcim::testing
