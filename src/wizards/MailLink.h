#pragma once
// The mail link dialog: an address, the text that carries it, and a subject.

#include <string>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

struct MailLink {
  std::string address;
  std::string linkText;
  std::string subject;

  CheckResult Validate() const;
  std::string Build(bool tagCaseUpper) const;
};

// Opening: the head and body texts are cleared and the last address is offered.
MailLink MailLink_Open(Application& app);
// OK: leaves the link in BodyInsert and stores the address for next time.
CheckResult MailLink_OK(Application& app, const MailLink& form);
// What the command does once the dialog closed: writes what OK left, if anything.
void MailLink_Finish(Application& app);

}  // namespace tessarine
