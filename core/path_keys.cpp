#include "core/path_keys.h"

#include "core/results.h"
#include "core/text.h"

namespace tqcim {
namespace {

constexpr ULONG kNameSize = 256;

struct ReadKey {
  OLECHAR name[kNameSize] = {};
  Variant value;
  ULONG apparentType = 0;
};

/// Reads the keys in order until one is wanted.
template <typename Predicate>
PathKey Find(IWbemPathKeyList* keys, UnreadableKey unreadable, Predicate isWanted) {
  if (!keys) return {kNotFound, false, {}};
  ULONG count = 0;
  HRESULT status = keys->GetCount(&count);
  if (FAILED(status)) return {status, false, {}};
  for (ULONG i = 0; i < count; ++i) {
    ReadKey key;
    ULONG nameSize = kNameSize;
    status = keys->GetKey2(i, 0, &nameSize, key.name, key.value.get(), &key.apparentType);
    if (SUCCEEDED(status) && isWanted(key)) return {status, true, std::move(key.value)};
    if (FAILED(status) && unreadable == UnreadableKey::kEndsTheSearch) break;
  }
  return {status, false, {}};
}

}  // namespace

PathKey FindTextKey(IWbemPathKeyList* keys, const OLECHAR* name, TextKey kind,
                    UnreadableKey unreadable) {
  return Find(keys, unreadable, [&](const ReadKey& key) {
    const bool isText = kind == TextKey::kByApparentType ? key.apparentType == CIM_STRING
                                                         : V_VT(&*key.value) == VT_BSTR;
    return isText && EqualIgnoringCase(key.name, name);
  });
}

PathKey FindKey(IWbemPathKeyList* keys, const OLECHAR* name) {
  return Find(keys, UnreadableKey::kIsPassedOver,
              [&](const ReadKey& key) { return EqualIgnoringCase(key.name, name); });
}

PathKey FirstKey(IWbemPathKeyList* keys) {
  return Find(keys, UnreadableKey::kEndsTheSearch, [](const ReadKey&) { return true; });
}

int32_t NumberOf(const Variant& value) {
  return V_VT(&*value) == VT_BSTR ? ScanDecimal(value.text()) : V_I4(&*value);
}

}  // namespace tqcim
