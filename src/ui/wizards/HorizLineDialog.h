#pragma once
// frmHorizLine: thickness, length, shading and alignment of a horizontal line.

#include "ui/wizards/WizardDialog.h"

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace tessarine {
struct frmHorizLine;
}

namespace tessarine::ui {

class frmHorizLine : public WizardDialog {
 public:
  frmHorizLine(Application& app, QWidget* parent);
  tessarine::frmHorizLine Model() const;

 private:
  QLineEdit* Text1_;
  QLineEdit* Text2_;
  QCheckBox* Check1_;
  QComboBox* cmbAlign_;
};

}  // namespace tessarine::ui
