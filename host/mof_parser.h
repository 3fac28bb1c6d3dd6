/// MOF text as declarations, before they are held against each other.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/mof_lexer.h"
#include "host/schema.h"

namespace tqcim::host {

/// Names are parts of the text.
struct ParsedProperty {
  MofPlace place;
  std::string_view name;
  CimType type = CimType::kString;
  bool array = false;
  std::string_view reference_class;
  Value default_value;
  std::vector<Qualifier> qualifiers;
};

struct ParsedClass {
  MofPlace place;
  std::string_view name;
  MofPlace superclass_place;
  std::string_view superclass;  ///< empty for a root class
  std::vector<Qualifier> qualifiers;
  std::vector<ParsedProperty> properties;
};

struct ParsedAssignment {
  MofPlace place;
  std::string_view property;
  Value value;
};

struct ParsedInstance {
  MofPlace place;
  std::string_view class_name;
  std::vector<ParsedAssignment> assignments;
};

struct MofDocument {
  std::vector<ParsedClass> classes;
  std::vector<ParsedInstance> instances;
};

/// Parses one MOF text: classes with properties and qualifiers, instances with aliases, compiler
/// directives. Methods, embedded instances and qualifier declarations are refused. An alias as a
/// value is the text "$Name". Throws MofError. `file` and `text` outlive the document.
MofDocument ParseMof(const std::string& file, std::string_view text);

}  // namespace tqcim::host
