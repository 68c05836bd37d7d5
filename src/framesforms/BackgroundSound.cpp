#include "framesforms/BackgroundSound.h"

#include "core/Application.h"
#include "core/TextServices.h"

namespace tessarine {

const char* const kBackgroundSoundLoops[11] = {"None", "2", "3", "4",  "5",       "6",
                                               "7",    "8", "9", "10", "Infinite"};
const char* const kBackgroundSoundNote =
    "Only Internet Explorer supports this feature.   To insert sounds that work with ALL "
    "browsers use the 'Sound/Multimedia Object' function in the 'Insert' menu.";

CheckResult ValidateBackgroundSound(const BackgroundSoundInputs& in) {
  if (in.soundFile.find_first_not_of(' ') == std::string::npos)
    return WizardCheck{"Please enter sound filename in the box below.", "soundFile"};
  return std::nullopt;
}

std::string BuildBackgroundSound(bool upper, const BackgroundSoundInputs& in) {
  const std::string loop = in.loop == "None" ? "1" : in.loop;
  return std::string(upper ? "<BGSOUND SRC=" : "<bgsound src=") + "\"" + in.soundFile + "\"" +
         (upper ? " LOOP=" : " loop=") + "\"" + loop + "\">";
}

CheckResult BackgroundSound_OK(Application& app, const BackgroundSoundInputs& in) {
  EmptyUndoBuffer(app);
  if (CheckResult failed = ValidateBackgroundSound(in)) return failed;
  app.wizards.HeadInsert.clear();
  app.wizards.BodyInsert.clear();
  std::string head;
  std::string body = BuildBackgroundSound(app.settings.TagCaseUpper, in);
  InsertInHeadAndBody(app, head, body);
  return std::nullopt;
}

}  // namespace tessarine
