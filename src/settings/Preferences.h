#pragma once
// The Preferences dialog as a record: every field filled from the settings, the checks
// of OK and the writes that follow, the custom buttons, the favourite URLs and the preview.

#include <array>
#include <string>
#include <vector>

#include "conventions/WizardCheck.h"
#include "platform/EditControl.h"
#include "settings/Settings.h"

namespace tessarine {

class Application;
class SettingsStore;

inline constexpr const char* kOverrideNeedsBrowser =
    "If you are overriding the default browser, you must enter the path and filename of a "
    "different browser in the Browser #1 input box.";
inline constexpr const char* kOnlyFiveFavorites = "Only 5 Favorite URLs are allowed.";

// The ranges the numeric fields accept.
inline constexpr int kFontSizeMin = 1, kFontSizeMax = 96;
// Any interval the stored setting can hold.
inline constexpr int kAutoSaveMinutesMax = 32767;
inline constexpr int kRecentFilesMax = 10;  // the File menu's entries
inline constexpr int kCustomButtonCount = 20;
inline constexpr int kFavoriteCount = 5;  // URL16 to URL20

// The default of the spell-check language, as the spell check reads it.
inline constexpr const char* kDefaultSpellLanguage = "en_US";

// The words of the menu systems, in the order of their radio buttons.
inline constexpr std::array<const char*, 4> kMenuSystems = {"beginner", "intermediate", "advanced",
                                                            "custom"};

struct Preferences {
  // Startup
  std::string workingDirectory;
  std::string imageDirectory;
  bool showPageProps = true;
  bool blankNewDoc = false;
  bool cascadeDocuments = false;  // RTFCascaded
  bool tipOfTheDay = true;
  bool startNewDoc = true;
  bool openMRUDoc = false;
  // Screen/Text settings
  std::string fontName;
  std::string fontSize;
  bool bold = false;
  std::string htmlTagFont;
  ColorFlags colorFlags;
  TagColors colors;
  // HTML tags
  bool upperCaseTags = true;
  bool useDivTag = false;
  bool endingPTag = true;
  bool brCarriageReturn = false;
  // Menus: one of kMenuSystems, or "" while none is chosen.
  std::string menuSystem;
  // Previewers/Apps
  std::string browser;
  std::string browser2;
  bool overrideBrowser = false;
  std::string printerProgram;
  std::string imageMapper;
  std::string ftpClient;
  // Miscellaneous
  bool enableAutotab = true;
  bool autoSave = false;
  std::string autoSaveMinutes;
  bool hrPropsBox = true;
  bool showFileList = true;
  bool wordWrap = true;
  bool beginnerTableWizard = true;
  bool alignFileListLeft = false;
  std::string numberOfMRUFiles;
  std::string spellLanguage;
  // Favorite URLs: the lines of the list, at most kFavoriteCount.
  std::vector<std::string> favoriteURLs;

  // The first failing check of OK: the override without a browser, then the numbers.
  CheckResult Validate() const;

  // The Replace/Insert URL button: `selected` (0-based, -1 for none) takes `url`, or a
  // line is added. The message when the list is already full.
  CheckResult ReplaceOrInsertUrl(int selected, const std::string& url);

  // The autosave box: ticked starts at ten minutes, unticked clears the minutes.
  void SetAutoSave(bool on);
};

// The fields as the running settings have them. `defaultFolder` is the folders' default.
Preferences LoadPreferences(const SettingsVars& vars, const SettingsStore& store,
                            const std::string& defaultFolder);

// OK: checks, writes every key in its order, then loads the settings again. A failed
// check is shown and returned, and nothing is written.
CheckResult SavePreferences(Application& app, const Preferences& p);

// The three keys of custom button `number`.
struct CustomButton {
  std::string name;
  std::string startTag;
  std::string endTag;
};
CustomButton ReadCustomButton(const SettingsStore& store, int number);
void WriteCustomButton(SettingsStore& store, int number, const CustomButton& button);

// A whole number in [low, high], blanks around it allowed; false for anything else.
bool ParseWholeNumber(const std::string& text, int low, int high, int& value);

// The preview of the colours: six lines, and the style of each of their characters as the
// document's colouring pass would give it with these choices.
const std::string& PreviewText();
std::vector<Style> PreviewStyles(const Preferences& p);
// The settings the preview's style table is built from: `running` with the dialog's fonts
// and colours.
SettingsVars PreviewSettings(const Preferences& p, const SettingsVars& running);

}  // namespace tessarine
