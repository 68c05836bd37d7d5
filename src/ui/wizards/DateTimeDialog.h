#pragma once
// DateTime: a date stamp in one of the listed forms.

#include "ui/wizards/WizardDialog.h"

class QComboBox;
class QLineEdit;

namespace tessarine {
struct DateTime;
}

namespace tessarine::ui {

class DateTime : public WizardDialog {
 public:
  DateTime(Application& app, QWidget* parent);
  tessarine::DateTime Model() const;

 private:
  QComboBox* Combo1_;
  QLineEdit* Text1_;
};

}  // namespace tessarine::ui
