#include "tests/support/fake_key_list.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/fault.h"

namespace tqcim::testing {

FakeKey StringKey(const OLECHAR* name, const OLECHAR* text) {
  return {name, Variant::Text(text), CIM_STRING};
}

FakeKey NumberKey(const OLECHAR* name, int32_t number) {
  return {name, Variant::Int32(number), CIM_SINT32};
}

HRESULT FakeKeyList::GetCount(ULONG* count) {
  const OutsideCall call(Call::kKeys);
  if (call.Fails()) return call.Result();
  if (SUCCEEDED(countResult_)) *count = static_cast<ULONG>(keys_.size());
  return countResult_;
}

HRESULT FakeKeyList::GetKey2(ULONG index, ULONG flags, ULONG* nameRoom, LPWSTR name, VARIANT* value,
                             ULONG* apparentType) {
  const OutsideCall call(Call::kKeys);
  if (call.Fails()) return call.Result();
  EXPECT_EQ(0u, flags);
  EXPECT_EQ(256u, *nameRoom);
  reads_.push_back(index);
  const auto result = keyResults_.find(index);
  if (result != keyResults_.end() && FAILED(result->second)) return result->second;
  FakeKey& key = keys_.at(index);
  const size_t length = std::char_traits<OLECHAR>::length(key.name);
  std::copy_n(key.name, length + 1, name);
  *nameRoom = static_cast<ULONG>(length + 1);
  *apparentType = key.apparentType;
  const HRESULT copied = VariantCopy(value, key.value.get());
  // Windows makes an empty text of a null one.
  if (V_VT(value) == VT_BSTR && !V_BSTR(key.value.get())) {
    SysFreeString(std::exchange(V_BSTR(value), nullptr));
  }
  return SUCCEEDED(copied) && result != keyResults_.end() ? result->second : copied;
}

}  // namespace tqcim::testing
