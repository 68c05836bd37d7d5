#pragma once
// frmScriptTags: a SCRIPT block around the selection.

#include "ui/wizards/WizardDialog.h"

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace tessarine {
struct frmScriptTags;
}

namespace tessarine::ui {

class frmScriptTags : public WizardDialog {
 public:
  frmScriptTags(Application& app, QWidget* parent);
  tessarine::frmScriptTags Model() const;

 private:
  QComboBox* cmbLanguage_;
  QCheckBox* chkRunAtServer_;
  QLineEdit* txtSrc_;
  QCheckBox* chkInsertIntoHead_;
};

}  // namespace tessarine::ui
