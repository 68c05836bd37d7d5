#include "ui/wizards/DateTimeDialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QVBoxLayout>

#include "wizards/DateTime.h"

namespace tessarine::ui {

DateTime::DateTime(Application& app, QWidget* parent)
    : WizardDialog(app, "DateTime", "Insert Date/Time", parent) {
  auto* layout = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  Combo1_ = new QComboBox;
  Combo1_->setObjectName("Combo1");
  for (const std::string& row : DateTimeRows()) Combo1_->addItem(Q(row));
  Combo1_->setCurrentIndex(-1);  // none chosen: OK then asks for a row
  form->addRow("Date/Time format:", Combo1_);
  Text1_ = new QLineEdit("This page last updated");
  Text1_->setObjectName("Text1");
  form->addRow("Text to precede Date/Time:", Text1_);
  layout->addLayout(form);
  AddButtons(layout, "Command1", [this] {
    const CheckResult failed = DateTime_OK(app_, Model());
    FocusField(failed);
    return !failed;
  });
  setMinimumWidth(380);
}

tessarine::DateTime DateTime::Model() const {
  tessarine::DateTime m;
  m.Combo1 = S(Combo1_->currentText());
  m.Text1 = S(Text1_->text());
  return m;
}

}  // namespace tessarine::ui
