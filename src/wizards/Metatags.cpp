#include "wizards/Metatags.h"

#include "core/Application.h"
#include "platform/MessageBoxes.h"
#include "wizards/TagConventions.h"

namespace tessarine {

namespace {
std::string Trim(const std::string& s) {
  const std::size_t b = s.find_first_not_of(' ');
  if (b == std::string::npos) return "";
  return s.substr(b, s.find_last_not_of(' ') - b + 1);
}
}  // namespace

CheckResult Metatags::Validate() const {
  if (Check1 && (Text3.empty() || Text4.empty()))
    return WizardCheck{
        "Please enter the number of seconds and the Web page URL for the splash screen.",
        Text3.empty() ? "Text3" : "Text4"};
  return std::nullopt;
}

Metatags::Texts Metatags::Build(bool upper) const {
  const std::string q = "\"";
  const std::string meta = upper ? "<META Name=" : "<meta name=";
  Texts t;
  if (!Text1.empty())
    t.description = meta + q + "description" + q + " Content=" + q + Text1 + q + ">\r\n";
  if (!Text2.empty())
    t.keywords = meta + q + "keywords" + q + " Content=" + q + Text2 + q + ">\r\n";
  if (Check1 && !Text3.empty() && !Text4.empty())
    t.effects = (upper ? "<META HTTP-EQUIV=" : "<meta http-equiv=") + q + "Refresh" + q +
                " Content=" + q + Trim(Text3) + ";URL=" + Text4 + q + ">\r\n";
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
