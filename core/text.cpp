#include "core/text.h"

#include <iterator>

#include "platform/libraries.h"

namespace tqcim {
namespace {

OLECHAR LowerCase(OLECHAR c) {
  return c >= OLECHAR{'A'} && c <= OLECHAR{'Z'} ? static_cast<OLECHAR>(c + ('a' - 'A')) : c;
}

template <typename Char>
int32_t ScanDecimalText(const Char* text) {
  if (!text) return 0;
  while (*text == Char{' '} || (*text >= Char{'\t'} && *text <= Char{'\r'})) ++text;
  const bool negative = *text == Char{'-'};
  if (negative || *text == Char{'+'}) ++text;
  uint32_t number = 0;
  for (; *text >= Char{'0'} && *text <= Char{'9'}; ++text) {
    number = number * 10 + static_cast<uint32_t>(*text - Char{'0'});
  }
  return static_cast<int32_t>(negative ? 0 - number : number);
}

}  // namespace

Bstr NarrowToBstr(const char* text) {
  if (!text) return {};
  // Hardly a text is longer than this: one conversion does, where others need one to be measured.
  OLECHAR few[128];
  const int fewLength = MultiByteToWideChar(CP_ACP, 0, text, -1, few, std::size(few));
  if (fewLength > 0) {
    return Bstr::Adopt(SysAllocStringLen(few, static_cast<UINT>(fewLength - 1)));
  }
  const int length = MultiByteToWideChar(CP_ACP, 0, text, -1, nullptr, 0);
  if (length <= 0) return {};
  Bstr converted = Bstr::Adopt(SysAllocStringLen(nullptr, static_cast<UINT>(length - 1)));
  if (converted.get()) MultiByteToWideChar(CP_ACP, 0, text, -1, converted.get(), length);
  return converted;
}

std::unique_ptr<char[]> BstrToNarrow(const OLECHAR* text) {
  if (!text) return nullptr;
  const int length = WideCharToMultiByte(CP_ACP, 0, text, -1, nullptr, 0, nullptr, nullptr);
  if (length <= 0) return nullptr;
  auto converted = std::make_unique<char[]>(static_cast<size_t>(length));
  WideCharToMultiByte(CP_ACP, 0, text, -1, converted.get(), length, nullptr, nullptr);
  return converted;
}

Ucs2Text::Ucs2Text(const char* narrow) {
  uint32_t size = kSizeInBytes;
  SMUTF8StrToUCS2Str(text_, &size, narrow);
}

bool EqualIgnoringCase(const OLECHAR* a, const OLECHAR* b) {
  if (!a || !b) return false;
  while (*a && LowerCase(*a) == LowerCase(*b)) ++a, ++b;
  return LowerCase(*a) == LowerCase(*b);
}

bool Equal(const OLECHAR* a, const OLECHAR* b) {
  if (!a || !b) return false;
  while (*a && *a == *b) ++a, ++b;
  return *a == *b;
}

int32_t ScanDecimal(const OLECHAR* text) {
  return ScanDecimalText(text);
}
int32_t ScanDecimal(const char* text) {
  return ScanDecimalText(text);
}
int32_t ScanAsNarrow(const OLECHAR* text) {
  return ScanDecimal(BstrToNarrow(text).get());
}

}  // namespace tqcim
