/// Owners of COM references and automation values, and the base of the host's own COM objects.
#pragma once

#include <atomic>
#include <memory>

#include "host/text.h"
#include "platform/wmi.h"

namespace tqcim::host {

struct ComRelease {
  void operator()(IUnknown* object) const { object->Release(); }
};
/// Owns one reference.
template <typename T>
using ComPtr = std::unique_ptr<T, ComRelease>;

struct BstrFree {
  void operator()(BSTR text) const { SysFreeString(text); }
};
using BstrPtr = std::unique_ptr<OLECHAR, BstrFree>;

inline BstrPtr MakeBstr(WideView text) {
  return BstrPtr(SysAllocStringLen(text.data(), static_cast<UINT>(text.size())));
}
inline BstrPtr MakeBstr(std::string_view utf8) {
  return MakeBstr(ToWide(utf8));
}

/// A VARIANT that frees what it owns.
struct OwnedVariant : VARIANT {
  OwnedVariant() { VariantInit(this); }
  OwnedVariant(OwnedVariant&& other) noexcept : VARIANT(other) { VariantInit(&other); }
  OwnedVariant& operator=(OwnedVariant&& other) noexcept {
    std::swap(static_cast<VARIANT&>(*this), static_cast<VARIANT&>(other));
    return *this;
  }
  ~OwnedVariant() { VariantClear(this); }
};

/// Counts the host's COM objects that are alive in the process.
class LiveObject {
 public:
  LiveObject() { ++count_; }
  LiveObject(const LiveObject&) = delete;
  LiveObject& operator=(const LiveObject&) = delete;
  static int Count() { return count_; }

 protected:
  ~LiveObject() { --count_; }

 private:
  inline static std::atomic<int> count_ = 0;
};

/// A COM object of one interface beside IUnknown. It starts with one reference and deletes itself
/// with the last. The destructor takes a slot after those of the interface.
template <typename Interface, const IID& kInterfaceId>
class ComObject : public Interface, private LiveObject {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override {
    if (!object) return E_POINTER;
    const bool known = riid == IID_IUnknown || riid == kInterfaceId;
    *object = known ? static_cast<Interface*>(this) : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 protected:
  virtual ~ComObject() = default;

 private:
  std::atomic<ULONG> references_ = 1;
};

}  // namespace tqcim::host
