/// Owners of COM interfaces and of automation values.
#pragma once

#include <cstdint>
#include <span>
#include <utility>

#include "platform/wmi.h"

namespace tqcim {

/// Owns one reference of a COM interface.
template <typename T>
class Com {
 public:
  Com() = default;
  explicit Com(T* owned) : pointer_(owned) {}
  Com(Com&& other) noexcept : pointer_(std::exchange(other.pointer_, nullptr)) {}
  Com& operator=(Com&& other) noexcept {
    std::swap(pointer_, other.pointer_);
    return *this;
  }
  ~Com() { Release(); }

  T* get() const { return pointer_; }
  T* operator->() const { return pointer_; }
  explicit operator bool() const { return pointer_ != nullptr; }

  /// Where a call that hands out a reference writes it. Must be empty.
  T** Receive() { return &pointer_; }
  void** ReceiveVoid() { return reinterpret_cast<void**>(&pointer_); }

  /// Gives the reference up without releasing it.
  T* Detach() { return std::exchange(pointer_, nullptr); }

  /// Gives the reference back early. The result is the interface's own Release result, 0 without an
  /// interface.
  ULONG Release() {
    T* const released = Detach();
    return released ? released->Release() : 0;
  }

 private:
  T* pointer_ = nullptr;
};

/// Owns a BSTR.
class Bstr {
 public:
  Bstr() = default;
  explicit Bstr(const OLECHAR* text) : text_(SysAllocString(text)) {}
  /// Takes over `text`.
  static Bstr Adopt(BSTR text) {
    Bstr owner;
    owner.text_ = text;
    return owner;
  }
  Bstr(Bstr&& other) noexcept : text_(other.release()) {}
  Bstr& operator=(Bstr&& other) noexcept {
    std::swap(text_, other.text_);
    return *this;
  }
  ~Bstr() { SysFreeString(text_); }

  BSTR get() const { return text_; }
  BSTR release() { return std::exchange(text_, nullptr); }

 private:
  BSTR text_ = nullptr;
};

/// Owns a VARIANT. Each maker names the VARIANT type that it gives.
class Variant {
 public:
  Variant() { VariantInit(&value_); }
  Variant(Variant&& other) noexcept : value_(other.value_) { VariantInit(&other.value_); }
  Variant& operator=(Variant&& other) noexcept {
    std::swap(value_, other.value_);
    return *this;
  }
  ~Variant() { VariantClear(&value_); }

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

  VARIANT value_;
};

}  // namespace tqcim
