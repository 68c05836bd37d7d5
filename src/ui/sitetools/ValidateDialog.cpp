#include "ui/sitetools/ValidateDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "core/Application.h"
#include "platform/FileDialogs.h"
#include "sitetools/ValidateWizard.h"

#include "ui/sitetools/StepButtons.h"
namespace tessarine {

namespace {

QLabel* Wrapped(const QString& text, const char* name) {
  auto* label = new QLabel(text);
  label->setObjectName(name);
  label->setWordWrap(true);
  return label;
}

QCheckBox* Check(const QString& text, const char* name) {
  auto* box = new QCheckBox(text);
  box->setObjectName(name);
  return box;
}

QLineEdit* NumberBox(const char* name) {
  auto* box = new QLineEdit;
  box->setObjectName(name);
  box->setValidator(new QIntValidator(0, 999, box));
  box->setMaximumWidth(60);
  box->setEnabled(false);
  return box;
}

}  // namespace

ValidateDialog::ValidateDialog(Application& app, ValidateHost& host, QWidget* parent)
    : QDialog(parent), app_(app), wizard_(std::make_unique<ValidateWizard>(host)) {
  setObjectName("ValidateDialog");
  setWindowTitle("HTML Validator");
  headingLabel_ = Wrapped("", "headingLabel");
  QFont f = headingLabel_->font();
  f.setBold(true);
  f.setPointSize(f.pointSize() + 2);
  headingLabel_->setFont(f);
  subHeadingLabel_ = Wrapped("", "subHeadingLabel");

  pages_ = new QStackedWidget;
  pages_->addWidget(ChoicePage());
  pages_->addWidget(
      Wrapped("Please close this window and view the errors and warnings listed "
              "at the bottom of the Tessarine screen.",
              "validationDoneText"));
  pages_->addWidget(OptionsPage());
  pages_->addWidget(FileNamePage());
  doneFileLabel_ = Wrapped("", "cleanDoneText");
  pages_->addWidget(doneFileLabel_);

  const StepButtons row = MakeStepButtons();
  QHBoxLayout* buttons = row.row;
  QPushButton* help = row.help;
  QPushButton* cancel = row.cancel;
  previousButton_ = row.previous;
  nextButton_ = row.next;

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(headingLabel_);
  layout->addWidget(subHeadingLabel_);
  layout->addWidget(pages_, 1);
  layout->addLayout(buttons);
  resize(560, 420);

  connect(nextButton_, &QPushButton::clicked, this, [this] {
    ReadFields();
    Apply(wizard_->Next());
  });
  connect(previousButton_, &QPushButton::clicked, this, [this] {
    ReadFields();
    Apply(wizard_->Previous());
  });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(help, &QPushButton::clicked, this, [this] {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    QCoreApplication::sendEvent(parentWidget() ? parentWidget() : this, &press);
  });
  Apply(wizard_->Start());
}

ValidateDialog::~ValidateDialog() = default;

QWidget* ValidateDialog::ChoicePage() {
  auto* page = new QWidget;
  auto* layout = new QVBoxLayout(page);
  validateRadio_ = new QRadioButton("Validate your HTML");
  validateRadio_->setObjectName("validateRadio");
  validateRadio_->setChecked(true);
  cleanRadio_ = new QRadioButton("Clean up your Web page");
  cleanRadio_->setObjectName("cleanRadio");
  layout->addWidget(validateRadio_);
  layout->addWidget(
      Wrapped("Tessarine will validate the HTML in your Web page and output errors "
              "and warnings when it finds them.",
              "validateExplanation"));
  layout->addSpacing(12);
  layout->addWidget(cleanRadio_);
  layout->addWidget(
      Wrapped("Tessarine will fix errors, reformat your HTML and clean up your Web "
              "page so you have picture perfect HTML.",
              "cleanExplanation"));
  layout->addStretch();
  return page;
}

QWidget* ValidateDialog::OptionsPage() {
  auto* page = new QWidget;
  auto* grid = new QGridLayout(page);
  int row = 0;
  altTextCheck_ = Check("Add the following default AltText to images:", "altTextCheck");
  altText_ = new QLineEdit;
  altText_->setObjectName("altText");
  altText_->setEnabled(false);
  grid->addWidget(altTextCheck_, row, 0);
  grid->addWidget(altText_, row++, 1, 1, 2);
  fontToCssCheck_ = Check("Convert FONT tags to CSS Style tags", "fontToCssCheck");
  upperCaseCheck_ = Check("Convert HTML tags to uppercase", "upperCaseCheck");
  breakBeforeBrCheck_ = Check("Output line break before <BR> tags", "breakBeforeBrCheck");
  paragraphsCheck_ = Check("Convert <P> tags to <BR> tags", "paragraphsCheck");
  xhtmlCheck_ = Check("Format as XHTML", "xhtmlCheck");
  for (QCheckBox* box :
       {fontToCssCheck_, upperCaseCheck_, breakBeforeBrCheck_, paragraphsCheck_, xhtmlCheck_})
    grid->addWidget(box, row++, 0, 1, 3);
  indentCheck_ = Check("Indent the beginning of each line of code by:", "indentCheck");
  indentSpacesText_ = NumberBox("indentSpacesText");
  indentUnitsCombo_ = new QComboBox;
  indentUnitsCombo_->setObjectName("indentUnitsCombo");
  indentUnitsCombo_->addItems({"Tabs", "Spaces"});
  indentUnitsCombo_->setEnabled(false);
  grid->addWidget(indentCheck_, row, 0);
  grid->addWidget(indentSpacesText_, row, 1);
  grid->addWidget(indentUnitsCombo_, row++, 2);
  wrapAttributesCheck_ = Check("Wrap attributes", "wrapAttributesCheck");
  grid->addWidget(wrapAttributesCheck_, row++, 0, 1, 3);
  wrapCheck_ = Check("Word Wrap lines of code.  Wrap after:", "wrapCheck");
  wrapCharsText_ = NumberBox("wrapCharsText");
  grid->addWidget(wrapCheck_, row, 0);
  grid->addWidget(wrapCharsText_, row, 1);
  grid->addWidget(new QLabel("characters"), row++, 2);
  grid->setRowStretch(row, 1);

  connect(altTextCheck_, &QCheckBox::toggled, altText_, &QWidget::setEnabled);
  connect(indentCheck_, &QCheckBox::toggled, this, [this](bool on) {
    if (on) indentSpacesText_->setText("1");
    indentSpacesText_->setEnabled(on);
    indentUnitsCombo_->setEnabled(on);
  });
  connect(wrapCheck_, &QCheckBox::toggled, this, [this](bool on) {
    if (on) wrapCharsText_->setText("80");
    wrapCharsText_->setEnabled(on);
  });
  return page;
}

QWidget* ValidateDialog::FileNamePage() {
  auto* page = new QWidget;
  auto* layout = new QHBoxLayout(page);
  fileNameText_ = new QLineEdit;
  fileNameText_->setObjectName("fileNameText");
  auto* browse = new QPushButton("Browse...");
  browse->setObjectName("browseFileNameButton");
  layout->addWidget(fileNameText_, 1);
  layout->addWidget(browse);
  connect(browse, &QPushButton::clicked, this, [this] {
    FileDialogRequest request;
    request.title = "Save As";
    request.filter = "HTML Files (*.htm, *.html)|*.htm;*.html|All Files (*.*)|*.*";
    request.save = true;
    request.confirmOverwrite = true;
    const std::string path = app_.fileDialogs.Show(request).path;
    if (!path.empty()) fileNameText_->setText(QString::fromStdString(path));
  });
  return page;
}

void ValidateDialog::ReadFields() {
  wizard_->cleanChosen = cleanRadio_->isChecked();
  CleanOptions& o = wizard_->options;
  o.addAltText = altTextCheck_->isChecked();
  o.altText = altText_->text().toStdString();
  o.fontToCss = fontToCssCheck_->isChecked();
  o.upperCaseTags = upperCaseCheck_->isChecked();
  o.breakBeforeBr = breakBeforeBrCheck_->isChecked();
  o.paragraphsToBreaks = paragraphsCheck_->isChecked();
  o.formatXhtml = xhtmlCheck_->isChecked();
  o.indent = indentCheck_->isChecked();
  o.indentSpaces = indentSpacesText_->text().toStdString();
  o.indentUnits = indentUnitsCombo_->currentText().toStdString();
  o.wrapAttributes = wrapAttributesCheck_->isChecked();
  o.wrap = wrapCheck_->isChecked();
  o.wrapChars = wrapCharsText_->text().toStdString();
  wizard_->fileName = fileNameText_->text().toStdString();
}

void ValidateDialog::Apply(const ValidateView& view) {
  if (view.close) {
    accept();
    return;
  }
  headingLabel_->setText(QString::fromStdString(view.heading));
  subHeadingLabel_->setText(QString::fromStdString(view.subHeading));
  pages_->setCurrentIndex(static_cast<int>(view.page));
  nextButton_->setText(QString::fromStdString(view.nextCaption));
  previousButton_->setEnabled(view.previousEnabled);
  if (view.page == ValidatePage::CleanDone)
    doneFileLabel_->setText("Output file: " + fileNameText_->text());
  if (view.focusFileName) fileNameText_->setFocus();
}

}  // namespace tessarine
