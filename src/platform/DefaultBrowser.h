#pragma once
// The desktop's default web browser, as the command line its desktop entry runs.

#include <string>
#include <vector>

namespace tessarine {

class DefaultBrowser {
 public:
  virtual ~DefaultBrowser() = default;
  // The browser's command without field codes, or "" when the desktop names none.
  virtual std::string Command() = 0;
};

// The freedesktop way: the handler of x-scheme-handler/http in the mimeapps.list files,
// else what `xdg-settings get default-web-browser` answers; then that desktop entry's
// Exec line. Reads the XDG variables at each call.
class XdgDefaultBrowser : public DefaultBrowser {
 public:
  // `settingsTool` is asked when no mimeapps.list names a browser; "" asks nobody.
  explicit XdgDefaultBrowser(std::string settingsTool = "xdg-settings")
      : settingsTool_(std::move(settingsTool)) {}
  std::string Command() override;

 private:
  std::string settingsTool_;
};

// Headless: whatever the test says the desktop answers.
class FixedDefaultBrowser : public DefaultBrowser {
 public:
  std::string command;
  int asked = 0;
  std::string Command() override {
    ++asked;
    return command;
  }
};

// The pieces of the lookup, for the desktop entry files themselves.
// The desktop ids that `mimeappsList` (a file's text) makes the default for `mimeType`, in
// order of preference.
std::vector<std::string> DefaultApplicationsIn(const std::string& mimeappsList,
                                               const std::string& mimeType);
// The Exec value of the [Desktop Entry] group, "" when there is none.
std::string ExecLineOf(const std::string& desktopEntry);
// Drops the field codes (%u, %U, %f...) an Exec line carries; "%%" stands for "%".
std::string DropFieldCodes(const std::string& exec);
// Where a desktop id's file lives: the applications folders of XDG_DATA_HOME and
// XDG_DATA_DIRS in that order, a "-" in the id also standing for a subfolder.
std::string FindDesktopEntry(const std::string& desktopId);

}  // namespace tessarine
