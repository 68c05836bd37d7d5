#include "wizards/TableEditor.h"

#include "conventions/CFile.h"
#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/FileSave.h"
#include "core/Preview.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"
#include "platform/MessageBoxes.h"
#include "wizards/TableWizard.h"

namespace tessarine {

const std::array<const char*, 12> kCellFontNames = {
    "Terminal", "MS Serif", "MS Sans Serif", "Courier",         "Symbol",    "Modern",
    "Marlett",  "Arial",    "Courier New",   "Times New Roman", "Wingdings", "CG Times"};
const std::array<const char*, 7> kCellFontSizes = {"1", "2", "3", "4", "5", "6", "7"};
const char* const kCellTextTooLong = "The maximum number of characters in each cell is 255.";

TableEditor::TableEditor(const TableSetup& setup)
    : attributes(setup.attributes), grid(setup.rows, setup.cols) {}

bool TableEditor::SetCellText(int row, int col, const std::string& text) {
  if (row < 0 || col < 0 || row >= grid.Rows() || col >= grid.Cols()) return false;
  std::string& stored = grid.At(row, col).text;
  // Told once as the limit is crossed, not again for every further key.
  const bool crossed = text.size() > kMaxCellText && stored.size() <= kMaxCellText;
  stored = text;
  return crossed;
}

void TableEditor::SetFont(CellRange selection, FontField field, const std::string& value) {
  if (!grid.Clip(selection)) return;
  std::string TableCell::*member = field == FontField::Face   ? &TableCell::fontFace
                                   : field == FontField::Size ? &TableCell::fontSize
                                                              : &TableCell::fontColor;
  for (int r = selection.top; r <= selection.bottom; ++r)
    for (int c = selection.left; c <= selection.right; ++c) grid.At(r, c).*member = value;
}

void TableEditor::SetHeader(CellRange selection, bool header) {
  if (!grid.Clip(selection)) return;
  for (int r = selection.top; r <= selection.bottom; ++r)
    for (int c = selection.left; c <= selection.right; ++c) grid.At(r, c).header = header;
}

std::string TableImageTag(Application& app) {
  CFile file(app.fileDialogs);
  if (file.BrowseForFile().empty()) return "";
  DocumentWindow* window = app.ActiveDocument();
  const std::string caption = window ? window->Caption() : "Untitled";
  return "<IMG SRC=\"" + RelativePath(caption, file.Path) + file.Filename + "\">";
}

bool PreviewTable(Application& app, const TableEditor& editor) {
  const std::string path = app.programFolder + "/tsrntabl.htm";
  const int error = WriteFileReplacing(path, TableText(editor.attributes, editor.grid, true), "");
  if (error != 0) {
    app.messages.Show(
        "The table preview could not be written to " + path + ": " + ErrorDescription(error) + ".",
        MsgButtons::OK, MsgIcon::Exclamation, app.title);
    return false;
  }
  OpenInDefaultViewer(app, path);
  return true;
}

void TableEditor_Done(Application& app, const TableEditor& editor) {
  // Written as one replacement: the same bytes the piece-by-piece writing gives, and a
  // large table stays one quick edit.
  HandOverText(app, TableText(editor.attributes, editor.grid, TagCaseUpper(app) == 1), true);
}

}  // namespace tessarine
