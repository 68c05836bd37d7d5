#pragma once
// The personal greeting wizard: the question, the greeting, and what else to show. Done
// writes the script into the head and the calls into the body itself.

#include "effects/PersonalGreeting.h"
#include "ui/effects/EffectDialog.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QStackedWidget;

namespace tessarine::ui {

class PersonalGreetingDialog : public EffectDialog {
 public:
  PersonalGreetingDialog(Application& app, QWidget* parent);
  tessarine::PersonalGreeting Model() const;
  int Page() const { return page_; }

 private:
  void ShowPage(int page);
  void Next();

  int page_ = 1;
  QStackedWidget* pages_;
  QLineEdit* askText_;
  QComboBox* askMethodCombo_;
  QLineEdit* greetingText_;
  QCheckBox* visitsCheck_;
  QCheckBox* lastVisitCheck_;
};

}  // namespace tessarine::ui
