#include "effects/EffectPicker.h"

#include "conventions/CFile.h"
#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/TextServices.h"
#include "platform/DocumentWindow.h"

namespace tessarine {

const char* const kSpecialEffectsHeading = "Special Effects";
const char* const kSpecialEffectsPrompt =
    "Select a special effect from the list below.  Click the 'Next >>' button to continue.";

const std::vector<std::string>& SpecialEffectNames() {
  static const std::vector<std::string> names = {"Background Sound",     "Digital Clock",
                                                 "Dropdown/Jumpto Menu", "Inline Frame",
                                                 "Scrolling Marquee",    "Personal Greeting"};
  return names;
}

CheckResult CheckSpecialEffect(int selected) {
  if (selected < 0 || selected >= static_cast<int>(SpecialEffectNames().size()))
    return WizardCheck{"Please select a special effect from the list below.", "effectList"};
  return std::nullopt;
}

SpecialEffect SpecialEffectAt(int selected) {
  return static_cast<SpecialEffect>(selected);
}

void InsertSpecialEffect(Application& app, SpecialEffect effect) {
  WizardState& w = app.wizards;
  if (w.HeadInsert.empty() && w.BodyInsert.empty()) return;
  switch (effect) {
    case SpecialEffect::Marquee: {
      std::string head = w.HeadInsert, body = w.BodyInsert;
      InsertInHeadAndBody(app, head, body);
      break;
    }
    case SpecialEffect::DigitalClock:
    case SpecialEffect::JumpMenu:
    case SpecialEffect::InlineFrame: {
      std::string head, body = w.HeadInsert + "\r\n" + w.BodyInsert;
      InsertInHeadAndBody(app, head, body);
      break;
    }
    case SpecialEffect::BackgroundSound:
    case SpecialEffect::PersonalGreeting:
      break;
  }
}

std::string BrowseForRelativeUrl(Application& app) {
  CFile file(app.fileDialogs);
  file.BrowseForFile();
  if (file.PathAndFilename.empty()) return "";
  DocumentWindow* document = app.ActiveDocument();
  const std::string caption = document ? document->Caption() : "";
  return RelativePath(caption, file.Path) + file.Filename;
}

}  // namespace tessarine
