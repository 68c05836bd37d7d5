#pragma once
// ScriptTags: a SCRIPT block around the selection.

#include "ui/wizards/WizardDialog.h"

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace tessarine {
struct ScriptTags;
}

namespace tessarine::ui {

class ScriptTagsDialog : public WizardDialog {
 public:
  ScriptTagsDialog(Application& app, QWidget* parent);
  tessarine::ScriptTags Model() const;

 private:
  QComboBox* cmbLanguage_;
  QCheckBox* chkRunAtServer_;
  QLineEdit* txtSrc_;
  QCheckBox* chkInsertIntoHead_;
};

}  // namespace tessarine::ui
