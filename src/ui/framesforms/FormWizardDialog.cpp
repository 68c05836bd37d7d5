#include "ui/framesforms/FormWizardDialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "framesforms/FormWizard.h"

namespace tessarine::ui {

namespace {
// The captions of the kind buttons, as the shortcut bar names the kinds.
const char* const kKindButtons[kFieldKindCount] = {
    "Text Input box",   "Text area", "Dropdown menu", "Password box",  "Checkbox",
    "Radio button",     "Image",     "Hidden field",  "Submit button", "Reset button",
    "JavaScript button"};

QLabel* Bold(const QString& text, const char* name) {
  auto* l = new QLabel(text);
  l->setObjectName(name);
  QFont f = l->font();
  f.setBold(true);
  l->setFont(f);
  return l;
}
}  // namespace

FormWizardDialog::FormWizardDialog(Application& app, QWidget* parent, int fieldKind)
    : FrameFormDialog(app, "FormWizardDialog", "Form Wizard", parent),
      form_(std::make_unique<FormBuilder>(TagCaseUpper(app) == 1, fieldKind >= 0)) {
  auto* layout = new QVBoxLayout(this);
  pages_ = new QStackedWidget;
  layout->addWidget(pages_);
  pages_->addWidget(BuildPropertiesPage());
  pages_->addWidget(BuildFieldPage(fieldKind >= 0));
  if (fieldKind >= 0) {
    pages_->setCurrentIndex(1);
    PickKind(fieldKind < kFieldKindCount ? fieldKind : 0);
  } else {
    PickKind(kTextBox);
  }
}

FormWizardDialog::~FormWizardDialog() = default;

QWidget* FormWizardDialog::BuildPropertiesPage() {
  auto* page = new QWidget;
  page->setObjectName("propertiesPage");
  auto* v = new QVBoxLayout(page);
  v->addWidget(Bold("Form Wizard: Step 1", "lblHeading"));
  auto* form = new QFormLayout;
  formName_ = NewLine("formName");
  auto* nameRow = new QHBoxLayout;
  nameRow->addWidget(formName_);
  nameRow->addWidget(new QLabel("(optional)"));
  form->addRow("Form name:", nameRow);

  get_ = new QRadioButton("GET");
  get_->setObjectName("getOption");
  post_ = new QRadioButton("POST");
  post_->setObjectName("postOption");
  methods_ = new QButtonGroup(this);
  methods_->addButton(get_);
  methods_->addButton(post_);
  auto* methodRow = new QHBoxLayout;
  methodRow->addWidget(get_);
  methodRow->addWidget(post_);
  methodRow->addStretch();
  form->addRow("Form method:", methodRow);
  v->addLayout(form);

  auto* actionCaption =
      new QLabel("Form Action (the path and filename of the script used to process the form):");
  actionCaption->setWordWrap(true);
  v->addWidget(actionCaption);
  auto* actionRow = new QHBoxLayout;
  action_ = NewLine("actionText");
  actionOptional_ = new QLabel("(optional)");
  actionOptional_->setObjectName("actionOptional");
  actionRow->addWidget(action_);
  actionRow->addWidget(actionOptional_);
  v->addLayout(actionRow);
  // A check box caption does not wrap; a label beside the box does.
  formmail_ = new QCheckBox;
  formmail_->setObjectName("formmailCheck");
  auto* formmailText = new QLabel(
      "Use Tessarine's CGI script for processing this form (recommended if you don't have a "
      "processing script or are a beginner at making forms)");
  formmailText->setWordWrap(true);
  formmailText->setBuddy(formmail_);
  auto* formmailRow = new QHBoxLayout;
  formmailRow->addWidget(formmail_, 0, Qt::AlignTop);
  formmailRow->addWidget(formmailText, 1);
  v->addLayout(formmailRow);
  emailLabel_ = new QLabel(
      "Enter the email address that you want the form output to be emailed to (your email "
      "address)");
  emailLabel_->setObjectName("emailLabel");
  emailLabel_->setWordWrap(true);
  email_ = NewLine("emailText");
  v->addWidget(emailLabel_);
  v->addWidget(email_);
  emailLabel_->hide();
  email_->hide();
  v->addStretch();

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  QPushButton* next = NewButton("Next >>", "nextButton");
  next->setDefault(true);
  QPushButton* cancel = NewButton("Cancel", "cmdCancel");
  buttons->addWidget(next);
  buttons->addWidget(cancel);
  v->addLayout(buttons);

  connect(formmail_, &QCheckBox::toggled, this, [this](bool on) { FormmailToggled(on); });
  connect(next, &QPushButton::clicked, this, [this] { NextPage(); });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  return page;
}

QWidget* FormWizardDialog::BuildFieldPage(bool fieldOnly) {
  auto* page = new QWidget;
  page->setObjectName("fieldPage");
  auto* h = new QHBoxLayout(page);
  auto* kindBox = new QGroupBox("Form fields");
  auto* kindGrid = new QVBoxLayout(kindBox);
  kindGrid->setSpacing(2);
  for (int i = 0; i < kFieldKindCount; ++i) {
    auto* b = new QToolButton;
    b->setObjectName(QString("kindButton%1").arg(i));
    b->setText(kKindButtons[i]);
    b->setCheckable(true);
    b->setAutoRaise(true);
    b->setToolButtonStyle(Qt::ToolButtonTextOnly);
    b->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    kinds_[static_cast<std::size_t>(i)] = b;
    kindGrid->addWidget(b);
    connect(b, &QToolButton::clicked, this, [this, i] { PickKind(i); });
  }
  kindGrid->addStretch();
  h->addWidget(kindBox);

  auto* right = new QVBoxLayout;
  kindTitle_ = Bold("", "kindTitle");
  right->addWidget(kindTitle_);
  fieldPages_ = new QStackedWidget;
  auto* fieldsPage = new QWidget;
  fields_ = new QFormLayout(fieldsPage);
  label_ = NewLine("labelText");
  fields_->addRow("Form Field Label:", label_);
  name_ = NewLine("nameText");
  fields_->addRow("Name:", name_);
  valueLabel_ = new QLabel("Default text:");
  value_ = NewLine("valueText");
  fields_->addRow(valueLabel_, value_);
  size_ = NewLine("sizeText");
  fields_->addRow("Size:", size_);
  maxLength_ = NewLine("maxLengthText");
  fields_->addRow("Maximum length:", maxLength_);
  src_ = NewLine("srcText");
  fields_->addRow("Image file:", src_);
  rows_ = NewLine("rowsText");
  fields_->addRow("Rows:", rows_);
  columns_ = NewLine("columnsText");
  fields_->addRow("Columns:", columns_);
  checked_ = new QCheckBox("Checked");
  checked_->setObjectName("checkedBox");
  fields_->addRow("", checked_);
  multiple_ = new QCheckBox("Allow multiple selections");
  multiple_->setObjectName("multipleBox");
  fields_->addRow("", multiple_);
  fieldPages_->addWidget(fieldsPage);

  auto* menuPage = new QWidget;
  auto* menu = new QFormLayout(menuPage);
  menu->addRow(new QLabel("Add the items of the dropdown menu, then click 'Done with Menu'."));
  optionText_ = NewLine("optionText");
  menu->addRow("Option:", optionText_);
  optionValue_ = NewLine("optionValue");
  menu->addRow("Value:", optionValue_);
  optionSelected_ = new QCheckBox;
  optionSelected_->setObjectName("optionSelected");
  menu->addRow("Selected:", optionSelected_);
  auto* menuButtons = new QHBoxLayout;
  QPushButton* insertItem = NewButton("Insert Menu Item", "insertMenuItemButton");
  QPushButton* menuDone = NewButton("Done with Menu", "dropdownDoneButton");
  menuButtons->addWidget(insertItem);
  menuButtons->addWidget(menuDone);
  menu->addRow(menuButtons);
  fieldPages_->addWidget(menuPage);
  right->addWidget(fieldPages_);
  right->addStretch();

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  QPushButton* insert = NewButton("Insert Form Field", "insertFieldButton");
  insert->setDefault(true);
  QPushButton* done = NewButton("Done with Form", "doneButton");
  done->setVisible(!fieldOnly);
  QPushButton* cancel = NewButton("Cancel", "cmdCancel2");
  buttons->addWidget(insert);
  buttons->addWidget(done);
  buttons->addWidget(cancel);
  right->addLayout(buttons);
  h->addLayout(right, 1);

  connect(insert, &QPushButton::clicked, this, [this] { InsertField(); });
  connect(insertItem, &QPushButton::clicked, this, [this] { InsertMenuItem(); });
  connect(menuDone, &QPushButton::clicked, this, [this] { FinishDropdown(); });
  connect(done, &QPushButton::clicked, this, [this] {
    if (!Passed(form_->PickKind())) return;  // a menu is still open
    FormWizard_Done(app_, *form_);
    accept();
  });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  return page;
}

void FormWizardDialog::FormmailToggled(bool on) {
  FormProperties p = Properties();
  SetUseFormmail(p, on);
  action_->setText(Q(p.action));
  if (p.method == FormMethod::Post) {
    post_->setChecked(true);
  } else {
    methods_->setExclusive(false);
    post_->setChecked(false);
    methods_->setExclusive(true);
  }
  emailLabel_->setVisible(on);
  email_->setVisible(on);
  actionOptional_->setVisible(!on);
  if (on) email_->setFocus();
}

FormProperties FormWizardDialog::Properties() const {
  FormProperties p;
  p.formName = S(formName_->text());
  p.method = get_->isChecked()    ? FormMethod::Get
             : post_->isChecked() ? FormMethod::Post
                                  : FormMethod::None;
  p.action = S(action_->text());
  p.useFormmail = formmail_->isChecked();
  p.emailAddress = S(email_->text());
  return p;
}

void FormWizardDialog::NextPage() {
  if (!Passed(form_->Start(Properties()))) return;
  pages_->setCurrentIndex(1);
  (label_->isVisibleTo(this) ? label_ : name_)->setFocus();
}

void FormWizardDialog::PickKind(int kind) {
  if (!Passed(form_->PickKind())) {
    for (int i = 0; i < kFieldKindCount; ++i)
      kinds_[static_cast<std::size_t>(i)]->setChecked(i == kind_);
    return;
  }
  kind_ = kind;
  for (int i = 0; i < kFieldKindCount; ++i)
    kinds_[static_cast<std::size_t>(i)]->setChecked(i == kind);
  const FieldKindInfo& k = KindInfo(kind);
  const FieldTooltips tips = KindTooltips(kind);
  kindTitle_->setText(k.title);
  valueLabel_->setText(k.valueLabel);
  fields_->setRowVisible(label_, k.hasLabel);
  fields_->setRowVisible(value_, *k.valueLabel != '\0');
  fields_->setRowVisible(size_, k.hasSize);
  fields_->setRowVisible(maxLength_, k.hasMaxLength);
  fields_->setRowVisible(src_, k.hasSrc);
  fields_->setRowVisible(rows_, k.hasRowsColumns);
  fields_->setRowVisible(columns_, k.hasRowsColumns);
  fields_->setRowVisible(checked_, k.hasChecked);
  fields_->setRowVisible(multiple_, k.hasMultiple);
  checked_->setText(kind == kRadioButton ? "Selected" : "Checked");
  name_->setToolTip(Q(tips.name));
  value_->setToolTip(Q(tips.value));
  size_->setToolTip(Q(tips.size));
  maxLength_->setToolTip(Q(tips.maxLength));
  src_->setToolTip(Q(tips.src));
  rows_->setToolTip(Q(tips.rows));
  columns_->setToolTip(Q(tips.columns));
  multiple_->setToolTip(Q(tips.multiple));
  checked_->setToolTip(Q(tips.checked));
  ClearFields();
}

FormField FormWizardDialog::Field() const {
  FormField f;
  f.kind = kind_;
  f.label = S(label_->text());
  f.name = S(name_->text());
  f.value = S(value_->text());
  f.size = S(size_->text());
  f.maxLength = S(maxLength_->text());
  f.checked = checked_->isChecked();
  f.src = S(src_->text());
  f.rows = S(rows_->text());
  f.columns = S(columns_->text());
  f.multiple = multiple_->isChecked();
  return f;
}

void FormWizardDialog::ClearFields() {
  for (QLineEdit* e : {label_, name_, value_, size_, maxLength_, src_, rows_, columns_}) e->clear();
  checked_->setChecked(false);
  multiple_->setChecked(false);
  name_->setFocus();
  if (label_->isVisibleTo(this)) label_->setFocus();
}

void FormWizardDialog::InsertField() {
  if (fieldPages_->currentIndex() == 1) {
    Passed(form_->PickKind());  // the menu's own buttons finish it
    return;
  }
  const FormBuilder::Added added = form_->AddField(Field());
  if (!Passed(added.failed)) return;
  if (form_->DropdownOpen()) {
    fieldPages_->setCurrentIndex(1);
    optionText_->setFocus();
    return;
  }
  if (form_->FieldOnly()) {
    FormWizard_Insert(app_, added.documentText);
    accept();
    return;
  }
  ClearFields();
}

void FormWizardDialog::InsertMenuItem() {
  MenuOption o;
  o.text = S(optionText_->text());
  o.value = S(optionValue_->text());
  o.selected = optionSelected_->isChecked();
  if (!Passed(form_->AddOption(o))) return;
  optionText_->clear();
  optionValue_->clear();
  optionSelected_->setChecked(false);
  optionText_->setFocus();
}

void FormWizardDialog::FinishDropdown() {
  const std::string menu = form_->FinishDropdown();
  if (form_->FieldOnly()) {
    FormWizard_Insert(app_, menu);
    accept();
    return;
  }
  fieldPages_->setCurrentIndex(0);
  ClearFields();
}

}  // namespace tessarine::ui
