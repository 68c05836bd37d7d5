#pragma once
// Cell properties for the grid's selection, and the table's size. It edits the grid only.

#include <map>

#include "ui/wizards/WizardDialog.h"
#include "wizards/TableProperties.h"

class QLineEdit;
class QComboBox;
class QTabWidget;

namespace tessarine::ui {

class TablePropertiesDialog : public WizardDialog {
 public:
  TablePropertiesDialog(Application& app, TableGrid& grid, CellRange selection, int row, int col,
                        QWidget* parent);
  const TableProperties& Form() const { return form_; }

 private:
  // A cell field: its widget's edits set the field's text and its changed flag.
  QWidget* CellField(const char* name, TableProperties::Field& field, QWidget* input);
  QWidget* NumberField(QLineEdit* edit, std::function<void(int)> stepped);
  bool OK();

  TableGrid& grid_;
  CellRange selection_;
  TableProperties form_;
  QTabWidget* pages_;
  QLineEdit* rowCount_;
  QLineEdit* columnCount_;
};

}  // namespace tessarine::ui
