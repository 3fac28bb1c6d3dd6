/// The keys of an object path, as the path parser hands them to a handler.
#pragma once

#include <map>
#include <optional>
#include <string_view>
#include <vector>

#include "core/variant.h"
#include "tests/support/refusing_interfaces.h"

namespace tqcim::testing {

/// One key: its name, its value and what the path itself takes the value for.
struct FakeKey {
  const OLECHAR* name;
  Variant value;
  ULONG apparentType;
};

/// Name="text".
FakeKey StringKey(const OLECHAR* name, const OLECHAR* text);
/// Name=number.
FakeKey NumberKey(const OLECHAR* name, int32_t number);

/// Counts the calls and fails them on demand.
class FakeKeyList final : public RefusingKeyList {
 public:
  FakeKeyList() : RefusingKeyList("a key list") {}

  FakeKeyList& Add(FakeKey key) {
    keys_.push_back(std::move(key));
    return *this;
  }

  /// Expects room for 256 characters of a name.
  HRESULT STDMETHODCALLTYPE GetKey2(ULONG index, ULONG flags, ULONG* nameRoom, LPWSTR name,
                                    VARIANT* value, ULONG* apparentType) override;
  HRESULT STDMETHODCALLTYPE GetCount(ULONG* count) override;

  void FailCount(HRESULT result) { countResult_ = result; }
  /// What reading the key at `index` returns. A success gives the key all the same.
  void FailKey(ULONG index, HRESULT result) { keyResults_[index] = result; }

  /// The indexes that were read, in order.
  const std::vector<ULONG>& Reads() const { return reads_; }

 private:
  std::vector<FakeKey> keys_;
  HRESULT countResult_ = S_OK;
  std::map<ULONG, HRESULT> keyResults_;
  std::vector<ULONG> reads_;
};

}  // namespace tqcim::testing
