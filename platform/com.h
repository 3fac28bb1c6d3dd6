/// Owners of COM interfaces and of automation values.
#pragma once

#include <string_view>
#include <utility>

#include "platform/wmi.h"

namespace tqcim {

/// Owns one reference of a COM interface.
template <typename T>
class Com {
 public:
  Com() = default;
  explicit Com(T* owned) : pointer_(owned) {}
  Com(Com&& other) noexcept : pointer_(other.Detach()) {}
  Com& operator=(Com&& other) noexcept {
    std::swap(pointer_, other.pointer_);
    return *this;
  }
  ~Com() { Release(); }

  T* get() const { return pointer_; }
  T* operator->() const { return pointer_; }
  T& operator*() const { return *pointer_; }
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
  explicit Bstr(std::basic_string_view<OLECHAR> text)
      : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
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

/// A VARIANT that frees what it holds.
struct OwnedVariant : VARIANT {
  OwnedVariant() { VariantInit(this); }
  OwnedVariant(OwnedVariant&& other) noexcept : VARIANT(other) { VariantInit(&other); }
  OwnedVariant& operator=(OwnedVariant&& other) noexcept {
    std::swap(static_cast<VARIANT&>(*this), static_cast<VARIANT&>(other));
    return *this;
  }
  ~OwnedVariant() { VariantClear(this); }
};

}  // namespace tqcim
