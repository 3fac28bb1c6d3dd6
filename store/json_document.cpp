#include "store/json_document.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <nlohmann/json.hpp>
#include <utility>

#include "store/store_error.h"
#include "store/text.h"

namespace tqcim::store {
namespace {

using nlohmann::json;

constexpr size_t kDeepest = 8;
constexpr size_t kMostNames = 256;
/// Twenty thousand memory modules have 380,000. Each takes a hundred bytes, however short.
constexpr size_t kMostValues = 1'000'000;

/// Reads the contents and keeps the line of the character read last.
class LineCountingIterator {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = const char&;

  LineCountingIterator(const char* position, size_t* line) : position_(position), line_(line) {}

  reference operator*() const { return *position_; }
  LineCountingIterator& operator++() {
    // A line ends where the next one begins, so that a token which the parser ends by looking at
    // the line break behind it still counts for its own line.
    if (afterBreak_) ++*line_;
    afterBreak_ = *position_++ == '\n';
    return *this;
  }
  LineCountingIterator operator++(int) {
    LineCountingIterator before = *this;
    ++*this;
    return before;
  }
  bool operator==(const LineCountingIterator& other) const { return position_ == other.position_; }
  bool operator!=(const LineCountingIterator& other) const { return position_ != other.position_; }

 private:
  const char* position_;
  size_t* line_;
  bool afterBreak_ = false;
};

/// The reason that the parser gives, without its own prefix and without the text that it quotes.
std::string ReasonOf(const json::exception& error) {
  // The one error that is none of syntax; its reason quotes all of the number.
  if (dynamic_cast<const json::out_of_range*>(&error) != nullptr) return "a number is too large";
  std::string reason = error.what();
  if (const size_t end = reason.find("; last read"); end != std::string::npos) reason.resize(end);
  const size_t column = reason.find(", column ");
  const size_t colon = column == std::string::npos ? column : reason.find(": ", column);
  return colon == std::string::npos ? reason : reason.substr(colon + 2);
}

/// Builds the values as the parser meets them.
class TreeBuilder : public nlohmann::json_sax<json> {
 public:
  TreeBuilder(const std::string& file, const size_t& line, JsonValue& root)
      : file_(file), line_(line), root_(root) {}

  bool null() override { return Add({}); }
  bool boolean(bool) override { return Add({.kind = JsonValue::Kind::kBoolean}); }
  bool number_integer(number_integer_t value) override {
    return Add({.kind = JsonValue::Kind::kNegative, .number = static_cast<uint64_t>(value)});
  }
  bool number_unsigned(number_unsigned_t value) override {
    return Add({.kind = JsonValue::Kind::kUnsigned, .number = value});
  }
  bool number_float(number_float_t, const string_t&) override {
    return Add({.kind = JsonValue::Kind::kFraction});
  }
  bool string(string_t& value) override {
    return Add({.kind = JsonValue::Kind::kText, .text = std::move(value)});
  }
  bool binary(binary_t&) override { return false; }
  bool start_object(size_t) override { return Open(JsonValue::Kind::kObject); }
  bool start_array(size_t) override { return Open(JsonValue::Kind::kArray); }
  bool end_object() override { return Close(); }
  bool end_array() override { return Close(); }

  bool key(string_t& name) override {
    JsonValue& object = *open_.back();
    if (object.Member(name) != nullptr) Fail(Quoted(name) + " stands twice");
    if (object.members.size() == kMostNames) Fail("an object of too many names");
    object.members.push_back({std::move(name), {}});
    return true;
  }

  bool parse_error(size_t, const std::string&, const json::exception& error) override {
    Fail(ReasonOf(error));
  }

 private:
  [[noreturn]] void Fail(const std::string& reason) const {
    throw StoreError(file_ + ":" + std::to_string(line_), reason);
  }

  bool Add(JsonValue value) {
    Place(std::move(value));
    return true;
  }
  bool Open(JsonValue::Kind kind) {
    if (open_.size() == kDeepest) Fail("values are nested too deep");
    open_.push_back(&Place({.kind = kind}));
    return true;
  }
  bool Close() {
    open_.pop_back();
    return true;
  }
  JsonValue& Place(JsonValue value) {
    if (++values_ > kMostValues) Fail("more values than any store has");
    value.line = line_;
    JsonValue& place = open_.empty() ? root_
                       : open_.back()->kind == JsonValue::Kind::kArray
                           ? open_.back()->items.emplace_back()
                           : open_.back()->members.back().value;
    return place = std::move(value);
  }

  const std::string& file_;
  const size_t& line_;
  JsonValue& root_;
  size_t values_ = 0;
  /// The containers around the next value. A container doesn't move while it is open: its parent
  /// grows only after it.
  std::vector<JsonValue*> open_;
};

const char* NameOf(JsonValue::Kind kind) {
  switch (kind) {
    case JsonValue::Kind::kText:
      return "a text";
    case JsonValue::Kind::kArray:
      return "a list";
    case JsonValue::Kind::kObject:
      return "an object";
    default:
      return "a whole number";
  }
}

}  // namespace

const JsonValue* JsonValue::Member(std::string_view name) const {
  const auto found = std::find_if(members.begin(), members.end(),
                                  [&](const JsonMember& member) { return member.name == name; });
  return found == members.end() ? nullptr : &found->value;
}

JsonDocument::JsonDocument(std::string_view contents, std::string file) : file_(std::move(file)) {
  size_t line = 1;
  const char* begin = contents.data();
  TreeBuilder builder(file_, line, root_);
  json::sax_parse(LineCountingIterator(begin, &line),
                  LineCountingIterator(begin + contents.size(), &line), &builder);
}

std::string JsonDocument::PlaceOf(const JsonValue& value) const {
  return file_ + ":" + std::to_string(value.line);
}

void JsonDocument::Refuse(const JsonValue& value, const std::string& reason) const {
  throw StoreError(PlaceOf(value), reason);
}

void JsonDocument::RequireMembers(const JsonValue& object, const char* what,
                                  std::initializer_list<std::string_view> names) const {
  if (object.kind != JsonValue::Kind::kObject) Refuse(object, std::string(what) + " is an object");
  for (const JsonMember& member : object.members) {
    if (std::find(names.begin(), names.end(), member.name) == names.end()) {
      Refuse(member.value, std::string(what) + " has no " + Quoted(member.name));
    }
  }
}

const JsonValue& JsonDocument::Required(const JsonValue& object, std::string_view name,
                                        JsonValue::Kind kind) const {
  const JsonValue* value = Optional(object, name, kind);
  if (value == nullptr) Refuse(object, Quoted(name) + " is missing");
  return *value;
}

const JsonValue* JsonDocument::Optional(const JsonValue& object, std::string_view name,
                                        JsonValue::Kind kind) const {
  const JsonValue* value = object.Member(name);
  if (value != nullptr && value->kind != kind) {
    Refuse(*value, Quoted(name) + " takes " + NameOf(kind));
  }
  return value;
}

}  // namespace tqcim::store
