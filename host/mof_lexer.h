/// Words of a MOF text (DMTF DSP0004, annex A), with their places.
#pragma once

#include <cstdint>
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
  std::string text;
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

/// Splits a text into tokens, one at a time. `file` and `text` outlive the lexer and its tokens.
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
  void Advance();
  void SkipBlanks();
  void SkipComment();
  std::string QuotedText(char quote);
  char32_t EscapedCharacter();
  MofToken Identifier(MofToken token);
  MofToken Number(MofToken token);

  std::string_view text_;
  size_t position_ = 0;
  MofPlace place_;
};

}  // namespace tqcim::host
