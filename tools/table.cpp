#include "tools/table.h"

#include <algorithm>
#include <charconv>
#include <system_error>

#include "tools/text.h"

namespace tqcim::tools {
namespace {

/// A column is at least this wide where its cells are longer.
constexpr size_t kNarrowest = 4;
/// A column is cut to this width before another one is left out.
constexpr size_t kComfortable = 28;

size_t NaturalWidth(const Table& table, size_t column) {
  size_t width = ColumnCount(table.headings[column]);
  for (const auto& row : table.rows) width = std::max(width, ColumnCount(row[column]));
  return width;
}

/// A column that is shown.
struct Column {
  size_t position;
  size_t natural_width;
  size_t width;
  bool to_the_right;
};

size_t TotalWidth(const std::vector<Column>& columns) {
  size_t total = 0;
  for (const Column& column : columns) total += column.width + (total > 0 ? kColumnGap : 0);
  return total;
}

bool IsNumber(const std::string& cell) {
  double number = 0;
  const char* end = cell.data() + cell.size();
  const auto parsed = std::from_chars(cell.data(), end, number, std::chars_format::fixed);
  return parsed.ec == std::errc() && parsed.ptr == end;
}

bool IsNumeric(const Table& table, size_t column) {
  bool numeric = false;
  for (const auto& row : table.rows) {
    if (row[column] == "-") continue;
    if (!IsNumber(row[column])) return false;
    numeric = true;
  }
  return numeric;
}

std::vector<Column> FitColumns(const Table& table, size_t mandatory, size_t room) {
  std::vector<Column> columns;
  for (size_t position = 0; position < table.headings.size(); ++position) {
    const size_t natural = NaturalWidth(table, position);
    columns.push_back({.position = position,
                       .natural_width = natural,
                       .width = std::min(natural, kComfortable),
                       .to_the_right = IsNumeric(table, position)});
    if (position >= mandatory && TotalWidth(columns) > room) columns.pop_back();
  }
  while (TotalWidth(columns) > room) {
    Column& widest =
        *std::max_element(columns.begin(), columns.end(),
                          [](const Column& a, const Column& b) { return a.width < b.width; });
    if (widest.width <= kNarrowest) break;
    --widest.width;
  }
  for (Column& column : columns) {
    const size_t spare = room - std::min(room, TotalWidth(columns));
    column.width += std::min(spare, column.natural_width - column.width);
  }
  return columns;
}

std::string Padded(const std::string& text, const Column& column) {
  const std::string cut = CutToColumns(text, column.width);
  const std::string blanks(column.width - ColumnCount(cut), ' ');
  return column.to_the_right ? blanks + cut : cut + blanks;
}

}  // namespace

FittedTable FitTable(const Table& table, size_t mandatory, const Layout& layout) {
  const std::vector<Column> columns = FitColumns(table, mandatory, layout.width);
  const auto line = [&](const std::vector<std::string>& cells, bool with_colour) {
    std::string text;
    for (const Column& column : columns) {
      if (!text.empty()) text.append(kColumnGap, ' ');
      const std::string cell = Padded(cells[column.position], column);
      const bool coloured = with_colour && table.headings[column.position] == "Status";
      text += coloured ? Coloured(cell, cells[column.position]) : cell;
    }
    return text.substr(0, text.find_last_not_of(' ') + 1) + "\n";
  };
  FittedTable fitted{.text = line(table.headings, false), .left_out = {}};
  for (const auto& row : table.rows) fitted.text += line(row, layout.colour);
  for (size_t position = 0; position < table.headings.size(); ++position) {
    const bool shown =
        std::any_of(columns.begin(), columns.end(),
                    [position](const Column& column) { return column.position == position; });
    if (!shown) fitted.left_out.push_back(table.headings[position]);
  }
  return fitted;
}

std::string Coloured(const std::string& text, const std::string& status) {
  const char* colour = status == "OK"                                ? "\x1B[32m"
                       : status == "Stressed"                        ? "\x1B[33m"
                       : status == "Error" || status == "NonRecover" ? "\x1B[31m"
                                                                     : nullptr;
  return colour == nullptr ? text : colour + text + "\x1B[0m";
}

}  // namespace tqcim::tools
