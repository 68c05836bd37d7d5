#pragma once
// The three list dialogs: items collected one at a time, then the list over the selection.

#include "ui/wizards/WizardDialog.h"
#include "wizards/BulletedList.h"
#include "wizards/DescriptiveList.h"
#include "wizards/NumberedList.h"

class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace tessarine::ui {

class NumberedListDialog : public WizardDialog {
 public:
  NumberedListDialog(Application& app, QWidget* parent);

 private:
  void Read();
  tessarine::NumberedList form_;
  QLineEdit* itemText_;
  QComboBox* numberType_;
  QLineEdit* startNumber_;
};

class BulletedListDialog : public WizardDialog {
 public:
  BulletedListDialog(Application& app, QWidget* parent);

 private:
  void Read();
  tessarine::BulletedList form_;
  QLineEdit* itemText_;
  QRadioButton* bullets_[3];
};

class DescriptiveListDialog : public WizardDialog {
 public:
  DescriptiveListDialog(Application& app, QWidget* parent);

 private:
  void Read();
  tessarine::DescriptiveList form_;
  QLineEdit* topic_;
  QLineEdit* description_;
};

}  // namespace tessarine::ui
