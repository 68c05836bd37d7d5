#pragma once
// Email Link: a mailto link with an optional subject.

#include "ui/wizards/WizardDialog.h"
#include "wizards/MailLink.h"

class QLineEdit;

namespace tessarine::ui {

class MailLinkDialog : public WizardDialog {
 public:
  // Opening clears the texts left for the document and offers the last address, selected.
  MailLinkDialog(Application& app, QWidget* parent);

  void Prefill(const MailLink& link);
  MailLink Model() const;

 private:
  QLineEdit* emailAddress_;
  QLineEdit* linkText_;
  QLineEdit* subject_;
};

}  // namespace tessarine::ui
