#include <windows.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <span>
#include <string>
#include <type_traits>

namespace {

constexpr char32_t kReplacement = 0xFFFD;

/// Where converted text goes: all of it is counted, what fits is written.
template <typename Unit>
class Output {
 public:
  Output(Unit* text, int room) : text_(text), room_(static_cast<size_t>(room)) {}

  void Put(char32_t unit) {
    if (length_ < room_) text_[length_] = static_cast<Unit>(unit);
    ++length_;
  }

  /// ASCII is the same in both forms: puts what there is of it at the front, and says how much.
  template <typename Other>
  size_t PutAscii(std::span<const Other> units) {
    const auto is_ascii = [&](size_t i) {
      return static_cast<std::make_unsigned_t<Other>>(units[i]) < 0x80;
    };
    const size_t fitting = std::min(units.size(), room_ - std::min(room_, length_));
    size_t count = 0;
    for (; count < fitting && is_ascii(count); ++count) {
      text_[length_ + count] = static_cast<Unit>(units[count]);
    }
    if (count == fitting) {
      while (count < units.size() && is_ascii(count)) ++count;
    }
    length_ += count;
    return count;
  }

  /// The platform's result: what was written, or is needed where no room was given; 0 for too
  /// little room.
  int Result() const {
    const bool fits = room_ == 0 || length_ <= room_;
    return fits && length_ <= std::numeric_limits<int>::max() ? static_cast<int>(length_) : 0;
  }

 private:
  Unit* text_;
  size_t room_;
  size_t length_ = 0;
};

bool AreArgumentsValid(UINT codePage, DWORD flags, const void* source, int sourceLength,
                       const void* destination, int room) {
  return (codePage == CP_ACP || codePage == CP_UTF8) && flags == 0 && source != nullptr &&
         sourceLength != 0 && room >= 0 && (room == 0 || destination != nullptr);
}

/// The text to convert; a negative length means up to and with the terminator.
template <typename Unit>
std::span<const Unit> Source(const Unit* text, int length) {
  return {text,
          length < 0 ? std::char_traits<Unit>::length(text) + 1 : static_cast<size_t>(length)};
}

/// The bytes that follow a lead byte beyond ASCII, and how many (Unicode 15.0, table 3-7); none
/// where it leads nothing. Only the first of them has bounds of its own; the others are 80 to BF.
struct Sequence {
  int trailing;
  uint8_t firstLow;
  uint8_t firstHigh;
};

Sequence SequenceOf(uint8_t lead) {
  if (lead >= 0xC2 && lead <= 0xDF) return {1, 0x80, 0xBF};
  if (lead == 0xE0) return {2, 0xA0, 0xBF};
  if (lead == 0xED) return {2, 0x80, 0x9F};
  if (lead >= 0xE1 && lead <= 0xEF) return {2, 0x80, 0xBF};
  if (lead == 0xF0) return {3, 0x90, 0xBF};
  if (lead >= 0xF1 && lead <= 0xF3) return {3, 0x80, 0xBF};
  if (lead == 0xF4) return {3, 0x80, 0x8F};
  return {0, 0, 0};
}

/// Takes one character beyond ASCII off the front of the bytes.
char32_t TakeCharacter(std::span<const char>& bytes) {
  const auto lead = static_cast<uint8_t>(bytes.front());
  bytes = bytes.subspan(1);
  const Sequence sequence = SequenceOf(lead);
  if (sequence.trailing == 0) return kReplacement;
  char32_t character = lead & (0x3FU >> sequence.trailing);
  uint8_t low = sequence.firstLow;
  uint8_t high = sequence.firstHigh;
  for (int i = 0; i < sequence.trailing; ++i) {
    if (bytes.empty()) return kReplacement;
    const auto byte = static_cast<uint8_t>(bytes.front());
    if (byte < low || byte > high) return kReplacement;
    bytes = bytes.subspan(1);
    character = character << 6 | (byte & 0x3FU);
    low = 0x80;
    high = 0xBF;
  }
  return character;
}

bool IsHighSurrogate(char32_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsLowSurrogate(char32_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// Takes one character off the front of the UTF-16 code units.
char32_t TakeCharacter(std::span<const WCHAR>& units) {
  const char32_t unit = units.front();
  units = units.subspan(1);
  if (IsHighSurrogate(unit) && !units.empty() && IsLowSurrogate(units.front())) {
    const char32_t low = units.front();
    units = units.subspan(1);
    return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
  }
  return IsHighSurrogate(unit) || IsLowSurrogate(unit) ? kReplacement : unit;
}

void Put(Output<WCHAR>& wide, char32_t character) {
  if (character < 0x10000) return wide.Put(character);
  wide.Put(0xD800 + ((character - 0x10000) >> 10));
  wide.Put(0xDC00 + ((character - 0x10000) & 0x3FF));
}

/// One that is not ASCII.
void Put(Output<char>& narrow, char32_t character) {
  if (character < 0x800) {
    narrow.Put(0xC0 | character >> 6);
  } else {
    if (character < 0x10000) {
      narrow.Put(0xE0 | character >> 12);
    } else {
      narrow.Put(0xF0 | character >> 18);
      narrow.Put(0x80 | (character >> 12 & 0x3F));
    }
    narrow.Put(0x80 | (character >> 6 & 0x3F));
  }
  narrow.Put(0x80 | (character & 0x3F));
}

/// Converts a text, most of which is ASCII from end to end.
template <typename From, typename To>
void Convert(std::span<const From> rest, Output<To>& output) {
  for (;;) {
    rest = rest.subspan(output.PutAscii(rest));
    if (rest.empty()) return;
    Put(output, TakeCharacter(rest));
  }
}

}  // namespace

int MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR narrow, int narrowLength, LPWSTR wide,
                        int wideRoom) {
  if (!AreArgumentsValid(codePage, flags, narrow, narrowLength, wide, wideRoom)) return 0;
  Output<WCHAR> output(wide, wideRoom);
  Convert(Source(narrow, narrowLength), output);
  return output.Result();
}

int WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR wide, int wideLength, LPSTR narrow,
                        int narrowRoom, LPCSTR defaultChar, LPBOOL usedDefaultChar) {
  if (!AreArgumentsValid(codePage, flags, wide, wideLength, narrow, narrowRoom)) return 0;
  if (defaultChar != nullptr || usedDefaultChar != nullptr) return 0;
  Output<char> output(narrow, narrowRoom);
  Convert(Source(wide, wideLength), output);
  return output.Result();
}
