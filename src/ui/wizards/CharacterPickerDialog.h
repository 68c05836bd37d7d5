#pragma once
// Vowels: three pages of special characters; a press inserts one and the dialog stays.

#include "ui/wizards/WizardDialog.h"

class QTabWidget;

namespace tessarine::ui {

class CharacterPickerDialog : public WizardDialog {
 public:
  CharacterPickerDialog(Application& app, QWidget* parent);
  QTabWidget* Pages() const { return tabs_; }

 private:
  QTabWidget* tabs_;
};

}  // namespace tessarine::ui
