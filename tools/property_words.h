/// The values of a property in words.
#pragma once

#include <map>
#include <string>

#include "host/schema.h"
#include "host/value.h"

namespace tqcim::tools {

/// How the values of one property read: the schema is asked for its unit and its codes once. All
/// text is UTF-8.
class PropertyWords {
 public:
  explicit PropertyWords(const host::PropertyDefinition& property);

  /// A value as a person wants it: beside a code the meaning that the class gives it ("26 (DDR4)"),
  /// beside bytes the larger unit ("34359738368 (32 GiB)"), of a reference what tells it from
  /// others of its class. Null is "-". On one line, printable.
  std::string Readable(const host::Value& value) const;

  /// The same with the unit of the property: "34359738368 Bytes (32 GiB)".
  std::string ReadableWithUnits(const host::Value& value) const;

  /// What a code means ("DDR4"), or the plain text of a value for which the class has no meaning.
  std::string Meaning(const host::Value& value) const;

 private:
  /// What a number means; empty for what speaks for itself.
  std::string MeaningOfNumber(const host::Scalar& scalar) const;
  std::string ReadableScalar(const host::Scalar& scalar, const std::string& units) const;

  bool is_reference_;
  std::string units_;
  std::map<std::string, std::string> meanings_;  // by the class's ValueMap and Values
};

}  // namespace tqcim::tools
