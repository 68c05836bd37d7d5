#pragma once
// DateTime: a date stamp in one of the listed forms.

#include "ui/wizards/WizardDialog.h"

class QComboBox;
class QLineEdit;

namespace tessarine {
struct DateTime;
}

namespace tessarine::ui {

class DateStampDialog : public WizardDialog {
 public:
  DateStampDialog(Application& app, QWidget* parent);
  tessarine::DateTime Model() const;

 private:
  QComboBox* formatRow_;
  QLineEdit* leadingText_;
};

}  // namespace tessarine::ui
