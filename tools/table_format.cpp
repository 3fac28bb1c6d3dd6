#include <algorithm>
#include <numeric>
#include <string_view>
#include <utility>

#include "tools/formats.h"
#include "tools/property_words.h"
#include "tools/status.h"
#include "tools/text.h"

namespace tqcim::tools {
namespace {

/// Properties by their position in the class.
using Positions = std::vector<size_t>;

const host::Value& ValueOf(const host::Instance& instance, size_t position) {
  return instance.properties[position].value;
}

/// Of all properties, by their positions.
std::vector<PropertyWords> WordsOf(const host::ClassDefinition& definition) {
  std::vector<PropertyWords> words;
  words.reserve(definition.properties.size());
  for (const auto* property : definition.properties) words.emplace_back(*property);
  return words;
}

bool Differs(const Listing& listing, size_t position) {
  const host::Value& first = ValueOf(listing.instances.front(), position);
  return std::any_of(
      listing.instances.begin(), listing.instances.end(),
      [&](const host::Instance& instance) { return ValueOf(instance, position) != first; });
}

/// Keys, Status, Name, what the class itself declares, what it inherits.
Positions PutInOrder(Positions positions, const host::ClassDefinition& definition) {
  const auto rank = [&definition](size_t position) {
    const host::PropertyDefinition& property = *definition.properties[position];
    if (property.key) return 0;
    if (property.name == kStatus) return 1;
    if (property.name == "Name") return 2;
    return property.origin == definition.name ? 3 : 4;
  };
  std::stable_sort(positions.begin(), positions.end(),
                   [&rank](size_t a, size_t b) { return rank(a) < rank(b); });
  return positions;
}

Positions AllPositions(const host::ClassDefinition& definition) {
  Positions positions(definition.properties.size());
  std::iota(positions.begin(), positions.end(), size_t{0});
  return PutInOrder(std::move(positions), definition);
}

/// What a table shows in columns, and what it tells once for all instances.
struct Columns {
  Positions positions;
  /// How many stand first and can't be left out: keys and Status.
  size_t mandatory = 0;
  Positions common;
};

Columns ChooseColumns(const Listing& listing) {
  Columns columns;
  for (const size_t position : AllPositions(*listing.definition)) {
    const host::PropertyDefinition& property = *listing.definition->properties[position];
    const bool status =
        property.name == kStatus && !host::IsNull(ValueOf(listing.instances.front(), position));
    if (!status && !Differs(listing, position)) {
      columns.common.push_back(position);
      continue;
    }
    columns.positions.push_back(position);
    if (status || property.key) ++columns.mandatory;
  }
  return columns;
}

Table MakeTable(const Listing& listing, const Positions& positions,
                const std::vector<PropertyWords>& words) {
  const auto& properties = listing.definition->properties;
  Table table;
  for (const size_t i : positions) table.headings.emplace_back(properties[i]->name);
  for (const host::Instance& instance : listing.instances) {
    std::vector<std::string>& row = table.rows.emplace_back();
    for (const size_t i : positions) row.push_back(words[i].Readable(ValueOf(instance, i)));
  }
  return table;
}

std::string Heading(const Listing& listing, const Layout& layout) {
  const size_t count = listing.instances.size();
  const std::string number = count == 0   ? "no instances"
                             : count == 1 ? "1 instance"
                                          : std::to_string(count) + " instances";
  return Wrapped(std::string(listing.definition->name) + ": " + number + ", from " + listing.source,
                 0, layout.width) +
         "\n";
}

/// One line for each of the properties that isn't null.
std::string PropertyLines(const host::Instance& instance, const Positions& positions,
                          const std::vector<PropertyWords>& words, const Layout& layout) {
  size_t name_width = 0;
  for (const size_t i : positions) {
    const host::Property& property = instance.properties[i];
    if (!host::IsNull(property.value)) name_width = std::max(name_width, property.name.size());
  }
  const size_t indent = 2 + name_width + 2;
  std::string text;
  for (const size_t i : positions) {
    const host::Property& property = instance.properties[i];
    if (host::IsNull(property.value)) continue;
    std::string value = Wrapped(words[i].ReadableWithUnits(property.value), indent, layout.width);
    if (layout.colour && property.name == kStatus) value = Coloured(value, value);
    std::string line = "  " + std::string(property.name);
    if (!value.empty()) line.append(indent - line.size(), ' ');
    text += line + value + "\n";
  }
  return text;
}

/// Whether references are too long for columns: cut, they might all look the same.
bool HasCutReferences(const Listing& listing, const std::vector<PropertyWords>& words,
                      const Layout& layout) {
  const auto& properties = listing.definition->properties;
  size_t total = 0;
  for (size_t i = 0; i < properties.size(); ++i) {
    if (properties[i]->type != host::CimType::kReference) continue;
    size_t width = 0;
    for (const host::Instance& instance : listing.instances) {
      width = std::max(width, ColumnCount(words[i].Readable(ValueOf(instance, i))));
    }
    total += width + (total > 0 ? kColumnGap : 0);
  }
  return total > layout.width;
}

std::string JoinedNames(const std::vector<std::string>& names) {
  std::string joined;
  for (const std::string& name : names) joined += (joined.empty() ? "" : ", ") + name;
  return joined;
}

}  // namespace

std::string BlockText(const Listing& listing, const Layout& layout) {
  const host::ClassDefinition& definition = *listing.definition;
  const Positions positions = AllPositions(definition);
  const std::vector<PropertyWords> words = WordsOf(definition);
  std::string text = Heading(listing, layout);
  for (const host::Instance& instance : listing.instances) {
    text += '\n';
    // The path of an association would say the two references once more.
    if (!definition.association) text += Printable(instance.Path()) + '\n';
    text += PropertyLines(instance, positions, words, layout);
  }
  return text;
}

std::string TableText(const Listing& listing, const Layout& layout) {
  const std::vector<PropertyWords> words = WordsOf(*listing.definition);
  if (listing.instances.size() < 2 || HasCutReferences(listing, words, layout)) {
    return BlockText(listing, layout);
  }
  const Columns columns = ChooseColumns(listing);
  const FittedTable fitted =
      FitTable(MakeTable(listing, columns.positions, words), columns.mandatory, layout);
  std::string text = Heading(listing, layout);
  if (!columns.positions.empty()) text += '\n' + fitted.text;
  if (!fitted.left_out.empty()) {
    const std::string names = JoinedNames(fitted.left_out);
    text += '\n';
    text += Wrapped("No room for " + names + "; --full shows everything.", 0, layout.width) + '\n';
  }
  const std::string common =
      PropertyLines(listing.instances.front(), columns.common, words, layout);
  if (!common.empty()) text += "\nThe same in all of them:\n" + common;
  return text;
}

std::string TableText(const std::vector<ClassSummary>& classes, const std::string& source,
                      const Layout& layout) {
  Table table{.headings = {"Class", "Instances", "Status"}, .rows = {}};
  for (const ClassSummary& summary : classes) {
    table.rows.push_back(
        {summary.name, std::to_string(summary.instances), summary.status.value_or("-")});
  }
  return Wrapped("Classes from " + source, 0, layout.width) + "\n\n" +
         FitTable(table, table.headings.size(), layout).text;
}

}  // namespace tqcim::tools
