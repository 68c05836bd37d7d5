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

class MetaTagsDialog : public WizardDialog {
 public:
  MetaTagsDialog(Application& app, QWidget* parent);
  tessarine::Metatags Model() const;

 private:
  QTextEdit* description_;
  QLineEdit* keywords_;
  QCheckBox* splashScreen_;
  QLineEdit* refreshSeconds_;
  QLineEdit* nextPageUrl_;
};

}  // namespace tessarine::ui
