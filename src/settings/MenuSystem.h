#pragma once
// The menu systems: which entries of a document window's full menu a system hides, the
// custom system's five choices, and the writing of section Menu.

#include <string>
#include <vector>

namespace tessarine {

class SettingsStore;
struct SettingsVars;

// One entry of the document menu: a named entry, or entry `index` of a menu array.
struct MenuItemRef {
  std::string name;
  int index = -1;  // -1 for a named entry
  // The control name the window gives it: the array's name followed by the index.
  std::string ControlName() const;
  bool operator==(const MenuItemRef&) const = default;
};

// What ApplyMenuSystem hides for the chosen word, in a fixed order and without repeats.
// Words are compared exactly; an unknown word, "advanced" and "" hide nothing. For "custom",
// each of the menu variables that is exactly "off" hides its group.
std::vector<MenuItemRef> HiddenMenuItems(const SettingsVars& vars);

// Every entry some system may hide: the entries a window's menu keeps track of.
const std::vector<MenuItemRef>& ManagedMenuItems();

// The five boxes of the custom menu settings, in their order on the dialog.
struct CustomMenuChoices {
  bool structureTags = false;   // StructMenu
  bool forms = false;           // FormsMenu
  bool tables = false;          // TablesMenu
  bool specialEffects = false;  // IEMenu
  bool javaScript = false;      // JavaMenu
};
// The boxes as the dialog opens: ticked where the variable is "on".
CustomMenuChoices CurrentCustomMenuChoices(const SettingsVars& vars);
// OK: each of the five variables becomes "on" or "off". Nothing is written to the store.
void ApplyCustomMenuChoices(SettingsVars& vars, const CustomMenuChoices& choices);

// The four radio buttons of the preferences in their order: the first selected gives the
// word; with none selected the word stays `current`.
std::string MenuSystemOfChoice(bool minimal, bool typical, bool maximum, bool custom,
                               const std::string& current);
// Sets MenuSystem to `word` and writes it; with "custom", the seven keys of section Menu
// are written from the variables first.
void SaveMenuSystem(SettingsVars& vars, SettingsStore& store, const std::string& word);

}  // namespace tessarine
