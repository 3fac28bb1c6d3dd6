#include "tools/property_words.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "tools/reference.h"
#include "tools/text.h"

namespace tqcim::tools {
namespace {

/// The elements of a qualifier that is an array; none without it.
host::Array ListOf(const host::PropertyDefinition& property, std::string_view qualifier) {
  const host::Value value = host::QualifierValue(property.qualifiers, qualifier);
  const auto* list = std::get_if<host::Array>(&value);
  return list ? *list : host::Array();
}

/// A number of bytes in the largest unit that divides it; empty below 1 KiB.
std::string BinaryUnits(uint64_t bytes) {
  constexpr std::array kUnits = {"", " KiB", " MiB", " GiB", " TiB", " PiB", " EiB"};
  size_t unit = 0;
  while (bytes != 0 && bytes % 1024 == 0) {
    bytes /= 1024;
    ++unit;
  }
  return unit == 0 ? std::string() : PlainText(host::Scalar(bytes)) + kUnits[unit];
}

}  // namespace

PropertyWords::PropertyWords(const host::PropertyDefinition& property)
    : is_reference_(property.type == host::CimType::kReference), units_(property.Units()) {
  const host::Array codes = ListOf(property, "ValueMap");
  if (codes.empty()) return;
  const host::Array meanings = ListOf(property, "Values");
  // Of a code that stands twice, the first counts.
  for (size_t i = 0; i < std::min(codes.size(), meanings.size()); ++i) {
    meanings_.emplace(PlainText(codes[i]), PlainText(meanings[i]));
  }
}

std::string PropertyWords::MeaningOfNumber(const host::Scalar& scalar) const {
  if (std::holds_alternative<std::string>(scalar)) return {};
  const auto* number = std::get_if<uint64_t>(&scalar);
  if (number != nullptr && units_ == "Bytes") return BinaryUnits(*number);
  if (meanings_.empty()) return {};
  const auto found = meanings_.find(PlainText(scalar));
  return found == meanings_.end() ? std::string() : found->second;
}

std::string PropertyWords::ReadableScalar(const host::Scalar& scalar,
                                          const std::string& units) const {
  if (is_reference_) return ReadableReference(std::get<std::string>(scalar));
  std::string readable = PlainText(scalar);
  if (!units.empty()) readable += ' ' + units;
  const std::string meaning = MeaningOfNumber(scalar);
  if (!meaning.empty()) readable += " (" + meaning + ")";
  return Printable(readable);
}

std::string PropertyWords::Readable(const host::Value& value) const {
  if (host::IsNull(value)) return "-";
  return Joined(value, [&](const host::Scalar& scalar) { return ReadableScalar(scalar, {}); });
}

std::string PropertyWords::ReadableWithUnits(const host::Value& value) const {
  if (host::IsNull(value)) return "-";
  return Joined(value, [&](const host::Scalar& scalar) { return ReadableScalar(scalar, units_); });
}

std::string PropertyWords::Meaning(const host::Value& value) const {
  const std::string code = PlainText(value);
  const auto found = meanings_.find(code);
  return found == meanings_.end() || found->second.empty() ? code : found->second;
}

}  // namespace tqcim::tools
