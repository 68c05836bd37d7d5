#pragma once
// The table wizard's second stage: the grid in which the cells are typed, given fonts and
// made headers, its preview file, and the table written at the caret.

#include <array>
#include <string>

#include "wizards/TableGrid.h"

namespace tessarine {

class Application;
struct TableSetup;

extern const std::array<const char*, 12> kCellFontNames;
extern const std::array<const char*, 7> kCellFontSizes;

constexpr std::size_t kMaxCellText = 255;
extern const char* const kCellTextTooLong;

struct TableEditor {
  explicit TableEditor(const TableSetup& setup);

  TableAttributes attributes;
  TableGrid grid;

  // The cell text field's change: the text is stored whatever its length; true when it has
  // just grown past the limit and the message is due.
  bool SetCellText(int row, int col, const std::string& text);
  enum class FontField { Face, Size, Color };
  // A font field's change reaches every cell of the selection.
  void SetFont(CellRange selection, FontField field, const std::string& value);
  void SetHeader(CellRange selection, bool header);
};

// The image button: browses for a file and gives the IMG tag to append to the cell's text,
// its path relative to the active document; "" when cancelled.
std::string TableImageTag(Application& app);
// The table in upper case, written to "tsrntabl.htm" in the program's folder (replacing it)
// and opened in the desktop's viewer. False, after a message, when it could not be written.
bool PreviewTable(Application& app, const TableEditor& editor);
// Done: the table at the caret, over the selection, with the undo history emptied first.
void TableEditor_Done(Application& app, const TableEditor& editor);

}  // namespace tessarine
