/// The base of the host's own COM objects.
#pragma once

#include <atomic>
#include <string_view>

#include "host/text.h"
#include "platform/com.h"
#include "platform/shards.h"

namespace tqcim::host {

inline Bstr MakeBstr(std::string_view utf8) {
  return Bstr(ToWide(utf8));
}

/// Counts the host's COM objects that are alive in the process.
class LiveObject {
 public:
  LiveObject() { ++count_; }
  LiveObject(const LiveObject&) = delete;
  LiveObject& operator=(const LiveObject&) = delete;
  static int64_t Count() { return count_.Sum(); }

 protected:
  ~LiveObject() { --count_; }

 private:
  inline static ShardedCount count_;
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
