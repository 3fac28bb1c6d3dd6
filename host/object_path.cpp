#include "host/object_path.h"

#include <algorithm>
#include <charconv>

#include "host/text.h"

namespace tqcim::host {
namespace {

bool IsSlash(char c) {
  return c == '\\' || c == '/';
}

/// Bytes outside of ASCII are parts of letters.
bool IsNameStart(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}

/// Where the first name of a path ends.
constexpr std::string_view kNameEnds = "\\/:.=\"' ";

class PathParser {
 public:
  explicit PathParser(std::string_view text) : text_(text) {}

  ObjectPath Parse() {
    if (text_.empty()) Refuse("it is empty");
    if (IsSlash(Peek()) && IsSlash(Peek(1))) Server();
    if (IsSlash(Peek()) || StartsWithNamespace()) Namespaces();
    if (!AtEnd() || path_.namespaces.empty()) ClassAndKeys();
    if (!AtEnd()) Refuse("it should end here");
    return std::move(path_);
  }

 private:
  char Peek(size_t ahead = 0) const {
    return position_ + ahead < text_.size() ? text_[position_ + ahead] : '\0';
  }
  bool AtEnd() const { return position_ >= text_.size(); }
  [[noreturn]] void Refuse(const std::string& reason) const {
    throw PathError(CharacterCount(text_.substr(0, position_)), reason);
  }
  bool TakeIf(char c) {
    if (AtEnd() || Peek() != c) return false;
    ++position_;
    return true;
  }
  void SkipBlanks() {
    while (Peek() == ' ' || Peek() == '\t') ++position_;
  }

  /// A path that starts with a name starts with a namespace if a slash or a colon follows the name.
  bool StartsWithNamespace() const {
    const size_t end = text_.find_first_of(kNameEnds);
    return end != std::string_view::npos && (IsSlash(text_[end]) || text_[end] == ':');
  }

  void Server() {
    position_ += 2;
    path_.server = Part("\\/:", "the name of a server");
    if (!IsSlash(Peek())) Refuse("a namespace should follow the server");
  }

  void Namespaces() {
    if (IsSlash(Peek())) ++position_;
    do {
      path_.namespaces.push_back(Part(kNameEnds, "the name of a namespace"));
      if (TakeIf(':')) {
        if (AtEnd()) Refuse("a class should follow the colon");
        return;
      }
    } while (TakeIf('\\') || TakeIf('/'));
    // Without its server the path would be read as that of a class with keys.
    if (!AtEnd()) Refuse("a namespace can't have this character in its name");
  }

  std::string Part(std::string_view ends, const std::string& what) {
    const size_t start = position_;
    position_ = std::min(text_.find_first_of(ends, start), text_.size());
    if (position_ == start) Refuse(what + " should stand here");
    return std::string(text_.substr(start, position_ - start));
  }

  std::string Name(const std::string& what) {
    const size_t start = position_;
    if (!IsNameStart(Peek())) Refuse(what + " should stand here");
    while (IsNameStart(Peek()) || IsDigit(Peek())) ++position_;
    return std::string(text_.substr(start, position_ - start));
  }

  void ClassAndKeys() {
    path_.class_name = Name("the name of a class");
    if (TakeIf('.')) return Keys();
    SkipBlanks();
    if (!TakeIf('=')) return;
    SkipBlanks();
    if (TakeIf('@')) {
      path_.singleton = true;
    } else {
      path_.keys.push_back({"", KeyValue()});
    }
  }

  void Keys() {
    do {
      SkipBlanks();
      std::string name = Name("the name of a key");
      SkipBlanks();
      if (!TakeIf('=')) Refuse("'=' should follow the name of the key");
      SkipBlanks();
      path_.keys.push_back({std::move(name), KeyValue()});
      SkipBlanks();
    } while (TakeIf(','));
  }

  Scalar KeyValue() {
    if (Peek() == '"' || Peek() == '\'') return QuotedText();
    if (IsDigit(Peek()) || Peek() == '-' || Peek() == '+') return Number();
    const size_t start = position_;
    if (IsNameStart(Peek())) {
      const std::string word = Name("the value of the key");
      if (EqualNames(word, "true")) return true;
      if (EqualNames(word, "false")) return false;
    }
    position_ = start;
    Refuse("the value of the key should stand here: text in quotes, a number, TRUE or FALSE");
  }

  std::string QuotedText() {
    const size_t start = position_;
    const char quote = Peek();
    ++position_;
    std::string value;
    while (!TakeIf(quote)) {
      if (AtEnd()) {
        position_ = start;
        Refuse("the quotes are not closed");
      }
      if (Peek() == '\\') {
        if (Peek(1) != '\\' && Peek(1) != '"' && Peek(1) != '\'') {
          Refuse("a backslash in quotes is written twice");
        }
        ++position_;
      }
      value += Peek();
      ++position_;
    }
    return value;
  }

  Scalar Number() {
    const size_t start = position_;
    if (Peek() == '+' && IsDigit(Peek(1))) ++position_;
    const char* first = text_.data() + position_;
    const char* last = text_.data() + text_.size();
    int64_t number = 0;
    auto result = std::from_chars(first, last, number);
    if (result.ec == std::errc()) return NumberThatEnds(result.ptr, number);
    uint64_t large = 0;
    result = std::from_chars(first, last, large);
    if (result.ec == std::errc()) return NumberThatEnds(result.ptr, large);
    position_ = start;
    Refuse("a number of at most 64 bits should stand here");
  }

  Scalar NumberThatEnds(const char* end, Scalar number) {
    position_ = static_cast<size_t>(end - text_.data());
    if (IsNameStart(Peek()) || Peek() == '.') Refuse("the number should end here");
    return number;
  }

  std::string_view text_;
  size_t position_ = 0;
  ObjectPath path_;
};

std::string KeyText(const Scalar& value) {
  if (const auto* set = std::get_if<bool>(&value)) return *set ? "TRUE" : "FALSE";
  if (const auto* number = std::get_if<int64_t>(&value)) return std::to_string(*number);
  if (const auto* large = std::get_if<uint64_t>(&value)) return std::to_string(*large);
  std::string text = "\"";
  for (const char c : std::get<std::string>(value)) {
    if (c == '"' || c == '\\') text += '\\';
    text += c;
  }
  return text + '"';
}

}  // namespace

std::string ObjectPath::Namespace() const {
  std::string text;
  for (const std::string& name : namespaces) {
    if (!text.empty()) text += '\\';
    text += name;
  }
  return text;
}

ObjectPath ParseObjectPath(std::string_view text) {
  return PathParser(text).Parse();
}

std::string RelativeText(const ObjectPath& path) {
  std::string text = path.class_name;
  if (path.singleton) text += "=@";
  for (size_t i = 0; i < path.keys.size(); ++i) {
    const PathKey& key = path.keys[i];
    if (!key.name.empty()) text += i == 0 ? '.' : ',';
    text += key.name;
    text += '=';
    text += KeyText(key.value);
  }
  return text;
}

}  // namespace tqcim::host
