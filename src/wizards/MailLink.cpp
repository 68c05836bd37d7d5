#include "wizards/MailLink.h"

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/TextServices.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"

namespace tessarine {

namespace {
std::string TrimBlanks(const std::string& s) {
  const std::size_t b = s.find_first_not_of(' ');
  if (b == std::string::npos) return "";
  return s.substr(b, s.find_last_not_of(' ') - b + 1);
}
}  // namespace

CheckResult MailLink::Validate() const {
  if (address.empty())
    return WizardCheck{"Please enter Email Address in the box below.", "emailAddress"};
  if (linkText.empty())
    return WizardCheck{"Please enter Text to link to your Email Address in the box below.",
                       "linkText"};
  return std::nullopt;
}

std::string MailLink::Build(bool upper) const {
  const std::string q = "\"";
  const std::string trimmed = TrimBlanks(subject);
  const std::string subjectPart = trimmed.empty() ? "" : "?subject=" + trimmed;
  return (upper ? "<A HREF=" : "<a href=") + q + "mailto:" + address + subjectPart + q + ">" +
         linkText + (upper ? "</A>" : "</a>");
}

MailLink MailLink_Open(Application& app) {
  app.wizards.HeadInsert.clear();
  app.wizards.BodyInsert.clear();
  MailLink m;
  m.address = app.store.GetSetting("Miscellaneous", "EmailAddress", "");
  return m;
}

CheckResult MailLink_OK(Application& app, const MailLink& form) {
  if (CheckResult failed = form.Validate()) {
    app.messages.Show(failed->message, MsgButtons::OK, MsgIcon::None, app.title);
    return failed;
  }
  app.wizards.HeadInsert.clear();
  app.wizards.BodyInsert = form.Build(TagCaseUpper(app) == 1);
  app.store.SaveSetting("Miscellaneous", "EmailAddress", form.address);
  return std::nullopt;
}

void MailLink_Finish(Application& app) {
  WizardState& w = app.wizards;
  if (w.HeadInsert.empty() && w.BodyInsert.empty()) return;
  InsertInHeadAndBody(app, w.HeadInsert, w.BodyInsert);
}

}  // namespace tessarine
