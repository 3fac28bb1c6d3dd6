#include "tests/reference/class_page.h"

#include <algorithm>

#include "host/text.h"
#include "tools/text.h"

namespace tqcim::testing {
namespace {

/// A text as a cell of a table.
std::string Cell(std::string_view text) {
  std::string cell;
  for (const char c : text) cell += c == '|' ? std::string("\\|") : std::string(1, c);
  return cell;
}

std::string Code(std::string_view name) {
  return "`" + std::string(name) + "`";
}

std::string CodeList(const std::vector<std::string_view>& names) {
  std::string list;
  for (const std::string_view name : names) list += (list.empty() ? "" : ", ") + Code(name);
  return list.empty() ? "none" : list;
}

const std::string* SourceOf(const ClassNotes& notes, std::string_view property) {
  const auto found = std::ranges::find_if(
      notes.values, [&](const auto& value) { return host::EqualNames(value.first, property); });
  return found == notes.values.end() ? nullptr : &found->second;
}

std::string Kind(const host::ClassDefinition& definition) {
  if (definition.association) return "association";
  return definition.singleton ? "one instance at most, without keys" : "class";
}

std::string Facts(const host::ClassDefinition& definition, const ClassNotes& notes) {
  std::vector<std::string_view> keys;
  for (const auto& property : definition.properties) {
    if (property->key) keys.push_back(property->name);
  }
  const std::string_view superclass = definition.superclass;
  return "| | |\n|---|---|\n| kind | " + Kind(definition) + " |\n| superclass | " +
         (superclass.empty() ? "none" : Code(superclass)) + " |\n| keys | " + CodeList(keys) +
         " |\n| store objects | " + CodeList({notes.objects.begin(), notes.objects.end()}) + " |\n";
}

std::string PropertyRows(const host::ClassDefinition& definition, const ClassNotes& notes) {
  std::string text =
      "| property | type | unit | meaning | where the value comes from |\n|---|---|---|---|---|\n";
  std::vector<std::string_view> empty;
  for (const auto& property : definition.properties) {
    const std::string* source = SourceOf(notes, property->name);
    if (source == nullptr) {
      empty.push_back(property->name);
      continue;
    }
    text += "| " + Code(property->name) + (property->key ? " (key)" : "") + " | " +
            property->TypeText() + " | " + Cell(property->Units()) + " | " +
            Cell(property->Description()) + " | " + Cell(*source) + " |\n";
  }
  if (!empty.empty()) text += "\nDeclared, and never given: " + CodeList(empty) + ".\n";
  return text;
}

/// The meanings of the codes of the given properties.
std::string CodeTables(const host::ClassDefinition& definition, const ClassNotes& notes) {
  std::string text;
  for (const auto& property : definition.properties) {
    const host::Value code_list = host::QualifierValue(property->qualifiers, "ValueMap");
    const host::Value word_list = host::QualifierValue(property->qualifiers, "Values");
    const auto* codes = std::get_if<host::Array>(&code_list);
    const auto* words = std::get_if<host::Array>(&word_list);
    if (!codes || !words || !SourceOf(notes, property->name)) continue;
    text += "\n" + Code(property->name) + ":";
    for (size_t i = 0; i < codes->size(); ++i) {
      text += (i == 0 ? " " : "; ") + Code(tools::PlainText((*codes)[i])) + " " +
              tools::PlainText((*words)[i]);
    }
    text += "\n";
  }
  return text.empty() ? text : "\n## Codes\n" + text;
}

}  // namespace

std::string ClassPage(const host::ClassDefinition& definition, const ClassNotes& notes,
                      const std::string& example) {
  return "# " + std::string(definition.name) + "\n\n" + definition.Description() + "\n\n" +
         Facts(definition, notes) + "\n" + notes.from + "\n\n## What to alert on\n\n" +
         notes.alert + "\n\n## Properties\n\n" + PropertyRows(definition, notes) +
         CodeTables(definition, notes) +
         "\n## Example\n\nThe first instance of the embedded sample, an invented server, on a "
         "computer named SERVER:\n\n```\n$ tqcim list " +
         std::string(definition.name) + " --format json\n" + example + "```\n";
}

std::string IndexLine(const host::ClassDefinition& definition) {
  const std::string text = definition.Description();
  const std::string name(definition.name);
  return "- [" + name + "](" + name + ".md): " + text.substr(0, text.find(". ")) +
         (text.find(". ") == std::string::npos ? "\n" : ".\n");
}

}  // namespace tqcim::testing
