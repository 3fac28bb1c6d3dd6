/// Words of a MOF text (DMTF DSP0004, annex A), with their places.
#pragma once

#include <cstdint>
#include <deque>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

namespace tqcim::host {

/// Line and column count from 1; a column is a byte.
struct MofPlace {
  const std::string* file = nullptr;
  int line = 1;
  int column = 1;
};

/// "FILE:LINE:COLUMN: reason".
class MofError : public std::runtime_error {
 public:
  MofError(const MofPlace& place, const std::string& reason);
};

struct MofToken {
  enum class Kind { kIdentifier, kText, kCharacter, kInteger, kReal, kPunctuation, kEnd };
  Kind kind = Kind::kEnd;
  MofPlace place;
  /// The identifier or the punctuation character as written; a text without quotes and escapes.
  /// The lexer's, or its text's.
  std::string_view text;
  /// Of kCharacter and kInteger the value: int64_t, or uint64_t for what is larger; of kReal a
  /// double.
  std::variant<int64_t, uint64_t, double> number;

  bool Is(char punctuation) const {
    return kind == Kind::kPunctuation && text.size() == 1 && text[0] == punctuation;
  }
  /// Keywords are caseless.
  bool IsWord(std::string_view keyword) const;
  /// How an error message calls the token.
  std::string Describe() const;
};

/// Splits a text into tokens, one at a time. `file` and `text` outlive the lexer, which outlives
/// its tokens.
class MofLexer {
 public:
  MofLexer(const std::string& file, std::string_view text);

  /// The next token, over and over kEnd at the end. Texts that stand side by side are one. Throws
  /// MofError.
  MofToken Next();

 private:
  char Peek(size_t ahead = 0) const {
    return position_ + ahead < text_.size() ? text_[position_ + ahead] : '\0';
  }
  bool AtEnd() const { return position_ >= text_.size(); }
  MofPlace Place() const { return {file_, line_, static_cast<int>(position_ - line_start_) + 1}; }
  /// What stands between a position that has been passed and this one.
  std::string_view Since(size_t start) const { return text_.substr(start, position_ - start); }
  void SkipBlanks();
  void SkipComment();
  std::string_view JoinedTexts();
  std::string_view QuotedText(char quote);
  /// Goes on to the quote, a backslash or the end of the line.
  void SkipPlainText(char quote);
  char32_t EscapedCharacter();
  /// Each fills in the token that starts here.
  void Identifier(MofToken& token);
  void Character(MofToken& token);
  void Number(MofToken& token);

  const std::string* file_;
  std::string_view text_;
  size_t position_ = 0;
  size_t line_start_ = 0;
  int line_ = 1;
  /// Texts that don't stand in one piece in the source.
  std::deque<std::string> composed_;
};

}  // namespace tqcim::host
