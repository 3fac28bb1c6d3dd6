/// The libraries' directory as the machine's registry tells it.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace tqcim::testing {

/// There is none while this lives, unless it is set; what was there before is put back.
class SharedPathValue {
 public:
  SharedPathValue();
  ~SharedPathValue();
  SharedPathValue(const SharedPathValue&) = delete;
  SharedPathValue& operator=(const SharedPathValue&) = delete;

  /// Writes the bytes as they are, without a terminator of their own.
  void Set(DWORD type, const std::string& bytes) const;
  /// Makes the key, with no value in it.
  void SetKeyOnly() const;
  /// Whether the key is there, which it is without a value where it holds others' values.
  static bool KeyExists();

 private:
  struct Value {
    DWORD type;
    std::string bytes;
  };

  std::optional<Value> before_;
};

}  // namespace tqcim::testing
