#include "wizards/Metatags.h"

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "platform/MessageBoxes.h"

namespace tessarine {

namespace {
std::string Trim(const std::string& s) {
  const std::size_t b = s.find_first_not_of(' ');
  if (b == std::string::npos) return "";
  return s.substr(b, s.find_last_not_of(' ') - b + 1);
}
}  // namespace

CheckResult Metatags::Validate() const {
  if (splashScreen && (refreshSeconds.empty() || nextPageUrl.empty()))
    return WizardCheck{
        "Please enter the number of seconds and the Web page URL for the splash screen.",
        refreshSeconds.empty() ? "refreshSeconds" : "nextPageUrl"};
  return std::nullopt;
}

Metatags::Texts Metatags::Build(bool upper) const {
  const std::string q = "\"";
  const std::string meta = upper ? "<META Name=" : "<meta name=";
  Texts t;
  if (!description.empty())
    t.description = meta + q + "description" + q + " Content=" + q + description + q + ">\r\n";
  if (!keywords.empty())
    t.keywords = meta + q + "keywords" + q + " Content=" + q + keywords + q + ">\r\n";
  if (splashScreen && !refreshSeconds.empty() && !nextPageUrl.empty())
    t.effects = (upper ? "<META HTTP-EQUIV=" : "<meta http-equiv=") + q + "Refresh" + q +
                " Content=" + q + Trim(refreshSeconds) + ";URL=" + nextPageUrl + q + ">\r\n";
  return t;
}

CheckResult Metatags_OK(Application& app, const Metatags& form) {
  WizardState& w = app.wizards;
  w.MetaDescription.clear();
  w.MetaKeywords.clear();
  w.MetaEffects.clear();
  if (CheckResult failed = form.Validate()) {
    app.messages.Show(failed->message, MsgButtons::OK, MsgIcon::None, app.title);
    return failed;
  }
  const Metatags::Texts t = form.Build(TagCaseUpper(app) == 1);
  w.MetaDescription = t.description;
  w.MetaKeywords = t.keywords;
  w.MetaEffects = t.effects;
  return std::nullopt;
}

}  // namespace tessarine
