/// MOF text as declarations, before they are held against each other. Names are parts of the text.
#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "host/mof_source.h"
#include "host/schema.h"

namespace tqcim::host {

struct ParsedClass {
  const MofSource* source = nullptr;
  std::string_view name;
  std::string_view superclass;  ///< empty for a root class
  std::vector<Qualifier> qualifiers;
  std::vector<PropertyDefinition> properties;  ///< neither their keys nor their origins are set
};

struct ParsedInstance {
  const MofSource* source = nullptr;
  std::string_view class_name;
  std::vector<std::pair<std::string_view, Value>> assignments;
};

struct MofDocument {
  std::vector<ParsedClass> classes;
  std::vector<ParsedInstance> instances;
};

/// Parses one MOF text: classes with properties and qualifiers, instances with aliases, compiler
/// directives. Methods, embedded instances and qualifier declarations are refused. Throws MofError.
/// The source outlives the document.
MofDocument ParseMof(const MofSource& source);

/// What a value stands for, from its text, which has been parsed before. An alias is the text
/// "$Name".
Value ValueOf(std::string_view text);

}  // namespace tqcim::host
