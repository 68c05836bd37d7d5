#include "ui/wizards/TableWizardDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "platform/MessageBoxes.h"
#include "settings/Settings.h"

namespace tessarine::ui {

namespace {

QWidget* Page(const char* name, const QString& heading, const QString& text, QLayout* body) {
  auto* page = new QWidget;
  page->setObjectName(name);
  auto* layout = new QVBoxLayout(page);
  if (!heading.isEmpty()) {
    auto* h = new QLabel("<b>" + heading + "</b>");
    h->setObjectName(QString(name) + "Heading");
    layout->addWidget(h);
    auto* t = new QLabel(text);
    t->setWordWrap(true);
    layout->addWidget(t);
  }
  layout->addLayout(body);
  layout->addStretch();
  return page;
}

QPushButton* Button(const char* name, const QString& caption) {
  auto* b = new QPushButton(caption);
  b->setObjectName(name);
  b->setAutoDefault(false);
  return b;
}

const char* const kOptional = "The following properties are optional.";

}  // namespace

TableWizardDialog::TableWizardDialog(Application& app, bool beginner, QWidget* parent)
    : WizardDialog(app, "TableWizardDialog", "Table Wizard", parent), beginner_(beginner) {
  auto* layout = new QVBoxLayout(this);
  pages_ = new QStackedWidget;
  pages_->setObjectName("pages");
  layout->addWidget(pages_);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  auto* cancel = Button("cancelButton", "&Cancel");
  if (beginner_) {
    for (QWidget* w : {BuildStep1(), BuildStep2(), BuildStep3(), BuildStep4()})
      pages_->addWidget(w);
    previous_ = Button("previousButton", "<< &Previous");
    next_ = Button("nextButton", "&Next >>");
    next_->setDefault(true);
    buttons->addWidget(previous_);
    buttons->addWidget(next_);
    connect(previous_, &QPushButton::clicked, this, &TableWizardDialog::Previous);
    connect(next_, &QPushButton::clicked, this, &TableWizardDialog::Next);
  } else {
    pages_->addWidget(BuildAdvanced());
    continue_ = Button("continueButton", "Co&ntinue...");
    continue_->setDefault(true);
    buttons->addWidget(continue_);
    connect(continue_, &QPushButton::clicked, this, &TableWizardDialog::Continue);
  }
  buttons->addWidget(cancel);
  layout->addLayout(buttons);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  UpdateEnabled();
}

int TableWizardDialog::Step() const {
  return beginner_ ? pages_->currentIndex() + 1 : 0;
}

QLineEdit* TableWizardDialog::Edit(const char* name) {
  auto* e = new QLineEdit;
  e->setObjectName(name);
  edits_[name] = e;
  return e;
}

QComboBox* TableWizardDialog::Combo(const char* name, bool editable) {
  auto* c = new QComboBox;
  c->setObjectName(name);
  c->setEditable(editable);
  combos_[name] = c;
  return c;
}

QWidget* TableWizardDialog::ColorField(const char* name) {
  auto* box = new QWidget;
  auto* row = new QHBoxLayout(box);
  row->setContentsMargins(0, 0, 0, 0);
  QLineEdit* field = Edit(name);
  row->addWidget(field, 1);
  auto* pick = Button((std::string("pick_") + name).c_str(), "...");
  pick->setFixedWidth(28);
  pick->setToolTip("Pick a colour");
  row->addWidget(pick);
  connect(pick, &QPushButton::clicked, this, [this, field] {
    PickColor(app_);
    if (!app_.wizards.ColorCancelled) field->setText(Q(app_.wizards.PickedColorHex));
  });
  return box;
}

void TableWizardDialog::CountField(QLineEdit* field,
                                   std::optional<CountCorrection> (*changed)(const std::string&)) {
  connect(field, &QLineEdit::textChanged, this, [this, field, changed](const QString& text) {
    const auto correction = changed(S(text));
    if (!correction) return;
    app_.messages.Show(correction->message, MsgButtons::OK, MsgIcon::None, app_.title);
    field->setText(Q(correction->text));
  });
}

QString TableWizardDialog::Text(const char* name) const {
  if (auto e = edits_.find(name); e != edits_.end()) return e->second->text();
  if (auto c = combos_.find(name); c != combos_.end()) return c->second->currentText();
  return {};
}

QWidget* TableWizardDialog::BuildStep1() {
  auto* form = new QFormLayout;
  form->addRow("# of Rows:", Edit("rowCount"));
  form->addRow("# of Columns:", Edit("columnCount"));
  CountField(edits_["rowCount"], &BeginnerTableSteps::RowCountChanged);
  CountField(edits_["columnCount"], &BeginnerTableSteps::ColumnCountChanged);
  return Page("step1", "Step 1",
              "Enter the number of Rows and Columns in your Table.  You can change the number of "
              "rows and columns while you are inputing the cell contents later on.",
              form);
}

QWidget* TableWizardDialog::BuildStep2() {
  auto* form = new QFormLayout;
  QComboBox* border = Combo("borderSize", true);
  for (int i = 0; i <= 10; ++i) border->addItem(QString::number(i));
  border->setCurrentText("0");
  form->addRow("Border Size:", border);
  auto* hint = new QLabel("Specify the border thickness.  The default is 0 (no border).");
  hint->setWordWrap(true);
  form->addRow("", hint);
  form->addRow("Caption text:", Edit("captionText"));
  QComboBox* location = Combo("captionLocation", false);
  for (const char* l : kCaptionLocations) location->addItem(l);
  location->setCurrentIndex(-1);
  captionLocationLabel_ = new QLabel("Location:");
  form->addRow(captionLocationLabel_, location);
  connect(border, &QComboBox::currentTextChanged, this, &TableWizardDialog::UpdateEnabled);
  connect(edits_["captionText"], &QLineEdit::textChanged, this, [this, location] {
    // Enabled, and set to its first item, only while there is a caption.
    const bool on = !edits_["captionText"]->text().isEmpty();
    if (on && !location->isEnabled()) location->setCurrentIndex(0);
    if (!on) location->setCurrentIndex(-1);
    UpdateEnabled();
  });
  return Page("step2", "Step 2", kOptional, form);
}

QWidget* TableWizardDialog::BuildStep3() {
  auto* form = new QFormLayout;
  for (const char* name : {"tableWidth", "tableHeight"}) {
    QComboBox* c = Combo(name, true);
    for (const char* s : kTableSizes) c->addItem(s);
    c->setCurrentText("");
  }
  form->addRow(new QLabel("Table Width (specified in pixels or percentage of browser width):"));
  form->addRow(combos_["tableWidth"]);
  form->addRow(new QLabel("Table Height (specified in pixels or percentage of browser height):"));
  form->addRow(combos_["tableHeight"]);
  form->addRow("Cell Spacing (specified in pixels):", Edit("cellSpacing"));
  form->addRow("Cell Padding (specified in pixels):", Edit("cellPadding"));
  return Page("step3", "Step 3", kOptional, form);
}

QWidget* TableWizardDialog::BuildStep4() {
  auto* form = new QFormLayout;
  form->addRow("Background Color:", ColorField("backgroundColor"));
  const std::pair<const char*, const char*> borders[] = {{"borderColor", "*Border Color:"},
                                                         {"borderHighlight", "*Border Highlight:"},
                                                         {"borderShadow", "*Border Shadow:"}};
  for (const auto& [name, caption] : borders) {
    auto* label = new QLabel(caption);
    QWidget* field = ColorField(name);
    form->addRow(label, field);
    borderColorWidgets_.push_back(label);
    borderColorWidgets_.push_back(field);
  }
  form->addRow(new QLabel("* Only supported by Internet Explorer"));
  return Page("step4", "Step 4", kOptional, form);
}

QWidget* TableWizardDialog::BuildAdvanced() {
  auto* grid = new QGridLayout;
  int row = 0;
  auto add = [&](const char* caption, QWidget* field, int column = 0) {
    auto* label = new QLabel(caption);
    grid->addWidget(label, row, column);
    grid->addWidget(field, row, column + 1);
    return label;
  };
  add("# of Rows:", Edit("advancedRowCount"));
  add("# of Columns:", Edit("advancedColumnCount"), 2);
  CountField(edits_["advancedRowCount"], &AdvancedTablePage::RowCountChanged);
  CountField(edits_["advancedColumnCount"], &AdvancedTablePage::ColumnCountChanged);
  ++row;
  for (const char* name : {"advancedWidth", "advancedHeight"}) {
    QComboBox* c = Combo(name, true);
    for (const char* s : kTableSizes) c->addItem(s);
    c->setCurrentText("");
  }
  add("Table Width:", combos_["advancedWidth"]);
  add("Table Height:", combos_["advancedHeight"], 2);
  ++row;
  borderCheck_ = new QCheckBox("Border");
  borderCheck_->setObjectName("borderCheck");
  grid->addWidget(borderCheck_, row, 0);
  QLineEdit* size = Edit("advancedBorderSize");
  size->setText("1");
  auto* sizeBox = new QWidget;
  auto* sizeRow = new QHBoxLayout(sizeBox);
  sizeRow->setContentsMargins(0, 0, 0, 0);
  sizeRow->addWidget(size, 1);
  auto* upDown = new QSpinBox;
  upDown->setObjectName("advancedBorderSizeUpDown");
  upDown->setRange(0, 100);
  upDown->setValue(1);
  upDown->setFixedWidth(18);
  sizeRow->addWidget(upDown);
  connect(upDown, &QSpinBox::valueChanged, this,
          [size](int v) { size->setText(QString::number(v)); });
  advancedBorderWidgets_.push_back(add("Border Size:", sizeBox, 2));
  advancedBorderWidgets_.push_back(sizeBox);
  ++row;
  add("Cell Spacing:", Edit("advancedCellSpacing"));
  add("Cell Padding:", Edit("advancedCellPadding"), 2);
  ++row;
  add("Background Color:", ColorField("advancedBackgroundColor"));
  QWidget* borderColor = ColorField("advancedBorderColor");
  advancedBorderWidgets_.push_back(add("Border Color:", borderColor, 2));
  advancedBorderWidgets_.push_back(borderColor);
  ++row;
  QWidget* light = ColorField("advancedBorderColorLight");
  advancedBorderWidgets_.push_back(add("BorderColorLight:", light));
  advancedBorderWidgets_.push_back(light);
  QWidget* dark = ColorField("advancedBorderColorDark");
  advancedBorderWidgets_.push_back(add("BorderColorDark:", dark, 2));
  advancedBorderWidgets_.push_back(dark);
  ++row;
  add("Table Caption", Edit("advancedCaption"));
  alignTop_ = new QRadioButton("Align Top");
  alignTop_->setObjectName("alignTop");
  alignBottom_ = new QRadioButton("Align Bottom");
  alignBottom_->setObjectName("alignBottom");
  grid->addWidget(alignTop_, row, 2);
  grid->addWidget(alignBottom_, row, 3);
  connect(borderCheck_, &QCheckBox::toggled, this, &TableWizardDialog::UpdateEnabled);
  connect(edits_["advancedCaption"], &QLineEdit::textChanged, this,
          &TableWizardDialog::UpdateEnabled);
  return Page("advanced", "", "", grid);
}

void TableWizardDialog::UpdateEnabled() {
  if (beginner_) {
    const BeginnerTableSteps steps = Beginner();
    for (QWidget* w : borderColorWidgets_) w->setEnabled(steps.BorderColorsEnabled());
    combos_["captionLocation"]->setEnabled(steps.CaptionLocationEnabled());
    captionLocationLabel_->setEnabled(steps.CaptionLocationEnabled());
    previous_->setEnabled(pages_->currentIndex() > 0);
  } else {
    const AdvancedTablePage page = Advanced();
    for (QWidget* w : advancedBorderWidgets_) w->setEnabled(page.BorderFieldsEnabled());
    alignTop_->setEnabled(page.CaptionAlignEnabled());
    alignBottom_->setEnabled(page.CaptionAlignEnabled());
  }
}

BeginnerTableSteps TableWizardDialog::Beginner() const {
  BeginnerTableSteps s;
  s.rowCount = S(Text("rowCount"));
  s.columnCount = S(Text("columnCount"));
  s.borderSize = S(Text("borderSize"));
  s.captionText = S(Text("captionText"));
  s.captionLocation = S(Text("captionLocation"));
  s.tableWidth = S(Text("tableWidth"));
  s.tableHeight = S(Text("tableHeight"));
  s.cellSpacing = S(Text("cellSpacing"));
  s.cellPadding = S(Text("cellPadding"));
  s.backgroundColor = S(Text("backgroundColor"));
  s.borderColor = S(Text("borderColor"));
  s.borderHighlight = S(Text("borderHighlight"));
  s.borderShadow = S(Text("borderShadow"));
  return s;
}

AdvancedTablePage TableWizardDialog::Advanced() const {
  AdvancedTablePage p;
  p.advancedRowCount = S(Text("advancedRowCount"));
  p.advancedColumnCount = S(Text("advancedColumnCount"));
  p.advancedWidth = S(Text("advancedWidth"));
  p.advancedHeight = S(Text("advancedHeight"));
  p.borderCheck = borderCheck_->isChecked();
  p.advancedBorderSize = S(Text("advancedBorderSize"));
  p.advancedCellSpacing = S(Text("advancedCellSpacing"));
  p.advancedCellPadding = S(Text("advancedCellPadding"));
  p.advancedBackgroundColor = S(Text("advancedBackgroundColor"));
  p.advancedBorderColor = S(Text("advancedBorderColor"));
  p.advancedBorderColorLight = S(Text("advancedBorderColorLight"));
  p.advancedBorderColorDark = S(Text("advancedBorderColorDark"));
  p.advancedCaption = S(Text("advancedCaption"));
  p.alignTop = alignTop_->isChecked();
  p.alignBottom = alignBottom_->isChecked();
  return p;
}

void TableWizardDialog::Next() {
  const int step = pages_->currentIndex();
  if (step == 0) {
    BeginnerTableSteps steps = Beginner();
    if (const CheckResult failed = BeginnerTableSteps_LeaveStep1(app_, steps)) {
      edits_[failed->field]->clear();
      FocusField(failed);
      return;
    }
  }
  if (step < pages_->count() - 1) {
    pages_->setCurrentIndex(step + 1);
    UpdateEnabled();
    return;
  }
  setup_ = Beginner().Finish(TagCaseUpper(app_) == 1);
  accept();
}

void TableWizardDialog::Previous() {
  if (pages_->currentIndex() > 0) pages_->setCurrentIndex(pages_->currentIndex() - 1);
  UpdateEnabled();
}

void TableWizardDialog::Continue() {
  const AdvancedTablePage page = Advanced();
  if (const CheckResult failed = AdvancedTablePage_Continue(app_, page)) return FocusField(failed);
  setup_ = page.Finish(TagCaseUpper(app_) == 1);
  accept();
}

}  // namespace tessarine::ui
