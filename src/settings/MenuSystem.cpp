#include "settings/MenuSystem.h"

#include <algorithm>

#include "platform/SettingsStore.h"
#include "settings/Settings.h"

namespace tessarine {

namespace {

void Add(std::vector<MenuItemRef>& items, const char* name, std::initializer_list<int> indexes) {
  for (int i : indexes) items.push_back({name, i});
}

// "beginner" alone.
void AddMinimalOnly(std::vector<MenuItemRef>& items) {
  for (const char* name :
       {"mnuLogicalStylesMain", "mnuembed", "mnuImageMap", "mnuTableMaker", "mnuSpecialEffectsMain",
        "sep4", "mnuJavaApplet", "mnuScriptingMain", "mnuTable", "mnuForm", "mnuCSSMain", "sep51",
        "mnuFrameMaker", "mnuAnchor"})
    items.push_back({name});
  Add(items, "mnuPhysicalStyles", {3, 4});
  Add(items, "mnuParagraphSub", {4, 8, 9});
}

// "beginner" and "intermediate".
void AddTypical(std::vector<MenuItemRef>& items) {
  Add(items, "mnuStructureTagsSub", {0, 1, 5, 6, 7});
  Add(items, "mnuParagraphSub", {2, 5, 6});
  // Only Emphasis (9) and Strong Emphasis (16) stay.
  Add(items, "mnuLogicalStyles", {0, 1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 12, 13, 14, 15, 17});
  Add(items, "mnuPhysicalStyles", {2});
  Add(items, "mnuOtherHTMLSub", {2, 3});
}

void AddCustom(std::vector<MenuItemRef>& items, const SettingsVars& v) {
  if (v.StructMenu == "off") items.push_back({"mnuOtherHTMLSub", 0});
  if (v.FormsMenu == "off") items.push_back({"mnuForm"});
  if (v.TablesMenu == "off") items.push_back({"mnuTable"});
  if (v.IEMenu == "off") items.push_back({"mnuSpecialEffectsMain"});
  if (v.JavaMenu == "off") {
    items.push_back({"mnuJavaApplet"});
    items.push_back({"mnuScriptingMain"});
  }
}

const char* OnOff(bool on) {
  return on ? "on" : "off";
}

}  // namespace

std::string MenuItemRef::ControlName() const {
  return index < 0 ? name : name + std::to_string(index);
}

std::vector<MenuItemRef> HiddenMenuItems(const SettingsVars& vars) {
  std::vector<MenuItemRef> items;
  const std::string& word = vars.MenuSystem;
  if (word == "beginner") AddMinimalOnly(items);
  if (word == "beginner" || word == "intermediate") AddTypical(items);
  if (word == "custom") AddCustom(items, vars);
  return items;
}

const std::vector<MenuItemRef>& ManagedMenuItems() {
  static const std::vector<MenuItemRef> all = [] {
    std::vector<MenuItemRef> items;
    AddMinimalOnly(items);
    AddTypical(items);
    SettingsVars allOff;  // every custom group hidden
    allOff.StructMenu = allOff.FormsMenu = allOff.TablesMenu = allOff.IEMenu = allOff.JavaMenu =
        "off";
    AddCustom(items, allOff);
    std::vector<MenuItemRef> unique;
    for (const MenuItemRef& i : items)
      if (std::find(unique.begin(), unique.end(), i) == unique.end()) unique.push_back(i);
    return unique;
  }();
  return all;
}

CustomMenuChoices CurrentCustomMenuChoices(const SettingsVars& v) {
  CustomMenuChoices c;
  c.structureTags = v.StructMenu == "on";
  c.forms = v.FormsMenu == "on";
  c.tables = v.TablesMenu == "on";
  c.specialEffects = v.IEMenu == "on";
  c.javaScript = v.JavaMenu == "on";
  return c;
}

void ApplyCustomMenuChoices(SettingsVars& v, const CustomMenuChoices& c) {
  v.StructMenu = OnOff(c.structureTags);
  v.FormsMenu = OnOff(c.forms);
  v.TablesMenu = OnOff(c.tables);
  v.IEMenu = OnOff(c.specialEffects);
  v.JavaMenu = OnOff(c.javaScript);
}

std::string MenuSystemOfChoice(bool minimal, bool typical, bool maximum, bool custom,
                               const std::string& current) {
  if (minimal) return "beginner";
  if (typical) return "intermediate";
  if (maximum) return "advanced";
  if (custom) return "custom";
  return current;
}

void SaveMenuSystem(SettingsVars& v, SettingsStore& store, const std::string& word) {
  v.MenuSystem = word;
  if (word == "custom") {
    const std::pair<const char*, const std::string*> keys[] = {
        {"StructMenu", &v.StructMenu},     {"AnchorMenu", &v.AnchorMenu},
        {"FormsMenu", &v.FormsMenu},       {"TablesMenu", &v.TablesMenu},
        {"NetscapeMenu", &v.NetscapeMenu}, {"IEMenu", &v.IEMenu},
        {"JavaMenu", &v.JavaMenu}};
    for (const auto& [key, value] : keys) store.SaveSetting("Menu", key, *value);
  }
  store.SaveSetting("Menu", "MenuSystem", word);
}

}  // namespace tessarine
