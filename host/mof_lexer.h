/// Words of a MOF text (DMTF DSP0004, annex A).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "host/mof_source.h"
#include "host/value.h"

namespace tqcim::host {

struct MofToken {
  enum class Kind { kIdentifier, kText, kCharacter, kInteger, kReal, kPunctuation, kEnd };
  Kind kind = Kind::kEnd;
  /// As it stands in the source, a text with its quotes and escapes. Texts that stand side by side
  /// are one token. At the end empty, behind the last character.
  std::string_view text;

  bool Is(char punctuation) const { return kind == Kind::kPunctuation && text[0] == punctuation; }
  /// Keywords are caseless.
  bool IsWord(std::string_view keyword) const;
  /// How an error message calls the token.
  std::string Describe() const;
};

/// What a text, a character or a number stands for: UTF-8; the code of the character; int64_t, or
/// uint64_t for what is larger, or a double.
Scalar LiteralOf(const MofToken& token);

/// Splits a text into tokens, one at a time. The source outlives the lexer.
class MofLexer {
 public:
  explicit MofLexer(const MofSource& source)
      : source_(source), text_(WithoutByteOrderMark(source.text)) {}

  /// The next token, over and over kEnd at the end. Throws MofError.
  MofToken Next();

 private:
  friend Scalar LiteralOf(const MofToken& token);

  char Peek(size_t ahead = 0) const {
    return position_ + ahead < text_.size() ? text_[position_ + ahead] : '\0';
  }
  bool AtEnd() const { return position_ >= text_.size(); }
  /// Goes past all characters of a sort that stand here.
  template <typename IsOne>
  void SkipAll(IsOne is_one) {
    size_t next = position_;
    while (next < text_.size() && is_one(text_[next])) ++next;
    position_ = next;
  }
  /// What stands between a position that has been passed and this one.
  std::string_view Since(size_t start) const { return {text_.data() + start, position_ - start}; }
  [[noreturn]] void Refuse(size_t position, std::string_view reason) const;
  /// Of the word that ends here.
  void RequireLength(size_t start) const;
  // What is inline is so for Next, which most of the reading of a schema is.
  inline void SkipBlanks();
  void SkipComment();
  /// Each of these goes past what starts here, and adds what it stands for to a text that is not
  /// null.
  void JoinedTexts(std::string* meaning);
  void QuotedText(char quote, std::string* meaning);
  void Escape(std::string* meaning);
  /// Goes past one escape by code, if one stands here, and gives the code.
  std::optional<uint16_t> EscapedUnit();
  /// Goes on to the quote that stands there, or to a backslash or the end of the line before it.
  void SkipPlainText(size_t quote);
  /// Each goes past the token that starts here, and tells its kind.
  inline MofToken::Kind Pass();
  inline MofToken::Kind Identifier();
  MofToken::Kind Text();
  MofToken::Kind Character();
  MofToken::Kind Number();

  const MofSource& source_;
  std::string_view text_;
  size_t position_ = 0;
};

}  // namespace tqcim::host
