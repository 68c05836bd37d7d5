#pragma once
// What the small wizard dialogs share: a modal dialog over the application, an OK and a
// Cancel button, and the closing sequence.

#include <QDialog>
#include <functional>
#include <string>

#include "conventions/WizardCheck.h"

class QBoxLayout;
class QPushButton;

namespace tessarine {
class Application;
}

namespace tessarine::ui {

QString Q(const std::string& s);
std::string S(const QString& s);

class WizardDialog : public QDialog {
 public:
  WizardDialog(Application& app, const char* name, const QString& title, QWidget* parent);

 protected:
  // Adds OK (named `okName`) and Cancel at the foot of `layout`; OK runs `onOK`.
  void AddButtons(QBoxLayout* layout, const char* okName, std::function<bool()> onOK);
  // A failed check: the focus goes to the field at fault and the dialog stays.
  void FocusField(const CheckResult& failed);
  void done(int result) override;

  Application& app_;
};

}  // namespace tessarine::ui
