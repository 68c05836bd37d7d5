#pragma once
// F1 and the help buttons: the page of the window in front.

#include <string>

class QWidget;

namespace tessarine {

class Application;

// The window F1 speaks for: the modal dialog in front, else the active window, else the
// window of `receiver` (the widget the key went to).
const QWidget* HelpWindow(const QWidget* receiver);
// A window's help id: its own object name when that has a page, else that of the window
// that owns it (a message box over a dialog, say); the contents for the main window and
// for windows without a page.
std::string HelpIdOf(const QWidget* window);
// Opens the page of `window` in the default viewer.
bool ShowHelp(Application& app, const QWidget* window);

}  // namespace tessarine
