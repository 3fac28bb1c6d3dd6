/// JSON text, written as it goes: a document of a whole server is never held as a tree.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "host/value.h"

namespace tqcim::tools {

/// Writes one document, indented by two. Each object's members and each array's items are written
/// by a function that is given for it.
class JsonWriter {
 public:
  template <typename WriteMembers>
  void Object(WriteMembers write_members) {
    Begin('{');
    write_members();
    End('}');
  }
  template <typename WriteItems>
  void Array(WriteItems write_items) {
    Begin('[');
    write_items();
    End(']');
  }
  /// The name of the member whose value comes next.
  void Name(std::string_view name);
  /// Integers are numbers of all their digits; what is not UTF-8 in a text becomes U+FFFD.
  void Value(const host::Value& value);
  void Member(std::string_view name, const host::Value& value) {
    Name(name);
    Value(value);
  }

  /// The document with a line end.
  std::string Document() && { return std::move(text_) + "\n"; }

 private:
  void Begin(char bracket);
  void End(char bracket);
  /// Goes to where the next item stands: behind its name, else on a line of its own.
  void BeginItem();
  void BeginLine();

  std::string text_;
  size_t depth_ = 0;
  bool is_first_ = true;  // among its siblings
  bool is_named_ = false;
};

}  // namespace tqcim::tools
