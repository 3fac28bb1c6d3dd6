#include <span>

#include "tools/formats.h"
#include "tools/text.h"

namespace tqcim::tools {
namespace {

using Field = std::optional<std::string>;

std::string FieldText(const Field& field) {
  if (!field) return {};
  if (!field->empty() && field->find_first_of(",\"\r\n") == std::string::npos) return *field;
  std::string quoted = "\"";
  for (const char character : *field) {
    if (character == '"') quoted += '"';
    quoted += character;
  }
  return quoted + '"';
}

std::string Line(std::span<const Field> fields) {
  std::string line;
  for (const Field& field : fields) {
    if (&field != fields.data()) line += ',';
    line += FieldText(field);
  }
  return line + "\r\n";
}

}  // namespace

std::string CsvText(const Listing& listing) {
  std::vector<Field> header;
  for (const auto& property : listing.definition->properties) {
    header.emplace_back(property->name);
  }
  std::string text = Line(header);
  for (const host::Instance& instance : listing.instances) {
    std::vector<Field> fields;
    for (const host::Property& property : instance.properties) {
      fields.push_back(host::IsNull(property.value) ? Field() : PlainText(property.value));
    }
    text += Line(fields);
  }
  return text;
}

std::string CsvText(const std::vector<ClassSummary>& classes) {
  const Field header[] = {"class", "instances", "status"};
  std::string text = Line(header);
  for (const ClassSummary& summary : classes) {
    const Field fields[] = {summary.name, std::to_string(summary.instances), summary.status};
    text += Line(fields);
  }
  return text;
}

}  // namespace tqcim::tools
