#include <objbase.h>

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace {

constexpr std::u16string_view kPattern = u"{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}";
constexpr int kRoom = static_cast<int>(kPattern.size()) + 1;

/// The value of a hexadecimal digit, or -1.
int DigitValue(OLECHAR c) {
  if (c >= u'0' && c <= u'9') return c - u'0';
  if (c >= u'a' && c <= u'f') return c - u'a' + 10;
  if (c >= u'A' && c <= u'F') return c - u'A' + 10;
  return -1;
}

/// The bytes that the digits of the text stand for, in the order of the text.
bool ReadBytes(std::u16string_view text, uint8_t (&bytes)[16]) {
  if (text.size() != kPattern.size()) return false;
  size_t digits = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    if (kPattern[i] != u'x') {
      if (text[i] != kPattern[i]) return false;
      continue;
    }
    const int value = DigitValue(text[i]);
    if (value < 0) return false;
    uint8_t& byte = bytes[digits++ / 2];
    byte = static_cast<uint8_t>(byte << 4 | value);
  }
  return true;
}

}  // namespace

int StringFromGUID2(REFGUID guid, LPOLESTR text, int room) {
  if (room < kRoom) return 0;
  char narrow[kRoom];
  const auto& tail = guid.Data4;
  std::snprintf(narrow, sizeof(narrow), "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}",
                guid.Data1, guid.Data2, guid.Data3, tail[0], tail[1], tail[2], tail[3], tail[4],
                tail[5], tail[6], tail[7]);
  std::copy(narrow, narrow + kRoom, text);
  return kRoom;
}

HRESULT StringFromCLSID(REFCLSID clsid, LPOLESTR* text) {
  if (text == nullptr) return E_INVALIDARG;
  *text = static_cast<LPOLESTR>(CoTaskMemAlloc(kRoom * sizeof(OLECHAR)));
  if (*text == nullptr) return E_OUTOFMEMORY;
  StringFromGUID2(clsid, *text, kRoom);
  return S_OK;
}

HRESULT CLSIDFromString(LPCOLESTR text, LPCLSID clsid) {
  if (clsid == nullptr) return E_INVALIDARG;
  *clsid = CLSID{};
  if (text == nullptr) return S_OK;
  uint8_t b[16] = {};
  if (!ReadBytes(text, b)) return CO_E_CLASSSTRING;
  clsid->Data1 = uint32_t{b[0]} << 24 | uint32_t{b[1]} << 16 | uint32_t{b[2]} << 8 | b[3];
  clsid->Data2 = static_cast<uint16_t>(b[4] << 8 | b[5]);
  clsid->Data3 = static_cast<uint16_t>(b[6] << 8 | b[7]);
  std::copy(b + 8, b + 16, clsid->Data4);
  return S_OK;
}
