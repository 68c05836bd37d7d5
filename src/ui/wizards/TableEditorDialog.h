#pragma once
// The table wizard's grid: cells typed in place or in the cell text field, fonts and
// headers set on the selection, cell properties, a preview, and Done writing the table.

#include "ui/wizards/WizardDialog.h"
#include "wizards/TableEditor.h"

class QAction;
class QComboBox;
class QLineEdit;
class QTableView;

namespace tessarine::ui {

class TableGridModel;

class TableEditorDialog : public WizardDialog {
 public:
  TableEditorDialog(Application& app, const TableSetup& setup, QWidget* parent);
  ~TableEditorDialog() override;
  const TableEditor& Editor() const { return editor_; }
  QTableView* Grid() const { return grid_; }
  // The grid's selection as one rectangle; the current cell when nothing is selected.
  CellRange Selection() const;
  void OpenCellProperties();

 private:
  void LoadCurrentCell();
  void ApplyFont(TableEditor::FontField field, const QString& value);
  void CellTextEdited(const QString& text);
  void RefreshGrid();

  TableEditor editor_;
  TableGridModel* model_;
  QTableView* grid_;
  QLineEdit* cellText_;
  QComboBox* fontName_;
  QComboBox* fontSize_;
  QLineEdit* fontColor_;
  QAction* header_;
};

}  // namespace tessarine::ui
