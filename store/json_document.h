/// JSON with line numbers: a document in which every value knows the line on which it stands.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace tqcim::store {

struct JsonValue;

/// A value and its name. A template, because it is named before JsonValue is complete.
template <typename Value>
struct Named {
  std::string name;
  Value value;
};
using JsonMember = Named<JsonValue>;

/// One value of a document. Of the content members only the one of its kind is filled.
struct JsonValue {
  enum class Kind { kNull, kBoolean, kUnsigned, kNegative, kFraction, kText, kArray, kObject };

  Kind kind = Kind::kNull;
  size_t line = 0;
  /// A whole number; the two's complement of a negative one.
  uint64_t number = 0;
  std::string text = {};
  std::vector<JsonValue> items = {};
  std::vector<JsonMember> members = {};

  /// The member of that name, or null.
  const JsonValue* Member(std::string_view name) const;
};

/// A parsed document. Every failure is a StoreError "FILE:LINE: reason".
class JsonDocument {
 public:
  /// `file` is the name that errors carry. Refused beside malformed text: a name that stands twice
  /// in an object, values nested deeper than any of our formats, objects of more names than any,
  /// more values than any.
  JsonDocument(std::string_view contents, std::string file);

  const JsonValue& Root() const { return root_; }

  /// The place of a value, as errors name it.
  std::string PlaceOf(const JsonValue& value) const;
  [[noreturn]] void Refuse(const JsonValue& value, const std::string& reason) const;

  /// Refuses what isn't an object, and an object with other names than these; `what` names it.
  void RequireMembers(const JsonValue& object, const char* what,
                      std::initializer_list<std::string_view> names) const;
  /// The member of an object, refusing an object that lacks it or has it in another kind.
  const JsonValue& Required(const JsonValue& object, std::string_view name,
                            JsonValue::Kind kind) const;
  /// The same, null where the object lacks it.
  const JsonValue* Optional(const JsonValue& object, std::string_view name,
                            JsonValue::Kind kind) const;

 private:
  std::string file_;
  JsonValue root_;
};

}  // namespace tqcim::store
