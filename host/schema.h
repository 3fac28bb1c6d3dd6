/// The CIM classes of the namespace, with inheritance resolved.
#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/mof_source.h"
#include "host/qualifiers.h"
#include "host/text.h"
#include "host/value.h"

namespace tqcim::host {

/// The CIM data types; the numbers are the platform's CIMTYPE codes.
enum class CimType {
  kSint16 = 2,
  kSint32 = 3,
  kReal32 = 4,
  kReal64 = 5,
  kString = 8,
  kBoolean = 11,
  kSint8 = 16,
  kUint8 = 17,
  kUint16 = 18,
  kUint32 = 19,
  kSint64 = 20,
  kUint64 = 21,
  kDatetime = 101,
  kReference = 102,
  kChar16 = 103,
};

/// The name that MOF gives to a type ("uint32"); a reference is "ref".
std::string_view TypeName(CimType type);

/// One property of a class.
struct PropertyDefinition {
  std::string_view name;
  CimType type = CimType::kString;
  bool array = false;
  bool key = false;
  std::string_view reference_class;  ///< of a reference, the class that it points to
  std::string_view origin;           ///< the class that declares the property first
  Value default_value;
  Qualifiers qualifiers;

  /// The texts of these qualifiers; empty without them.
  std::string Description() const;
  std::string Units() const;

  /// The type as people read it: "uint32", "uint32[]", "ref CIM_Fan".
  std::string TypeText() const;
};

/// One class. `properties` holds the inherited ones first, from the root class down, each in the
/// order of its declaration; a property that is declared again keeps its first place. One that is
/// not is the superclass's own.
struct ClassDefinition {
  std::string_view name;
  std::string_view superclass;  ///< empty for a root class
  std::string provider;         ///< the name of the provider that serves the class; empty for none
  bool abstract = false;
  bool association = false;
  bool singleton = false;
  std::vector<const PropertyDefinition*> properties;
  std::vector<PropertyDefinition>
      declared;  ///< those of `properties` that the class itself declares
  Qualifiers qualifiers;

  /// The text of the qualifier; empty without it.
  std::string Description() const;

  /// The property of that name in any case, or null.
  const PropertyDefinition* Find(std::string_view property) const;
  /// Its place in `properties`.
  std::optional<size_t> IndexOf(std::string_view property) const;
};

/// Where a class stands among others, by its name in any case.
using ClassIndex = std::map<std::string_view, size_t, NameOrder>;

/// An instance that MOF text declares ("instance of CLASS { ... };").
struct DeclaredInstance {
  std::string_view class_name;
  std::string_view alias;  ///< without its $; empty for none
  std::vector<std::pair<std::string_view, Value>> properties;
};

/// All classes and declared instances of a set of MOF texts. Immutable once made.
class Schema {
 public:
  /// The schema that the program carries.
  static Schema Embedded();

  /// The classes may stand in any order among the sources, whose texts outlive the schema. Throws
  /// MofError.
  static Schema FromSources(std::span<const MofSource> sources);

  Schema(Schema&&) = default;
  Schema& operator=(Schema&&) = default;
  // Classes point at the properties of their superclasses.
  Schema(const Schema&) = delete;
  Schema& operator=(const Schema&) = delete;

  /// The class of that name in any case, or null.
  const ClassDefinition* Find(std::string_view class_name) const;

  /// In the order of declaration, sources in the order given.
  const std::vector<ClassDefinition>& Classes() const { return classes_; }
  const std::vector<DeclaredInstance>& Instances() const { return instances_; }

 private:
  Schema() = default;

  QualifierLists qualifier_lists_;
  std::vector<ClassDefinition> classes_;
  std::vector<DeclaredInstance> instances_;
  ClassIndex by_name_;
};

}  // namespace tqcim::host
