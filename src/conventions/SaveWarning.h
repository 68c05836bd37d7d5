#pragma once
// The advice to save an untitled document before a wizard writes paths relative to it.

#include <string>

namespace tessarine {

class Application;
struct CheckedQuestion;

// The text and buttons of the Save_warning form.
CheckedQuestion SaveWarningQuestion();

// Whether the form applies: SaveWarning "on" or empty, and a caption that begins with
// "Untitled".
bool SaveWarningApplies(const std::string& saveWarningSetting, const std::string& caption);

// Shows the form when it applies. "&Yes" saves through Save As (a Cancel there just closes);
// a ticked box stores "off". The wizard goes on afterwards in every case.
void CheckSaveWarning(Application& app);

}  // namespace tessarine
