#pragma once
// Converts the selection to a list or a table.

#include "ui/wizards/WizardDialog.h"
#include "wizards/ConvertText.h"

class QLineEdit;
class QRadioButton;

namespace tessarine::ui {

class ConvertTextDialog : public WizardDialog {
 public:
  ConvertTextDialog(Application& app, QWidget* parent);
  tessarine::ConvertText Model() const;

 private:
  std::vector<std::pair<QRadioButton*, ConvertTo>> options_;
  QLineEdit* userDelimiter_;
};

}  // namespace tessarine::ui
