#pragma once
// What the special effects dialogs share beyond the wizard base: refusing with a message,
// and a row of page buttons for the dialogs that step through pages.

#include "ui/wizards/WizardDialog.h"

class QBoxLayout;
class QLabel;
class QPushButton;

namespace tessarine::ui {

class EffectDialog : public WizardDialog {
 public:
  using WizardDialog::WizardDialog;

 protected:
  // Shows the check's message and focuses its field; true when there was one.
  bool Refuse(const CheckResult& failed);
  // A bold heading and a wrapped sub-heading at the top of `layout`.
  QLabel* AddHeading(QBoxLayout* layout, const QString& heading, const QString& subHeading,
                     QLabel** subLabel = nullptr);
  // "<< &Previous", "&Next >>" and "Cancel" at the foot of `layout`.
  void AddPageButtons(QBoxLayout* layout);

  QPushButton* previousButton_ = nullptr;
  QPushButton* nextButton_ = nullptr;
};

}  // namespace tessarine::ui
