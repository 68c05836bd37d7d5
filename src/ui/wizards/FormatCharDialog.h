#pragma once
// FormatChar: font, colour, size, position and styles around the selection.

#include "ui/wizards/WizardDialog.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

namespace tessarine {
struct FormatChar;
}

namespace tessarine::ui {

class FormatChar : public WizardDialog {
 public:
  FormatChar(Application& app, QWidget* parent);
  tessarine::FormatChar Model() const;

 private:
  void UpdateSample();
  QComboBox* Combo3_;
  QLineEdit* Text1_;
  QComboBox* Combo1_;
  QComboBox* Combo2_;
  QCheckBox* checks_[15] = {};
  QLabel* Label6_;
};

}  // namespace tessarine::ui
