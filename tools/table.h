/// Tables of text that fit a terminal.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tqcim::tools {

/// The blanks between two columns.
inline constexpr size_t kColumnGap = 2;

/// How the output is laid out.
struct Layout {
  size_t width = 80;
  bool colour = false;
};

/// A table. Cells are printable texts; a column whose cells are all numbers or "-" is set to the
/// right. Cells of the column "Status" are coloured where the layout has colours.
struct Table {
  std::vector<std::string> headings;
  std::vector<std::vector<std::string>> rows;
};

struct FittedTable {
  std::string text;
  /// The headings of the columns for which there was no room.
  std::vector<std::string> left_out;
};

/// The columns that fit, in their order, one line for each row. The first `mandatory` columns are
/// always there, their cells cut where they must.
FittedTable FitTable(const Table& table, size_t mandatory, const Layout& layout);

/// A status text in the colour of its severity.
std::string Coloured(const std::string& text, const std::string& status);

}  // namespace tqcim::tools
