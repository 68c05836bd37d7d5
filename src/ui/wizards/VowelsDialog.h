#pragma once
// Vowels: three pages of special characters; a press inserts one and the dialog stays.

#include "ui/wizards/WizardDialog.h"

class QTabWidget;

namespace tessarine::ui {

class Vowels : public WizardDialog {
 public:
  Vowels(Application& app, QWidget* parent);
  QTabWidget* TabStrip1() const { return tabs_; }

 private:
  QTabWidget* tabs_;
};

}  // namespace tessarine::ui
