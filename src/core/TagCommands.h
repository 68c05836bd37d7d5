#pragma once
// The tag commands of the Format and Insert menus, the toolbars and the shortcut bar: most
// wrap the selection or insert at the caret. Commands that need a dialog return its name
// ("" when the command is done), and the window shows it.

#include <string>
#include <vector>

namespace tessarine {

class Application;
class SettingsStore;

// A menu array: its entries' captions by index, counting from `firstIndex`. An empty
// caption stands for a separator.
struct TagMenuArray {
  std::string name;
  int firstIndex;
  std::vector<std::string> captions;
};
// mnuPhysicalStyles, mnuLogicalStyles, mnuHeadingsSub, mnuParagraphSub, mnuPAlignSub,
// mnuOtherHTMLSub, mnuStructureTagsSub.
const std::vector<TagMenuArray>& TagMenuArrays();
// The handler of each array, by the array's name.
void RunTagMenu(Application& app, const std::string& array, int index);

// Single Insert commands: mnuTableTable, mnuTableData, mnuTableHeader, mnuTableRow,
// mnuListItem.
void RunInsertCommand(Application& app, const std::string& name);

// "<HR>" at the caret, or "HorizontalLine" when the properties box is on (HeadInsert and
// BodyInsert are cleared for it); mnuHR_Finish writes what the dialog left.
std::string mnuHR(Application& app);
void mnuHR_Finish(Application& app);

// Repeat Last Command: the last wrap again.
void mnuRepeat(Application& app);

// tbrFormat by key, ignoring case; then the document takes the focus. Returns a dialog name.
std::string tbrFormatClick(Application& app, const std::string& key);
// The "BR" button's drop-down: "BRClearLeft", "BRClearRight", "BRClearAll".
void tbrBRMenuClick(Application& app, const std::string& key);
// tbrTools "Color Picker".
void ColorPickerClick(Application& app);

// The shortcut bar. Items by group; group 5 is the custom group.
struct ShortcutItem {
  std::string key;
  std::string text;
  std::string icon;
};
struct ShortcutGroup {
  std::string caption;
  std::vector<ShortcutItem> items;
};
std::vector<ShortcutGroup> ShortcutBarGroups(const SettingsStore& store);
// Group 5: the add item, then one item per named custom button.
std::vector<ShortcutItem> LoadCustomButtons(const SettingsStore& store);
// A click on an item, by key. Returns a dialog name: "Preferences:Custom buttons", "ScriptTags",
// "TableWizard", "FormWizard", or "FormElement:n" with the field kind n.
std::string ShortcutBarClick(Application& app, const std::string& key);
// Keys whose dialogs aren't built yet: the bar shows them dimmed.
bool ShortcutKeyAvailable(const std::string& key);

// The help page of a context id, opened with the desktop's viewer.
std::string HelpPagePath(const Application& app, int contextId);
void ShowHelpContext(Application& app, int contextId);

}  // namespace tessarine
