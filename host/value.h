/// What a property holds, free of the platform's types.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace tqcim::host {

/// One value that is not an array. Signed CIM integers (sint8 to sint64) are `int64_t`; unsigned
/// ones and char16 are `uint64_t`; real32 and real64 are `double`; string, datetime and references
/// are UTF-8 text.
using Scalar = std::variant<bool, int64_t, uint64_t, double, std::string>;

/// What an array property holds, in order; it may be empty.
using Array = std::vector<Scalar>;

/// `std::monostate` stands for null.
using Value = std::variant<std::monostate, bool, int64_t, uint64_t, double, std::string, Array>;

inline bool IsNull(const Value& value) {
  return std::holds_alternative<std::monostate>(value);
}

inline Value ToValue(const Scalar& scalar) {
  return std::visit([](const auto& held) -> Value { return held; }, scalar);
}

/// Nothing for null and for arrays.
inline std::optional<Scalar> ToScalar(Value value) {
  return std::visit(
      [](auto&& held) -> std::optional<Scalar> {
        using T = std::decay_t<decltype(held)>;
        if constexpr (std::is_same_v<T, std::monostate> || std::is_same_v<T, Array>) {
          return std::nullopt;
        } else {
          return Scalar(std::forward<decltype(held)>(held));
        }
      },
      std::move(value));
}

}  // namespace tqcim::host
