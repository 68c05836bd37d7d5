#include "ui/wizards/MailLinkDialog.h"

#include <QFont>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "ui/wizards/LinkDialogParts.h"

namespace tessarine::ui {

MailLinkDialog::MailLinkDialog(Application& app, QWidget* parent)
    : WizardDialog(app, "MailLinkDialog", "Email Link", parent) {
  auto* layout = new QVBoxLayout(this);
  auto* heading = new QLabel("Email Link");
  QFont bold = heading->font();
  bold.setBold(true);
  bold.setPointSizeF(bold.pointSizeF() * 1.3);
  heading->setFont(bold);
  layout->addWidget(heading);
  auto* intro = new QLabel(
      "Create a link to your email address on your Web page.  When the user clicks on the link "
      "it will allow them to write an email message to you.");
  intro->setWordWrap(true);
  layout->addWidget(intro);
  layout->addWidget(new QLabel("Email address:"));
  emailAddress_ = NamedEdit("emailAddress");
  layout->addWidget(emailAddress_);
  layout->addWidget(new QLabel("Text that will appear as hypertext on the Web page:"));
  linkText_ = NamedEdit("linkText");
  layout->addWidget(linkText_);
  layout->addWidget(new QLabel("Email subject:"));
  subject_ = NamedEdit("subject");
  layout->addWidget(subject_);
  AddButtons(layout, "okButton", [this] {
    const CheckResult failed = MailLink_OK(app_, Model());
    FocusField(failed);
    return !failed;
  });
  AllowLongText(this);
  Prefill(MailLink_Open(app));
  emailAddress_->selectAll();
  emailAddress_->setFocus();
  setMinimumWidth(420);
}

void MailLinkDialog::Prefill(const MailLink& link) {
  emailAddress_->setText(Q(link.address));
  linkText_->setText(Q(link.linkText));
  subject_->setText(Q(link.subject));
}

MailLink MailLinkDialog::Model() const {
  return MailLink{S(emailAddress_->text()), S(linkText_->text()), S(subject_->text())};
}

}  // namespace tessarine::ui
