#include "ui/wizards/TablePropertiesDialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

#include "conventions/TagConventions.h"
#include "core/Application.h"

namespace tessarine::ui {

TablePropertiesDialog::TablePropertiesDialog(Application& app, TableGrid& grid, CellRange selection,
                                             int row, int col, QWidget* parent)
    : WizardDialog(app, "TablePropertiesDialog", "Change Table properties", parent),
      grid_(grid),
      selection_(selection),
      form_(TableProperties::Load(grid, row, col)) {
  auto* layout = new QVBoxLayout(this);
  pages_ = new QTabWidget;
  pages_->setObjectName("pages");
  layout->addWidget(pages_);

  auto* cellPage = new QWidget;
  cellPage->setObjectName("cellPage");
  auto* cells = new QFormLayout(cellPage);
  auto spanField = [this](const char* name, TableProperties::Field& field) {
    auto* edit = new QLineEdit(Q(field.text));
    CellField(name, field, edit);
    return NumberField(edit, [edit, f = &field](int v) {
      edit->setText(QString::number(v));
      f->Set(S(edit->text()));
    });
  };
  cells->addRow("Row Span:", spanField("rowSpan", form_.rowSpan));
  cells->addRow("Column Span:", spanField("colSpan", form_.colSpan));
  auto alignField = [this](const char* name, TableProperties::Field& field,
                           const std::array<const char*, 4>& items) {
    auto* combo = new QComboBox;
    combo->setEditable(true);
    for (const char* i : items) combo->addItem(i);
    combo->setCurrentText(Q(field.text));
    return CellField(name, field, combo);
  };
  cells->addRow("Vertical Alignment:",
                alignField("vertAlign", form_.vertAlign, kVerticalAlignments));
  cells->addRow("Horizontal Alignment:",
                alignField("horizAlign", form_.horizAlign, kHorizontalAlignments));
  const std::tuple<const char*, const char*, TableProperties::Field*> colors[] = {
      {"backgroundColor", "Background Color:", &form_.backgroundColor},
      {"borderColor", "Border Color:", &form_.borderColor},
      {"borderHighlight", "Border Highlight:", &form_.borderHighlight},
      {"borderShadow", "Border Shadow:", &form_.borderShadow}};
  for (const auto& [name, caption, field] : colors) {
    auto* edit = new QLineEdit(Q(field->text));
    CellField(name, *field, edit);
    auto* box = new QWidget;
    auto* rowLayout = new QHBoxLayout(box);
    rowLayout->setContentsMargins(0, 0, 0, 0);
    rowLayout->addWidget(edit, 1);
    auto* pick = new QPushButton("...");
    pick->setObjectName(QString("pick_") + name);
    pick->setAutoDefault(false);
    pick->setFixedWidth(28);
    rowLayout->addWidget(pick);
    connect(pick, &QPushButton::clicked, this, [this, edit, field = field] {
      PickColor(app_);
      if (app_.wizards.ColorCancelled) return;
      edit->setText(Q(app_.wizards.PickedColorHex));
      field->Set(app_.wizards.PickedColorHex);
    });
    cells->addRow(caption, box);
  }
  pages_->addTab(cellPage, "Cell Properties");

  auto* sizePage = new QWidget;
  sizePage->setObjectName("sizePage");
  auto* size = new QFormLayout(sizePage);
  rowCount_ = new QLineEdit(Q(form_.rowCount));
  rowCount_->setObjectName("rowCount");
  columnCount_ = new QLineEdit(Q(form_.columnCount));
  columnCount_->setObjectName("columnCount");
  size->addRow("Number of Rows:",
               NumberField(rowCount_, [this](int v) { rowCount_->setText(QString::number(v)); }));
  size->addRow("Number of Columns:", NumberField(columnCount_, [this](int v) {
                 columnCount_->setText(QString::number(v));
               }));
  pages_->addTab(sizePage, "Table Size");

  AddButtons(layout, "okButton", [this] { return OK(); });
}

QWidget* TablePropertiesDialog::CellField(const char* name, TableProperties::Field& field,
                                          QWidget* input) {
  input->setObjectName(name);
  TableProperties::Field* f = &field;
  if (auto* edit = qobject_cast<QLineEdit*>(input))
    connect(edit, &QLineEdit::textEdited, this, [f](const QString& t) { f->Set(S(t)); });
  if (auto* combo = qobject_cast<QComboBox*>(input))
    connect(combo, &QComboBox::currentTextChanged, this, [f](const QString& t) { f->Set(S(t)); });
  return input;
}

QWidget* TablePropertiesDialog::NumberField(QLineEdit* edit, std::function<void(int)> stepped) {
  auto* box = new QWidget;
  auto* row = new QHBoxLayout(box);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(edit, 1);
  auto* upDown = new QSpinBox;
  upDown->setObjectName(edit->objectName().isEmpty() ? QString() : edit->objectName() + "UpDown");
  upDown->setRange(1, 100);
  upDown->setValue(std::max(1, edit->text().toInt()));
  upDown->setFixedWidth(18);
  row->addWidget(upDown);
  connect(upDown, &QSpinBox::valueChanged, this, std::move(stepped));
  return box;
}

bool TablePropertiesDialog::OK() {
  form_.rowCount = S(rowCount_->text());
  form_.columnCount = S(columnCount_->text());
  const CheckResult failed = TableProperties_OK(app_, form_, grid_, selection_);
  rowCount_->setText(Q(form_.rowCount));
  columnCount_->setText(Q(form_.columnCount));
  if (failed) {
    pages_->setCurrentIndex(0);
    FocusField(failed);
  }
  return !failed;
}

}  // namespace tessarine::ui
