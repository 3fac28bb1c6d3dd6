/// The CIM data types and what fits them.
#pragma once

#include <optional>
#include <string_view>

#include "host/schema.h"

namespace tqcim::host {

/// The type of a MOF type name in any case; nothing for other names. References are not among them.
std::optional<CimType> TypeOfName(std::string_view name);

/// The least and the largest value of an integer type of up to 32 bits, or of char16.
struct IntegerRange {
  int64_t least;
  int64_t largest;
};
std::optional<IntegerRange> RangeOf(CimType type);

/// A MOF value as a value of that type; nothing where it doesn't fit. Null fits every type.
std::optional<Value> ConvertToType(const Value& value, CimType type, bool array);

}  // namespace tqcim::host
