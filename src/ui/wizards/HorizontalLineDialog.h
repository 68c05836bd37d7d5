#pragma once
// HorizontalLine: thickness, length, shading and alignment of a horizontal line.

#include "ui/wizards/WizardDialog.h"

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace tessarine {
struct HorizontalLine;
}

namespace tessarine::ui {

class HorizontalLineDialog : public WizardDialog {
 public:
  HorizontalLineDialog(Application& app, QWidget* parent);
  tessarine::HorizontalLine Model() const;
  // Filled from a tag already in the page.
  void SetModel(const tessarine::HorizontalLine& m);

 private:
  QLineEdit* thickness_;
  QLineEdit* lineWidth_;
  QCheckBox* noShading_;
  QComboBox* cmbAlign_;
};

}  // namespace tessarine::ui
