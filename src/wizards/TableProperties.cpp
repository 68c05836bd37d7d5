#include "wizards/TableProperties.h"

#include "core/Application.h"
#include "platform/MessageBoxes.h"
#include "settings/Settings.h"
#include "wizards/ListItems.h"
#include "wizards/TableWizard.h"

namespace tessarine {

const std::array<const char*, 4> kVerticalAlignments = {"Top", "Middle", "Bottom", "Baseline"};
const std::array<const char*, 4> kHorizontalAlignments = {"Left", "Center", "Right", "Justify"};

TableProperties TableProperties::Load(const TableGrid& grid, int row, int col) {
  TableProperties p;
  p.rowCount = std::to_string(grid.Rows());
  p.columnCount = std::to_string(grid.Cols());
  if (row < 0 || col < 0 || row >= grid.Rows() || col >= grid.Cols()) return p;
  const TableCell& cell = grid.At(row, col);
  p.rowSpan.text = cell.rowSpan;
  p.colSpan.text = cell.colSpan;
  p.vertAlign.text = cell.vAlign;
  p.horizAlign.text = cell.align;
  p.backgroundColor.text = cell.bgColor;
  p.borderColor.text = cell.borderColor;
  p.borderHighlight.text = cell.borderLight;
  p.borderShadow.text = cell.borderDark;
  return p;
}

void TableProperties::ApplyCellProperties(TableGrid& grid, CellRange selection) const {
  if (!grid.Clip(selection)) return;
  const std::pair<const Field*, std::string TableCell::*> fields[] = {
      {&colSpan, &TableCell::colSpan},
      {&rowSpan, &TableCell::rowSpan},
      {&horizAlign, &TableCell::align},
      {&vertAlign, &TableCell::vAlign},
      {&backgroundColor, &TableCell::bgColor},
      {&borderColor, &TableCell::borderColor},
      {&borderHighlight, &TableCell::borderLight},
      {&borderShadow, &TableCell::borderDark}};
  for (int r = selection.top; r <= selection.bottom; ++r)
    for (int c = selection.left; c <= selection.right; ++c)
      for (const auto& [field, member] : fields)
        if (field->changed) grid.At(r, c).*member = field->text;
}

namespace {

const char* const kSizeRange =
    "Enter a number between 1 and 100 for the number of table rows or columns.";

// A count that would leave the grid without a row or column is no count either.
bool CountAcceptable(const std::string& text) {
  if (text.empty() || !IsNumeric(text)) return false;
  const int v = ToInt16(Val(text));
  return v >= 1 && v <= 100 && Val(text) <= 100;
}

bool AskShrink(Application& app, const char* what) {
  const std::string text = std::string("The specified number of ") + what +
                           " is smaller than the existing number of table " + what +
                           ".\r\nIf you continue, you will lose the data contained in the "
                           "removed " +
                           what + ".\r\n\r\nDo you wish to continue?";
  return app.messages.Show(text, MsgButtons::YesNo, MsgIcon::Question, app.title) == MsgAnswer::Yes;
}

}  // namespace

void ChangeTableSize(Application& app, TableProperties& form, TableGrid& grid) {
  auto restore = [&] {
    form.rowCount = std::to_string(grid.Rows());
    form.columnCount = std::to_string(grid.Cols());
  };
  if (!CountAcceptable(form.rowCount) || !CountAcceptable(form.columnCount)) {
    app.messages.Show(kSizeRange, MsgButtons::OK, MsgIcon::None, app.title);
    restore();
    return;
  }
  const int rows = ToInt16(Val(form.rowCount)), cols = ToInt16(Val(form.columnCount));
  if (rows >= grid.Rows() || AskShrink(app, "rows")) grid.Resize(rows, grid.Cols());
  if (cols >= grid.Cols() || AskShrink(app, "columns")) grid.Resize(grid.Rows(), cols);
  restore();
}

CheckResult TableProperties_OK(Application& app, TableProperties& form, TableGrid& grid,
                               CellRange selection) {
  if (Val(form.rowCount) != grid.Rows() || Val(form.columnCount) != grid.Cols())
    ChangeTableSize(app, form, grid);
  const double rows = Val(form.rowCount), cols = Val(form.columnCount);
  if (Val(form.rowSpan.text) > rows || Val(form.colSpan.text) > cols)
    return ShowRefusal(app, WizardCheck{"Row or column span cannot be larger than the total "
                                        "number of rows or columns in the table.",
                                        "rowSpan"});

  // Spans that reach past the table's edge or into each other would be cut or dropped in
  // the grid and the page alike: refuse them before anything is applied.
  if ((form.rowSpan.changed || form.colSpan.changed) && grid.Clip(selection)) {
    std::vector<std::pair<int, int>> spans;
    spans.reserve(static_cast<std::size_t>(grid.Rows()) * static_cast<std::size_t>(grid.Cols()));
    for (int r = 0; r < grid.Rows(); ++r)
      for (int c = 0; c < grid.Cols(); ++c) {
        const bool selected = r >= selection.top && r <= selection.bottom && c >= selection.left &&
                              c <= selection.right;
        const TableCell& cell = grid.At(r, c);
        const std::string& rs = selected && form.rowSpan.changed ? form.rowSpan.text : cell.rowSpan;
        const std::string& cs = selected && form.colSpan.changed ? form.colSpan.text : cell.colSpan;
        spans.emplace_back(SpanCount(rs), SpanCount(cs));
      }
    const SpanLayout layout = LayOutSpans(grid.Rows(), grid.Cols(), spans);
    if (layout.firstProblem == SpanProblem::PastEdge)
      return ShowRefusal(
          app, WizardCheck{"The span of the cell in row " + std::to_string(layout.problemRow + 1) +
                               ", column " + std::to_string(layout.problemCol + 1) +
                               " reaches past the edge of the table.",
                           "rowSpan"});
    if (layout.firstProblem == SpanProblem::Overlap)
      return ShowRefusal(
          app, WizardCheck{"The span of the cell in row " + std::to_string(layout.problemRow + 1) +
                               ", column " + std::to_string(layout.problemCol + 1) +
                               " overlaps another spanned cell.",
                           "rowSpan"});
  }
  form.ApplyCellProperties(grid, selection);
  return std::nullopt;
}

}  // namespace tessarine
