/// The values that instances are given.
#pragma once

#include <cstdint>
#include <span>

#include "platform/com.h"

namespace tqcim {

/// Owns a VARIANT. Each maker names the VARIANT type that it gives.
class Variant {
 public:
  /// VT_BSTR; a null text gives a null string.
  static Variant Text(const OLECHAR* text) { return Text(Bstr(text)); }
  static Variant Text(Bstr text);
  /// VT_BSTR from narrow text, converted with the ANSI code page.
  static Variant Text(const char* text);
  /// VT_I4. Unsigned 32-bit values keep their bits.
  static Variant Int32(int32_t value);
  static Variant Int32(uint32_t value) { return Int32(static_cast<int32_t>(value)); }
  /// VT_UI1.
  static Variant Uint8(uint8_t value);
  /// VT_BOOL that carries `value` as it is: existing consumers see the store's 1, not the all-ones
  /// true.
  static Variant Bool(VARIANT_BOOL value);
  /// VT_I2.
  static Variant Int16(int16_t value);
  /// VT_ARRAY of VT_I4, VT_I2 and VT_BSTR, lower bound 0.
  static Variant Int32Array(std::span<const int32_t> values);
  static Variant Int16Array(std::span<const int16_t> values);
  static Variant TextArray(std::span<const OLECHAR* const> texts);

  VARIANT* get() { return &value_; }
  const VARIANT& operator*() const { return value_; }
  /// The text of a VT_BSTR; null for a null string and for any other type.
  const OLECHAR* text() const { return V_VT(&value_) == VT_BSTR ? V_BSTR(&value_) : nullptr; }

 private:
  template <typename T, typename MakeElement>
  static Variant Array(VARTYPE elementType, std::span<T> values, MakeElement makeElement);

  OwnedVariant value_;
};

}  // namespace tqcim
