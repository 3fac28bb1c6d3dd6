#include "platform/posix/bstr.h"

#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>

#include "platform/posix/ledger.h"

namespace {

/// What stands before the text; the padding keeps the text aligned.
struct Prefix {
  uint32_t padding;
  uint32_t lengthInBytes;
};

constexpr size_t kMaxLengthInBytes = std::numeric_limits<UINT>::max() - sizeof(Prefix) - 2;

Prefix* PrefixOf(BSTR text) {
  return reinterpret_cast<Prefix*>(text) - 1;
}

BSTR Allocate(const void* contents, size_t lengthInBytes) {
  if (lengthInBytes > kMaxLengthInBytes) return nullptr;
  auto* prefix =
      static_cast<Prefix*>(std::malloc(sizeof(Prefix) + lengthInBytes + sizeof(OLECHAR)));
  if (prefix == nullptr) return nullptr;
  prefix->lengthInBytes = static_cast<uint32_t>(lengthInBytes);
  auto* bytes = reinterpret_cast<char*>(prefix + 1);
  if (contents != nullptr) std::memcpy(bytes, contents, lengthInBytes);
  std::memset(bytes + lengthInBytes, 0, sizeof(OLECHAR));
  ++tqcim::runtime::liveBstrs;
  return reinterpret_cast<BSTR>(bytes);
}

}  // namespace

BSTR SysAllocString(const OLECHAR* text) {
  if (text == nullptr) return nullptr;
  return Allocate(text, std::char_traits<OLECHAR>::length(text) * sizeof(OLECHAR));
}

BSTR SysAllocStringLen(const OLECHAR* text, UINT length) {
  return Allocate(text, size_t{length} * sizeof(OLECHAR));
}

BSTR SysAllocStringByteLen(LPCSTR bytes, UINT length) {
  return Allocate(bytes, length);
}

void SysFreeString(BSTR text) {
  if (text == nullptr) return;
  --tqcim::runtime::liveBstrs;
  std::free(PrefixOf(text));
}

UINT SysStringByteLen(BSTR text) {
  return text == nullptr ? 0 : PrefixOf(text)->lengthInBytes;
}

UINT SysStringLen(BSTR text) {
  return SysStringByteLen(text) / UINT{sizeof(OLECHAR)};
}

HRESULT tqcim::runtime::CopyBstr(BSTR text, BSTR* copy) {
  *copy = text == nullptr ? nullptr : Allocate(text, SysStringByteLen(text));
  return text != nullptr && *copy == nullptr ? E_OUTOFMEMORY : S_OK;
}
