#include "host/mof_lexer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "host/text.h"

namespace tqcim::host {
namespace {

/// The longest name that the platform takes. Errors quote words in full.
constexpr size_t kLongestWord = 255;

/// What a byte can begin, or go on with.
enum class Sort : uint8_t {
  kNone,
  kBlank,
  kLetter,
  kDigit,
  kSign,
  kPoint,
  kPunctuation,
  kQuote,
  kComment
};

constexpr auto kSorts = [] {
  constexpr std::pair<std::string_view, Sort> kMembers[] = {
      {" \t\r\n", Sort::kBlank},
      {"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_", Sort::kLetter},
      {"0123456789", Sort::kDigit},
      {"+-", Sort::kSign},
      {".", Sort::kPoint},
      {"[]{}():;,=#$", Sort::kPunctuation},
      {"\"'", Sort::kQuote},
      {"/", Sort::kComment}};
  std::array<Sort, 256> sorts{};
  for (const auto& [members, sort] : kMembers) {
    for (const char c : members) sorts[static_cast<unsigned char>(c)] = sort;
  }
  return sorts;
}();

Sort SortOf(char c) {
  return kSorts[static_cast<unsigned char>(c)];
}
constexpr auto IsWordCharacter = [](char c) {
  return SortOf(c) == Sort::kLetter || SortOf(c) == Sort::kDigit;
};

constexpr std::string_view kEscapes = "btnfr\"'\\";
constexpr std::string_view kEscaped = "\b\t\n\f\r\"'\\";

/// Nothing for digits that are not a number, or one too large for 64 bits.
std::optional<Scalar> IntegerOf(std::string_view digits, bool negative) {
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
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  constexpr uint64_t kLargest = INT64_MAX;
  if (!negative && magnitude > kLargest) return magnitude;
  if (magnitude > kLargest + 1) return std::nullopt;
  return static_cast<int64_t>(negative ? 0 - magnitude : magnitude);
}

std::optional<Scalar> RealOf(std::string_view digits, bool negative) {
  double value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return negative ? -value : value;
}

/// The value of a number: decimal, 0x... hexadecimal, 0... octal, ...b binary, real with a point.
/// Nothing if it is none, or too large.
std::optional<Scalar> NumberOf(std::string_view text) {
  const bool negative = text.starts_with('-');
  std::string_view digits = text;
  if (negative || text.starts_with('+')) digits.remove_prefix(1);
  return digits.find('.') == std::string_view::npos ? IntegerOf(digits, negative)
                                                    : RealOf(digits, negative);
}

}  // namespace

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

Scalar LiteralOf(const MofToken& token) {
  if (token.kind == MofToken::Kind::kInteger || token.kind == MofToken::Kind::kReal) {
    return *NumberOf(token.text);
  }
  const MofSource source{{}, token.text};
  MofLexer lexer(source);
  std::string meaning;
  if (token.kind == MofToken::Kind::kText) {
    lexer.JoinedTexts(&meaning);
    return meaning;
  }
  lexer.QuotedText('\'', &meaning);
  return static_cast<int64_t>(ToWide(meaning)[0]);
}

void MofLexer::Refuse(size_t position, std::string_view reason) const {
  throw MofError(source_, text_.substr(position), std::string(reason));
}

void MofLexer::SkipBlanks() {
  for (;;) {
    SkipAll([](char c) { return SortOf(c) == Sort::kBlank; });
    if (Peek() != '/' || (Peek(1) != '/' && Peek(1) != '*')) return;
    SkipComment();
  }
}

void MofLexer::SkipComment() {
  const bool to_line_end = Peek(1) == '/';
  const size_t end = text_.find(to_line_end ? "\n" : "*/", position_ + 2);
  if (to_line_end) {
    position_ = std::min(end, text_.size());
  } else if (end == std::string_view::npos) {
    Refuse(position_, "the comment is not closed");
  } else {
    position_ = end + 2;
  }
}

void MofLexer::RequireLength(size_t start) const {
  if (position_ - start <= kLongestWord) return;
  Refuse(start, "a word of more than " + std::to_string(kLongestWord) + " characters");
}

MofToken::Kind MofLexer::Identifier() {
  const size_t start = position_;
  SkipAll(IsWordCharacter);
  RequireLength(start);
  return MofToken::Kind::kIdentifier;
}

MofToken::Kind MofLexer::Pass() {
  if (AtEnd()) return MofToken::Kind::kEnd;
  switch (SortOf(Peek())) {
    case Sort::kLetter:
      return Identifier();
    case Sort::kPunctuation:
      ++position_;
      return MofToken::Kind::kPunctuation;
    case Sort::kQuote:
      return Peek() == '"' ? Text() : Character();
    case Sort::kDigit:
      return Number();
    case Sort::kSign:
      if (IsDigit(Peek(Peek(1) == '.' ? 2 : 1))) return Number();
      break;
    case Sort::kPoint:
      if (IsDigit(Peek(1))) return Number();
      break;
    default:
      break;
  }
  Refuse(position_, "a character that MOF has no use for");
}

MofToken MofLexer::Next() {
  SkipBlanks();
  const size_t start = position_;
  const MofToken::Kind kind = Pass();
  return {kind, Since(start)};
}

MofToken::Kind MofLexer::Character() {
  const size_t start = position_;
  std::string meaning;
  QuotedText('\'', &meaning);
  if (ToWide(meaning).size() != 1) Refuse(start, "between single quotes stands one character");
  return MofToken::Kind::kCharacter;
}

MofToken::Kind MofLexer::Number() {
  const size_t start = position_;
  if (Peek() == '-' || Peek() == '+') ++position_;
  bool real = false;
  while (IsWordCharacter(Peek()) || Peek() == '.' ||
         ((Peek() == '+' || Peek() == '-') && real && (text_[position_ - 1] | 0x20) == 'e')) {
    real = real || Peek() == '.';
    ++position_;
  }
  RequireLength(start);
  if (!NumberOf(Since(start))) {
    Refuse(start, "'" + std::string(Since(start)) + "' is not a number that fits 64 bits");
  }
  return real ? MofToken::Kind::kReal : MofToken::Kind::kInteger;
}

MofToken::Kind MofLexer::Text() {
  JoinedTexts(nullptr);
  return MofToken::Kind::kText;
}

void MofLexer::JoinedTexts(std::string* meaning) {
  size_t end = position_;
  while (Peek() == '"') {
    QuotedText('"', meaning);
    end = position_;
    SkipBlanks();
  }
  position_ = end;
}

void MofLexer::SkipPlainText(size_t quote) {
  const std::string_view before_quote = text_.substr(position_, quote - position_);
  const std::string_view plain = before_quote.substr(0, before_quote.find('\\'));
  position_ += std::min(plain.find('\n'), plain.size());
}

void MofLexer::QuotedText(char quote, std::string* meaning) {
  const size_t start = position_++;
  // Looked for anew where an escape has passed it alone: to do so at every escape would read a text
  // of nothing else to its end each time.
  size_t next_quote = 0;
  for (;;) {
    const size_t piece = position_;
    if (next_quote < position_) next_quote = std::min(text_.find(quote, position_), text_.size());
    SkipPlainText(next_quote);
    if (meaning) *meaning += Since(piece);
    if (Peek() == quote) break;
    if (Peek() != '\\') Refuse(start, "the text is not closed on its line");
    Escape(meaning);
  }
  ++position_;
}

std::optional<uint16_t> MofLexer::EscapedUnit() {
  if (Peek() != '\\' || (Peek(1) != 'x' && Peek(1) != 'X')) return std::nullopt;
  const std::string_view digits = text_.substr(position_ + 2, 4);
  uint16_t unit = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), unit, 16);
  if (error != std::errc()) return std::nullopt;
  position_ = static_cast<size_t>(end - text_.data());
  return unit;
}

void MofLexer::Escape(std::string* meaning) {
  // Two of them may be one character.
  WideText units;
  while (const auto unit = EscapedUnit()) units += static_cast<OLECHAR>(*unit);
  if (units.empty()) {
    const size_t place = kEscapes.find(Peek(1));
    if (place == std::string_view::npos) Refuse(position_, "MOF has no such escape");
    position_ += 2;
    if (meaning) *meaning += kEscaped[place];
  } else if (meaning) {
    *meaning += ToUtf8(units);
  }
}

}  // namespace tqcim::host
