#include "host/path_object.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "host/cim_variant.h"
#include "host/text.h"

namespace tqcim::host {
namespace {

/// Copies a text out by the platform's length protocol.
HRESULT CopyOut(std::string_view text, ULONG* length, LPWSTR buffer) {
  if (!length) return kInvalidParameter;
  const WideText wide = ToWide(text);
  const ULONG needed = static_cast<ULONG>(wide.size()) + 1;
  const ULONG room = std::exchange(*length, needed);
  if (!buffer) return S_OK;
  if (room < needed) return kBufferTooSmall;
  std::copy_n(wide.c_str(), needed, buffer);
  return S_OK;
}

/// The type that the platform's parser sees in a key's value.
CimType ApparentType(const Scalar& value) {
  if (std::holds_alternative<bool>(value)) return CimType::kBoolean;
  if (std::holds_alternative<std::string>(value)) return CimType::kString;
  if (std::holds_alternative<uint64_t>(value)) return CimType::kUint64;
  const int64_t number = std::get<int64_t>(value);
  const bool small = number >= std::numeric_limits<int32_t>::min() &&
                     number <= std::numeric_limits<int32_t>::max();
  return small ? CimType::kSint32 : CimType::kSint64;
}

class KeyList final : public RefusingKeyList<ComObject<IWbemPathKeyList, IID_IWbemPathKeyList>> {
 public:
  explicit KeyList(std::vector<PathKey> keys) : keys_(std::move(keys)) {}

  HRESULT STDMETHODCALLTYPE GetCount(ULONG* count) override {
    if (!count) return kInvalidParameter;
    *count = static_cast<ULONG>(keys_.size());
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE GetKey2(ULONG index, ULONG flags, ULONG* length, LPWSTR name,
                                    VARIANT* value, ULONG* apparent_type) override {
    if (index >= keys_.size() || flags != 0 || !length || !value) return kInvalidParameter;
    const PathKey& key = keys_[index];
    const HRESULT copied = CopyOut(key.name, length, name);
    if (FAILED(copied)) return copied;
    const CimType type = ApparentType(key.value);
    OwnedVariant held = ToVariant(ToValue(key.value), type, false);
    *value = held;
    VariantInit(&held);
    if (apparent_type) *apparent_type = static_cast<ULONG>(type);
    return S_OK;
  }

 private:
  std::vector<PathKey> keys_;
};

}  // namespace

HRESULT PathObject::SetText(ULONG mode, LPCWSTR text) {
  path_.reset();
  if (mode != WBEMPATH_CREATE_ACCEPT_ALL || !text) return kInvalidParameter;
  if (text[0] == OLECHAR{}) return S_OK;
  try {
    path_ = ParseObjectPath(ToUtf8(text));
  } catch (const PathError&) {
    return kInvalidObjectPath;
  }
  return S_OK;
}

HRESULT PathObject::GetClassName(ULONG* length, LPWSTR name) {
  if (!path_ || path_->class_name.empty()) return kInvalidObjectPath;
  return CopyOut(path_->class_name, length, name);
}

HRESULT PathObject::GetKeyList(IWbemPathKeyList** keys) {
  if (!keys) return kInvalidParameter;
  *keys = nullptr;
  if (!path_ || path_->class_name.empty()) return kInvalidParameter;
  *keys = new KeyList(path_->keys);
  return S_OK;
}

}  // namespace tqcim::host
