#pragma once
// Metatags: description, keywords and the splash screen's refresh.

#include "ui/wizards/WizardDialog.h"

class QCheckBox;
class QLineEdit;
class QTextEdit;

namespace tessarine {
struct Metatags;
}

namespace tessarine::ui {

class Metatags : public WizardDialog {
 public:
  Metatags(Application& app, QWidget* parent);
  tessarine::Metatags Model() const;

 private:
  QTextEdit* Text1_;
  QLineEdit* Text2_;
  QCheckBox* Check1_;
  QLineEdit* Text3_;
  QLineEdit* Text4_;
};

}  // namespace tessarine::ui
