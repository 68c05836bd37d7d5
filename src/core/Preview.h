#pragma once
// Preview in a real browser, the graphics program and the FTP client, and the shell's
// "open" and "properties" actions. The editor never renders a page itself.

#include <functional>
#include <string>
#include <vector>

namespace tessarine {

class Application;

struct ProgramState {
  // Opens Preferences from the failure messages' Yes; nothing happens while unset.
  std::function<void()> OpenPreferences;
};

// "View page with Browser 1/2": `key` is "Browser" or "Browser2". Always the active document.
void ViewInBrowser(Application& app, const std::string& key);
// `which` "FTP" (any case) starts the FTP client, anything else the graphics program.
void OpenExternalProgram(Application& app, const std::string& which);
// The desktop's own viewer for a file.
void OpenInDefaultViewer(Application& app, const std::string& path);
void ShowFileProperties(Application& app, const std::string& path);
// The default browser's command line, "" when the desktop names none.
std::string ReadDefaultBrowserCommand(Application& app);

// The browser to store from a default-browser command: the program alone, without its
// arguments and double quotes.
std::string BrowserPathOfCommand(const std::string& command);
// A command line's words: split on blanks, a double-quoted stretch staying one word.
std::vector<std::string> SplitCommandLine(const std::string& commandLine);

// The Print button's question; true when the document should be printed.
bool ConfirmPrint(Application& app);

}  // namespace tessarine
