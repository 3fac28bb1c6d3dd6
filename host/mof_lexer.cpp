#include "host/mof_lexer.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "host/text.h"

namespace tqcim::host {
namespace {

/// The longest name that the platform takes. Errors quote words in full.
constexpr size_t kLongestWord = 255;

bool IsHexDigit(char c) {
  return IsDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}
bool IsIdentifierStart(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

/// By byte, whether it goes on with an identifier: nearly all tokens are identifiers.
constexpr auto kGoesOn = [] {
  std::array<bool, 256> goes_on{};
  for (const char c : std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_"
                                       "0123456789")) {
    goes_on[static_cast<unsigned char>(c)] = true;
  }
  return goes_on;
}();

/// The value of a number's digits: decimal, 0x... hexadecimal, 0... octal, ...b binary. Nothing if
/// they are not a number, or too large for 64 bits.
bool ReadInteger(std::string_view digits, bool negative, MofToken& token) {
  int base = 10;
  if (digits.size() > 2 && digits[0] == '0' && (digits[1] == 'x' || digits[1] == 'X')) {
    digits.remove_prefix(2);
    base = 16;
  } else if (digits.ends_with('b') || digits.ends_with('B')) {
    digits.remove_suffix(1);
    base = 2;
  } else if (digits.size() > 1 && digits[0] == '0') {
    base = 8;
  }
  uint64_t magnitude = 0;
  const auto [end, error] =
      std::from_chars(digits.data(), digits.data() + digits.size(), magnitude, base);
  if (error != std::errc() || end != digits.data() + digits.size()) return false;
  constexpr uint64_t kLargest = INT64_MAX;
  if (negative) {
    if (magnitude > kLargest + 1) return false;
    token.number = static_cast<int64_t>(0 - magnitude);
  } else if (magnitude > kLargest) {
    token.number = magnitude;
  } else {
    token.number = static_cast<int64_t>(magnitude);
  }
  return true;
}

void RequireLength(std::string_view word, const MofPlace& place) {
  if (word.size() <= kLongestWord) return;
  throw MofError(place, "a word of more than " + std::to_string(kLongestWord) + " characters");
}

std::string AsUtf8(char32_t character) {
  const auto unit = static_cast<OLECHAR>(character);
  return ToUtf8(WideView(&unit, 1));
}

}  // namespace

MofError::MofError(const MofPlace& place, const std::string& reason)
    : std::runtime_error(*place.file + ":" + std::to_string(place.line) + ":" +
                         std::to_string(place.column) + ": " + reason) {}

bool MofToken::IsWord(std::string_view keyword) const {
  return kind == Kind::kIdentifier && EqualNames(text, keyword);
}

std::string MofToken::Describe() const {
  switch (kind) {
    case Kind::kIdentifier:
    case Kind::kPunctuation:
      return "'" + std::string(text) + "'";
    case Kind::kText:
      return "a text";
    case Kind::kCharacter:
      return "a character";
    case Kind::kInteger:
    case Kind::kReal:
      return "a number";
    case Kind::kEnd:
      break;
  }
  return "the end of the text";
}

MofLexer::MofLexer(const std::string& file, std::string_view text) : file_(&file), text_(text) {
  if (text_.starts_with("\xEF\xBB\xBF")) text_.remove_prefix(3);
}

void MofLexer::SkipBlanks() {
  for (; !AtEnd(); ++position_) {
    const char c = text_[position_];
    if (c == '\n') {
      ++line_;
      line_start_ = position_ + 1;
    } else if (c == '/' && (Peek(1) == '/' || Peek(1) == '*')) {
      SkipComment();
    } else if (c != ' ' && c != '\t' && c != '\r') {
      return;
    }
  }
}

/// Up to the last character of a comment.
void MofLexer::SkipComment() {
  const bool to_line_end = Peek(1) == '/';
  const size_t end = text_.find(to_line_end ? "\n" : "*/", position_ + 2);
  if (to_line_end) {
    position_ = std::min(end, text_.size()) - 1;
    return;
  }
  if (end == std::string_view::npos) throw MofError(Place(), "the comment is not closed");
  for (; position_ <= end; ++position_) {
    if (text_[position_] != '\n') continue;
    ++line_;
    line_start_ = position_ + 1;
  }
}

MofToken MofLexer::Next() {
  SkipBlanks();
  MofToken token;
  token.place = Place();
  if (AtEnd()) return token;
  const char c = Peek();
  if (IsIdentifierStart(c)) {
    Identifier(token);
  } else if (c == '"') {
    token.kind = MofToken::Kind::kText;
    token.text = JoinedTexts();
  } else if (std::string_view("[]{}():;,=#$").find(c) != std::string_view::npos) {
    token.kind = MofToken::Kind::kPunctuation;
    token.text = text_.substr(position_++, 1);
  } else if (IsDigit(c) || ((c == '+' || c == '-' || c == '.') && IsDigit(Peek(1)))) {
    Number(token);
  } else if (c == '\'') {
    Character(token);
  } else {
    throw MofError(token.place, "a character that MOF has no use for");
  }
  return token;
}

void MofLexer::Identifier(MofToken& token) {
  token.kind = MofToken::Kind::kIdentifier;
  const size_t start = position_;
  while (!AtEnd() && kGoesOn[static_cast<unsigned char>(text_[position_])]) ++position_;
  token.text = Since(start);
  RequireLength(token.text, token.place);
}

void MofLexer::Character(MofToken& token) {
  token.kind = MofToken::Kind::kCharacter;
  const WideText characters = ToWide(QuotedText('\''));
  if (characters.size() != 1) {
    throw MofError(token.place, "between single quotes stands one character");
  }
  token.number = static_cast<int64_t>(characters[0]);
}

void MofLexer::Number(MofToken& token) {
  const bool negative = Peek() == '-';
  if (negative || Peek() == '+') ++position_;
  const size_t start = position_;
  bool real = false;
  while (IsIdentifierStart(Peek()) || IsDigit(Peek()) || Peek() == '.' ||
         ((Peek() == '+' || Peek() == '-') && real && (text_[position_ - 1] | 0x20) == 'e')) {
    real = real || Peek() == '.';
    ++position_;
  }
  const std::string_view digits = Since(start);
  RequireLength(digits, token.place);
  if (real) {
    token.kind = MofToken::Kind::kReal;
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error == std::errc() && end == digits.data() + digits.size()) {
      token.number = negative ? -value : value;
      return;
    }
  } else {
    token.kind = MofToken::Kind::kInteger;
    if (ReadInteger(digits, negative, token)) return;
  }
  throw MofError(token.place, "'" + std::string(digits) + "' is not a number that fits 64 bits");
}

std::string_view MofLexer::JoinedTexts() {
  const std::string_view first = QuotedText('"');
  SkipBlanks();
  if (Peek() != '"') return first;
  std::string& joined = composed_.emplace_back(first);
  for (; Peek() == '"'; SkipBlanks()) joined += QuotedText('"');
  return joined;
}

// One pass that stops at the first of the three: to look for each of them would read a text of many
// escapes to its end at every one.
void MofLexer::SkipPlainText(char quote) {
  const auto stop =
      std::find_if(text_.begin() + static_cast<std::ptrdiff_t>(position_), text_.end(),
                   [quote](char c) { return c == quote || c == '\\' || c == '\n'; });
  position_ = static_cast<size_t>(stop - text_.begin());
}

std::string_view MofLexer::QuotedText(char quote) {
  const MofPlace place = Place();
  const size_t start = ++position_;
  std::string* unescaped = nullptr;
  size_t piece = start;
  for (SkipPlainText(quote); Peek() != quote; SkipPlainText(quote)) {
    if (Peek() != '\\') throw MofError(place, "the text is not closed on its line");
    if (!unescaped) unescaped = &composed_.emplace_back();
    *unescaped += Since(piece);
    *unescaped += AsUtf8(EscapedCharacter());
    piece = position_;
  }
  const std::string_view last = Since(piece);
  ++position_;
  if (!unescaped) return last;
  return *unescaped += last;
}

char32_t MofLexer::EscapedCharacter() {
  const MofPlace start = Place();
  ++position_;
  const char c = Peek();
  if (!AtEnd()) ++position_;
  switch (c) {
    case 'b':
      return '\b';
    case 't':
      return '\t';
    case 'n':
      return '\n';
    case 'f':
      return '\f';
    case 'r':
      return '\r';
    case '"':
    case '\'':
    case '\\':
      return static_cast<unsigned char>(c);
    default:
      break;
  }
  std::string digits;
  while ((c == 'x' || c == 'X') && digits.size() < 4 && IsHexDigit(Peek())) {
    digits += Peek();
    ++position_;
  }
  if (digits.empty()) throw MofError(start, "MOF has no such escape");
  uint32_t value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
  return value;
}

}  // namespace tqcim::host
