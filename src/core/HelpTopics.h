#pragma once
// The help: HTML pages in the application folder's "help" folder, each reached by a help
// id. The ids are the pages' own topics and the object names of the windows that have a
// page; F1 asks for the page of the window in front, and a window without one gets the
// contents.

#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

class Application;
class SettingsStore;

struct HelpTopic {
  std::string_view id;
  std::string_view page;  // file name in the help folder
};

// The one table of help ids: every id the program asks for is in it.
const std::vector<HelpTopic>& HelpTopics();

// The topic ids the Help menu, the start screen and the shortcut bar open.
inline constexpr std::string_view kHelpContents = "Contents";
inline constexpr std::string_view kHelpHowToUse = "HowToUse";
inline constexpr std::string_view kHelpTutorial = "HtmlTutorial";
inline constexpr std::string_view kHelpBeginners = "ForBeginners";

bool HasHelpTopic(std::string_view id);
// The page of `id`; the contents page for an id without its own.
std::string_view HelpPageOf(std::string_view id);
// The shortcut bar's numbered help contexts (40, 10, 42, 33); the contents for others.
std::string_view HelpTopicOfContext(int contextId);
std::string HelpFilePath(const std::string& programFolder, std::string_view id);

// Opens the page of `id` in the default viewer. A page missing from the application
// folder is told in a message instead; false then.
bool ShowHelpTopic(Application& app, std::string_view id);

// The start screen: shown while `MainMenuBox` is "on" or not yet set.
bool StartScreenWanted(const SettingsStore& store);
// Closing it with "Don't show this screen again" ticked turns it off for later starts.
void CloseStartScreen(SettingsStore& store, bool dontShowAgain);

}  // namespace tessarine
