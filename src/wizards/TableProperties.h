#pragma once
// The table properties dialog: cell properties for the grid's selection, and the table's
// size. It edits the grid, never the document.

#include <array>
#include <string>

#include "conventions/WizardCheck.h"
#include "wizards/TableGrid.h"

namespace tessarine {

class Application;

extern const std::array<const char*, 4> kVerticalAlignments;
extern const std::array<const char*, 4> kHorizontalAlignments;

struct TableProperties {
  // A cell field and whether the user touched it: only touched fields reach the cells, so
  // a selection whose cells differ keeps what nobody changed.
  struct Field {
    std::string text;
    bool changed = false;
    void Set(const std::string& value) {
      text = value;
      changed = true;
    }
  };
  Field rowSpan, colSpan, vertAlign, horizAlign;
  Field backgroundColor, borderColor, borderHighlight, borderShadow;
  std::string rowCount, columnCount;

  // The fields as the current cell and the table's size show them, all untouched.
  static TableProperties Load(const TableGrid& grid, int row, int col);
  // Copies the touched fields into every cell of `selection` inside the grid.
  void ApplyCellProperties(TableGrid& grid, CellRange selection) const;
};

// OK: changes the table's size if asked (with its questions), then checks the spans and
// applies the cell fields to the selection. On a failed check the message is shown, the
// dialog stays, and a size change already made stays made.
CheckResult TableProperties_OK(Application& app, TableProperties& form, TableGrid& grid,
                               CellRange selection);
// The size change alone; the fields show the table's size afterwards.
void ChangeTableSize(Application& app, TableProperties& form, TableGrid& grid);

}  // namespace tessarine
