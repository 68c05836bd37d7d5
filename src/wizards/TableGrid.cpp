#include "wizards/TableGrid.h"

#include <algorithm>

#include "core/TextServices.h"
#include "settings/Settings.h"

namespace tessarine {

void TableGrid::Resize(int rows, int cols) {
  rows = std::max(rows, 0);
  cols = std::max(cols, 0);
  if (cols == cols_) {
    cells_.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols));
    rows_ = rows;
    return;
  }
  std::vector<TableCell> cells(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols));
  const int keepRows = std::min(rows, rows_), keepCols = std::min(cols, cols_);
  for (int r = 0; r < keepRows; ++r)
    for (int c = 0; c < keepCols; ++c)
      cells[static_cast<std::size_t>(r) * static_cast<std::size_t>(cols) +
            static_cast<std::size_t>(c)] = std::move(At(r, c));
  cells_ = std::move(cells);
  rows_ = rows;
  cols_ = cols;
}

bool TableGrid::Clip(CellRange& range) const {
  if (range.top > range.bottom) std::swap(range.top, range.bottom);
  if (range.left > range.right) std::swap(range.left, range.right);
  range.top = std::max(range.top, 0);
  range.left = std::max(range.left, 0);
  range.bottom = std::min(range.bottom, rows_ - 1);
  range.right = std::min(range.right, cols_ - 1);
  return range.top <= range.bottom && range.left <= range.right;
}

int SpanCount(const std::string& text) {
  const double v = Val(text);
  if (!(v >= 1)) return 1;
  return v > 1e6 ? 1000000 : static_cast<int>(v);
}

SpanLayout LayOutSpans(int rows, int cols, const std::vector<std::pair<int, int>>& spans) {
  SpanLayout out;
  const std::size_t n = static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols);
  out.covered.assign(n, 0);
  std::vector<char> taken(n, 0);
  auto at = [cols](int r, int c) {
    return static_cast<std::size_t>(r) * static_cast<std::size_t>(cols) +
           static_cast<std::size_t>(c);
  };
  auto problem = [&out](SpanProblem p, int r, int c) {
    if (out.firstProblem != SpanProblem::None) return;
    out.firstProblem = p;
    out.problemRow = r;
    out.problemCol = c;
  };
  for (int r = 0; r < rows; ++r)
    for (int c = 0; c < cols; ++c) {
      const auto [wantRows, wantCols] = spans[at(r, c)];
      if (taken[at(r, c)]) {
        out.covered[at(r, c)] = 1;
        if (wantRows > 1 || wantCols > 1) problem(SpanProblem::Overlap, r, c);
        continue;
      }
      taken[at(r, c)] = 1;
      if (wantRows <= 1 && wantCols <= 1) continue;
      if (wantRows > rows - r || wantCols > cols - c) problem(SpanProblem::PastEdge, r, c);
      const int spanRows = std::min(wantRows, rows - r), spanCols = std::min(wantCols, cols - c);
      bool free = true;
      for (int rr = r; rr < r + spanRows && free; ++rr)
        for (int cc = c; cc < c + spanCols; ++cc)
          if ((rr != r || cc != c) && taken[at(rr, cc)]) {
            free = false;
            break;
          }
      if (!free) {
        problem(SpanProblem::Overlap, r, c);
        continue;
      }
      // A later cell inside the span that has a span of its own overlaps too.
      for (int rr = r; rr < r + spanRows; ++rr)
        for (int cc = c; cc < c + spanCols; ++cc) {
          if (rr == r && cc == c) continue;
          taken[at(rr, cc)] = 1;
        }
      if (spanRows > 1 || spanCols > 1) out.spans.push_back({r, c, spanRows, spanCols});
    }
  return out;
}

SpanLayout LayOutSpans(const TableGrid& grid) {
  std::vector<std::pair<int, int>> spans;
  spans.reserve(static_cast<std::size_t>(grid.Rows()) * static_cast<std::size_t>(grid.Cols()));
  for (int r = 0; r < grid.Rows(); ++r)
    for (int c = 0; c < grid.Cols(); ++c) {
      const TableCell& cell = grid.At(r, c);
      spans.emplace_back(cell.rowSpan.empty() ? 1 : SpanCount(cell.rowSpan),
                         cell.colSpan.empty() ? 1 : SpanCount(cell.colSpan));
    }
  return LayOutSpans(grid.Rows(), grid.Cols(), spans);
}

namespace {

void Attribute(std::string& out, const char* head, const std::string& value, bool hash = false) {
  if (value.empty()) return;
  out.append(head).append("\"");
  if (hash) out += '#';
  out.append(value).append("\"");
}

void CellLine(std::string& out, const TableCell& cell, bool upper) {
  std::string open = cell.header ? "<TH" : "<TD";
  Attribute(open, " COLSPAN=", cell.colSpan);
  Attribute(open, " ROWSPAN=", cell.rowSpan);
  Attribute(open, " ALIGN=", cell.align);
  Attribute(open, " VALIGN=", cell.vAlign);
  Attribute(open, " BGCOLOR=", cell.bgColor, true);
  Attribute(open, " BORDERCOLOR=", cell.borderColor, true);
  Attribute(open, " BORDERCOLORLIGHT=", cell.borderLight, true);
  // The cell's dark border colour is kept and edited, but never written.
  open += '>';
  const bool font = !cell.fontFace.empty() || !cell.fontSize.empty() || !cell.fontColor.empty();
  if (font) {
    open += "<FONT";
    Attribute(open, " FACE=", cell.fontFace);
    Attribute(open, " SIZE=", cell.fontSize);
    Attribute(open, " COLOR=", cell.fontColor, true);
    open += '>';
  }
  std::string close = font ? "</FONT>" : "";
  close += cell.header ? "</TH>" : "</TD>";
  out += "\t\t";
  out += upper ? open : LCase(open);
  out += cell.text;
  out += upper ? close : LCase(close);
  out += "\r\n";
}

}  // namespace

std::string TableText(const TableAttributes& table, const TableGrid& grid, bool upper) {
  const std::string attributes = table.border + table.spacing + table.padding + table.width +
                                 table.height + table.bgColor + table.borderColor +
                                 table.borderLight + table.borderDark;
  std::string out;
  out.reserve(64 + static_cast<std::size_t>(grid.Rows()) *
                       (16 + static_cast<std::size_t>(grid.Cols()) * 16));
  out += upper ? "<TABLE" + attributes : "<table" + LCase(attributes);
  out += '>';
  out += table.caption;
  out += "\r\n";
  const SpanLayout layout = LayOutSpans(grid);
  for (int r = 0; r < grid.Rows(); ++r) {
    out += upper ? "\t<TR>\r\n" : "\t<tr>\r\n";
    for (int c = 0; c < grid.Cols(); ++c)
      if (!layout.Covered(r, c, grid.Cols())) CellLine(out, grid.At(r, c), upper);
    out += upper ? "\t</TR>\r\n" : "\t</tr>\r\n";
  }
  out += upper ? "</TABLE>" : "</table>";
  return out;
}

}  // namespace tessarine
