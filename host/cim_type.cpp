#include "host/cim_type.h"

#include <array>
#include <limits>

#include "host/text.h"

namespace tqcim::host {
namespace {

struct NamedType {
  std::string_view name;
  CimType type;
};

constexpr std::array<NamedType, 15> kTypes = {{
    {"boolean", CimType::kBoolean},
    {"char16", CimType::kChar16},
    {"datetime", CimType::kDatetime},
    {"real32", CimType::kReal32},
    {"real64", CimType::kReal64},
    {"sint16", CimType::kSint16},
    {"sint32", CimType::kSint32},
    {"sint64", CimType::kSint64},
    {"sint8", CimType::kSint8},
    {"string", CimType::kString},
    {"uint16", CimType::kUint16},
    {"uint32", CimType::kUint32},
    {"uint64", CimType::kUint64},
    {"uint8", CimType::kUint8},
    {"ref", CimType::kReference},
}};

template <typename T>
constexpr IntegerRange kRange{std::numeric_limits<T>::min(), std::numeric_limits<T>::max()};

bool IsUnsigned(CimType type) {
  return type == CimType::kUint8 || type == CimType::kUint16 || type == CimType::kUint32 ||
         type == CimType::kUint64 || type == CimType::kChar16;
}

std::optional<Scalar> ConvertInteger(const Scalar& scalar, CimType type) {
  if (const auto* large = std::get_if<uint64_t>(&scalar)) {
    if (type != CimType::kUint64) return std::nullopt;
    return *large;
  }
  const auto* number = std::get_if<int64_t>(&scalar);
  if (!number) return std::nullopt;
  const auto range = RangeOf(type);
  if (range && (*number < range->least || *number > range->largest)) return std::nullopt;
  if (!IsUnsigned(type)) return *number;
  if (*number < 0) return std::nullopt;
  return static_cast<uint64_t>(*number);
}

std::optional<Scalar> ConvertReal(const Scalar& scalar) {
  if (std::holds_alternative<double>(scalar)) return scalar;
  if (const auto* number = std::get_if<int64_t>(&scalar)) return static_cast<double>(*number);
  return std::nullopt;
}

std::optional<Scalar> ConvertScalar(const Scalar& scalar, CimType type) {
  switch (type) {
    case CimType::kBoolean:
      if (std::holds_alternative<bool>(scalar)) return scalar;
      return std::nullopt;
    case CimType::kString:
    case CimType::kDatetime:
    case CimType::kReference:
      if (std::holds_alternative<std::string>(scalar)) return scalar;
      return std::nullopt;
    case CimType::kReal32:
    case CimType::kReal64:
      return ConvertReal(scalar);
    default:
      return ConvertInteger(scalar, type);
  }
}

std::optional<Value> ConvertArray(const Array& array, CimType type) {
  Array converted;
  for (const Scalar& scalar : array) {
    const auto element = ConvertScalar(scalar, type);
    if (!element) return std::nullopt;
    converted.push_back(*element);
  }
  return converted;
}

}  // namespace

std::string_view TypeName(CimType type) {
  for (const NamedType& named : kTypes) {
    if (named.type == type) return named.name;
  }
  return {};
}

std::optional<CimType> TypeOfName(std::string_view name) {
  for (const NamedType& named : kTypes) {
    if (named.type != CimType::kReference && EqualNames(named.name, name)) return named.type;
  }
  return std::nullopt;
}

std::optional<IntegerRange> RangeOf(CimType type) {
  switch (type) {
    case CimType::kSint8:
      return kRange<int8_t>;
    case CimType::kUint8:
      return kRange<uint8_t>;
    case CimType::kSint16:
      return kRange<int16_t>;
    case CimType::kUint16:
    case CimType::kChar16:
      return kRange<uint16_t>;
    case CimType::kSint32:
      return kRange<int32_t>;
    case CimType::kUint32:
      return kRange<uint32_t>;
    default:
      return std::nullopt;
  }
}

std::optional<Value> ConvertToType(const Value& value, CimType type, bool array) {
  if (IsNull(value)) return std::optional<Value>(std::in_place);
  if (const auto* elements = std::get_if<Array>(&value)) {
    return array ? ConvertArray(*elements, type) : std::nullopt;
  }
  if (array) return std::nullopt;
  const auto converted = ConvertScalar(*ToScalar(value), type);
  if (!converted) return std::nullopt;
  return ToValue(*converted);
}

}  // namespace tqcim::host
