#include "ui/wizards/DateStampDialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QVBoxLayout>

#include "wizards/DateTime.h"

namespace tessarine::ui {

DateStampDialog::DateStampDialog(Application& app, QWidget* parent)
    : WizardDialog(app, "DateTime", "Insert Date/Time", parent) {
  auto* layout = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  formatRow_ = new QComboBox;
  formatRow_->setObjectName("formatRow");
  for (const std::string& row : DateTimeRows()) formatRow_->addItem(Q(row));
  formatRow_->setCurrentIndex(-1);  // none chosen: OK then asks for a row
  form->addRow("Date/Time format:", formatRow_);
  leadingText_ = new QLineEdit("This page last updated");
  leadingText_->setObjectName("leadingText");
  form->addRow("Text to precede Date/Time:", leadingText_);
  layout->addLayout(form);
  AddButtons(layout, "okButton", [this] {
    const CheckResult failed = DateTime_OK(app_, Model());
    FocusField(failed);
    return !failed;
  });
  setMinimumWidth(380);
}

tessarine::DateTime DateStampDialog::Model() const {
  tessarine::DateTime m;
  m.formatRow = S(formatRow_->currentText());
  m.leadingText = S(leadingText_->text());
  return m;
}

}  // namespace tessarine::ui
