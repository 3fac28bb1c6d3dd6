/// The CIM classes of the namespace, with inheritance resolved.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

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

struct Qualifier {
  std::string name;
  Value value;  ///< `true` where MOF gives no value
};

/// The qualifier of that name in any case, or null.
const Qualifier* FindQualifier(const std::vector<Qualifier>& qualifiers, std::string_view name);
/// Its text; empty without it.
std::string_view QualifierText(const std::vector<Qualifier>& qualifiers, std::string_view name);

/// One property of a class, its own or inherited.
struct PropertyDefinition {
  std::string name;
  CimType type = CimType::kString;
  bool array = false;
  bool key = false;
  std::string reference_class;  ///< of a reference, the class that it points to
  std::string origin;           ///< the class that declares the property first
  Value default_value;
  std::vector<Qualifier> qualifiers;

  /// The texts of these qualifiers; empty without them.
  std::string_view Description() const;
  std::string_view Units() const;

  /// The type as people read it: "uint32", "uint32[]", "ref CIM_Fan".
  std::string TypeText() const;
};

/// One class. `properties` holds the inherited ones first, from the root class down, each in the
/// order of its declaration; a property that is declared again keeps its first place. One that is
/// not is the superclass's own.
struct ClassDefinition {
  std::string name;
  std::string superclass;  ///< empty for a root class
  std::string provider;    ///< the name of the provider that serves the class; empty for none
  bool abstract = false;
  bool association = false;
  bool singleton = false;
  std::vector<std::shared_ptr<const PropertyDefinition>> properties;
  std::vector<Qualifier> qualifiers;

  /// The text of the qualifier; empty without it.
  std::string_view Description() const;

  /// The property of that name in any case, or null.
  const PropertyDefinition* Find(std::string_view property) const;
  /// Its place in `properties`.
  std::optional<size_t> IndexOf(std::string_view property) const;
};

/// An instance that MOF text declares ("instance of CLASS { ... };").
struct DeclaredInstance {
  std::string class_name;
  std::vector<std::pair<std::string, Value>> properties;
};

/// All classes and declared instances of a set of MOF texts. Immutable once made.
class Schema {
 public:
  /// One MOF text and the name that error messages give it.
  struct Source {
    std::string name;
    std::string_view text;
  };

  /// The schema that the program carries.
  static Schema Embedded();

  /// Every *.mof file of a folder. Throws MofError (see mof_parser.h) for text that is not valid,
  /// std::runtime_error where the folder or a file can't be read; the sentence names the file.
  static Schema FromFolder(const std::filesystem::path& folder);

  /// The classes may stand in any order among the sources. Throws MofError.
  static Schema FromSources(std::span<const Source> sources);

  /// The class of that name in any case, or null.
  const ClassDefinition* Find(std::string_view class_name) const;

  /// In the order of declaration, sources in the order given.
  const std::vector<ClassDefinition>& Classes() const { return classes_; }
  const std::vector<DeclaredInstance>& Instances() const { return instances_; }

 private:
  std::vector<ClassDefinition> classes_;
  std::vector<DeclaredInstance> instances_;
  std::map<std::string, size_t, NameOrder> by_name_;
};

}  // namespace tqcim::host
