#include "tests/support/recorded_put.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <ostream>

namespace tqcim::testing {
namespace {

std::string TextOf(BSTR text) {
  return text ? Printable(text, SysStringLen(text)) : "<null>";
}

std::string ElementText(VARTYPE type, const void* data, ULONG index) {
  switch (type) {
    case VT_BSTR:
      return TextOf(static_cast<const BSTR*>(data)[index]);
    case VT_I4:
      return std::to_string(static_cast<const LONG*>(data)[index]);
    case VT_I2:
      return std::to_string(static_cast<const SHORT*>(data)[index]);
    case VT_UI1:
      return std::to_string(static_cast<const BYTE*>(data)[index]);
    default:
      return "<element of type " + std::to_string(type) + ">";
  }
}

std::string ArrayText(SAFEARRAY* array, VARTYPE elementType) {
  VARTYPE actualType = VT_EMPTY;
  SafeArrayGetVartype(array, &actualType);
  EXPECT_EQ(elementType, actualType) << "elements other than the variant says";
  LONG lowerBound = -1;
  SafeArrayGetLBound(array, 1, &lowerBound);
  EXPECT_EQ(0, lowerBound);
  LONG upperBound = -1;
  SafeArrayGetUBound(array, 1, &upperBound);
  void* data = nullptr;
  if (FAILED(SafeArrayAccessData(array, &data))) return "<unreadable array>";
  std::string text = "{";
  for (LONG i = 0; i <= upperBound - lowerBound; ++i) {
    if (i != 0) text += ",";
    text += ElementText(actualType, data, static_cast<ULONG>(i));
  }
  SafeArrayUnaccessData(array);
  return text + "}";
}

}  // namespace

std::string ValueText(const VARIANT& value) {
  if (V_VT(&value) & VT_ARRAY) {
    return ArrayText(V_ARRAY(&value), static_cast<VARTYPE>(V_VT(&value) & ~VT_ARRAY));
  }
  switch (V_VT(&value)) {
    case VT_BSTR:
      return TextOf(V_BSTR(&value));
    case VT_I4:
      return std::to_string(V_I4(&value));
    case VT_I2:
      return std::to_string(V_I2(&value));
    case VT_UI1:
      return std::to_string(V_UI1(&value));
    case VT_BOOL:
      return std::to_string(V_BOOL(&value));
    default:
      return "<value of type " + std::to_string(V_VT(&value)) + ">";
  }
}

std::string Printable(const OLECHAR* text, size_t length) {
  std::string printable;
  for (size_t i = 0; i < length; ++i) {
    if (text[i] >= OLECHAR{0x20} && text[i] < OLECHAR{0x7F}) {
      printable += static_cast<char>(text[i]);
    } else {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04X", static_cast<unsigned>(text[i]));
      printable += escape;
    }
  }
  return printable;
}

std::string Printable(const OLECHAR* text) {
  if (!text) return "<null>";
  return Printable(text, std::char_traits<OLECHAR>::length(text));
}

std::ostream& operator<<(std::ostream& out, const RecordedPut& put) {
  return out << "\n    {\"" << put.name << "\", " << put.variantType << ", " << put.cimType
             << ", \"" << put.value << "\"}";
}

}  // namespace tqcim::testing
