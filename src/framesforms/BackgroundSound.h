#pragma once
// The background sound dialog: one BGSOUND tag, which only Internet Explorer plays.

#include <string>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

extern const char* const kBackgroundSoundLoops[11];  // "None", "2" to "10", "Infinite"
extern const char* const kBackgroundSoundNote;

struct BackgroundSoundInputs {
  std::string soundFile;
  std::string loop = "None";
};

CheckResult ValidateBackgroundSound(const BackgroundSoundInputs& in);
std::string BuildBackgroundSound(bool tagCaseUpper, const BackgroundSoundInputs& in);
// OK: the checks, then the tag through InsertInHeadAndBody with an empty head. The
// dialog writes the tag itself; HeadInsert and BodyInsert are left empty.
CheckResult BackgroundSound_OK(Application& app, const BackgroundSoundInputs& in);

}  // namespace tessarine
