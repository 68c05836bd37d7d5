#pragma once
// What the frame, form and media dialogs share beyond the wizard base: a failed check is
// told in a message box and its field takes the focus; URL lists hold the remembered URLs.

#include "ui/wizards/WizardDialog.h"

class QComboBox;
class QLineEdit;
class QPushButton;

namespace tessarine::ui {

class FrameFormDialog : public WizardDialog {
 public:
  using WizardDialog::WizardDialog;

 protected:
  // False, after the message and the focus, when `failed` holds a check.
  bool Passed(const CheckResult& failed);
  QPushButton* NewButton(const QString& caption, const char* name);
  QLineEdit* NewLine(const char* name);
  // An editable list of the 20 remembered URLs, empty at first.
  QComboBox* NewUrlCombo(const char* name);
  // A fixed list of `items`, no choice made.
  QComboBox* NewChoice(const char* name, const char* const* items, int count);
};

}  // namespace tessarine::ui
