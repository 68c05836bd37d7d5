#pragma once
// The special effects picker: six wizards, and how the text of each reaches the document.

#include <string>
#include <vector>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

enum class SpecialEffect {
  BackgroundSound,
  DigitalClock,
  JumpMenu,
  InlineFrame,
  Marquee,
  PersonalGreeting
};

// The list's texts, in the picker's order.
const std::vector<std::string>& SpecialEffectNames();
extern const char* const kSpecialEffectsHeading;
extern const char* const kSpecialEffectsPrompt;

// Next with the row `selected` (-1 for none).
CheckResult CheckSpecialEffect(int selected);
SpecialEffect SpecialEffectAt(int selected);

// After the chosen wizard closed: writes what it left in HeadInsert and BodyInsert. The
// marquee's texts go to head and body; the clock, the jump menu and the inline frame put
// both texts at the caret. The greeting and the sound write for themselves. A wizard that
// was cancelled left both empty, and nothing is written.
void InsertSpecialEffect(Application& app, SpecialEffect effect);

// Browses for a file and gives its URL relative to the active document; "" on Cancel.
std::string BrowseForRelativeUrl(Application& app);

}  // namespace tessarine
