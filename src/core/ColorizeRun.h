#pragma once
// What the user sees of a colouring pass: the hidden control, the hourglass, the status
// texts, Esc, and the styles applied to the control in chunks.

#include <string>

namespace tessarine {

class Application;
class DocumentWindow;

void ColorizeTags(Application& app, DocumentWindow& window);
// Works on the active document window.
void ColorizeScriptComments(Application& app);

// True when the caption's last three characters are "cgi" or ".pl".
bool IsScriptCaption(const std::string& caption, bool caseSensitive);
// The common dispatch. Case-sensitive at the menu command and on opening a file,
// case-insensitive at the toolbar button.
void ChooseColorizer(Application& app, DocumentWindow& window, bool caseSensitive);
// The refresh command; `fromToolbar` selects the toolbar's comparison.
void mnuColorize(Application& app, bool fromToolbar);

// Insertion colour while typing.
void OnLessThanKeyDown(Application& app, DocumentWindow& window);
void OnGreaterThanKeyUp(Application& app, DocumentWindow& window);
void OnQuoteKeyDown(Application& app, DocumentWindow& window);
void OnQuoteKeyUp(Application& app, DocumentWindow& window);
// Every key press that reaches the window: Esc asks a running pass to stop.
void OnDocumentKeyPress(Application& app, int keyAscii);

extern const char* const kColorizingStatus;
extern const char* const kReadyStatus;

}  // namespace tessarine
