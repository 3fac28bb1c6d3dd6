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
  Qualifiers qualifiers;
  std::vector<PropertyDefinition> properties;  ///< neither their keys nor their origins are set
};

struct ParsedInstance {
  const MofSource* source = nullptr;
  std::string_view class_name;
  std::string_view alias;  ///< without its $; empty for none
  std::vector<std::pair<std::string_view, Value>> assignments;
};

/// What one or more texts declare, in their order.
struct MofDocument {
  std::vector<ParsedClass> classes;
  std::vector<ParsedInstance> instances;
  QualifierLists qualifier_lists;  ///< those of the classes
};

/// Parses one MOF text: classes with properties and qualifiers, instances with aliases, whose
/// qualifiers are passed over, compiler directives. Methods, embedded instances and qualifier
/// declarations are refused. Throws MofError. What it declares is added to the document, which the
/// source outlives.
void ParseMof(const MofSource& source, MofDocument& document);

/// What a value stands for, from its text, which has been parsed before. An alias is the text
/// "$Name".
Value ValueOf(std::string_view text);

}  // namespace tqcim::host
