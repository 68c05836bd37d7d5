#pragma once
// The table wizard's grid: the cells with their text, attributes and fonts, the spans as
// the grid shows them, and the table's text as it is written.

#include <cstddef>
#include <string>
#include <vector>

namespace tessarine {

// The table's own attributes, each finished with its leading blank, or empty.
struct TableAttributes {
  std::string border, spacing, padding, width, height;
  std::string bgColor, borderColor, borderLight, borderDark;
  std::string caption;       // the whole caption element, its line end in front
  std::string captionAlign;  // the caption's alignment attribute
};

struct TableCell {
  std::string text;
  // Taken as typed; colours are six digits without "#".
  std::string colSpan, rowSpan, align, vAlign;
  std::string bgColor, borderColor, borderLight, borderDark;
  bool header = false;
  std::string fontFace, fontSize, fontColor;
};

// Rows and columns from 0, both ends included.
struct CellRange {
  int top = 0, left = 0, bottom = 0, right = 0;
};

// A cell that spans more than itself, as far as it reaches inside the table.
struct CellSpan {
  int row, col, rows, cols;
};

class TableGrid {
 public:
  TableGrid() = default;
  TableGrid(int rows, int cols) { Resize(rows, cols); }

  int Rows() const { return rows_; }
  int Cols() const { return cols_; }
  TableCell& At(int row, int col) { return cells_[Index(row, col)]; }
  const TableCell& At(int row, int col) const { return cells_[Index(row, col)]; }
  // Keeps the cells that still fit; new ones start empty. Counts below 0 count as 0.
  void Resize(int rows, int cols);
  // `range` cut down to the grid; false when nothing of it is inside.
  bool Clip(CellRange& range) const;

 private:
  std::size_t Index(int row, int col) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(cols_) +
           static_cast<std::size_t>(col);
  }
  int rows_ = 0, cols_ = 0;
  std::vector<TableCell> cells_;
};

// The number a span field stands for: 1 for an empty or unreadable text.
int SpanCount(const std::string& text);

// Where spans meet trouble. The layout resolves both; the properties dialog refuses them.
enum class SpanProblem { None, PastEdge, Overlap };
struct SpanLayout {
  std::vector<CellSpan> spans;
  // One flag per cell, row by row: hidden under another cell's span.
  std::vector<char> covered;
  SpanProblem firstProblem = SpanProblem::None;
  int problemRow = -1, problemCol = -1;
  bool Covered(int row, int col, int cols) const {
    return covered[static_cast<std::size_t>(row) * static_cast<std::size_t>(cols) +
                   static_cast<std::size_t>(col)] != 0;
  }
};
// Cells row by row: a span is cut at the table's edge; a span that would reach into a cell
// already taken (by an earlier span, or by a cell with a span of its own) stays a single
// cell; a cell under an earlier span is hidden.
SpanLayout LayOutSpans(const TableGrid& grid);
// The same over bare span counts, one pair (rows, columns) per cell row by row.
SpanLayout LayOutSpans(int rows, int cols, const std::vector<std::pair<int, int>>& spans);

// The table's whole text: the TABLE line with the caption, one block per row, one line per
// shown cell, and the end tag with no line end behind it. In lower case the tags and
// attributes are folded, values included; the caption and the cells' text never are.
std::string TableText(const TableAttributes& table, const TableGrid& grid, bool upper);

}  // namespace tessarine
