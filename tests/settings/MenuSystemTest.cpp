// The menu systems: what each word hides, the custom groups, and section Menu's writes.

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "platform/SettingsStore.h"
#include "settings/MenuSystem.h"
#include "settings/Settings.h"

namespace tessarine {
namespace {

std::set<std::string> Hidden(const SettingsVars& vars) {
  std::set<std::string> names;
  for (const MenuItemRef& item : HiddenMenuItems(vars)) names.insert(item.ControlName());
  return names;
}

std::set<std::string> Hidden(const std::string& word) {
  SettingsVars vars;
  vars.MenuSystem = word;
  return Hidden(vars);
}

// The indexes of `array` (0 to count - 1) that stay visible.
std::set<int> Visible(const std::set<std::string>& hidden, const std::string& array, int count) {
  std::set<int> shown;
  for (int i = 0; i < count; ++i)
    if (!hidden.count(array + std::to_string(i))) shown.insert(i);
  return shown;
}

const char* const kMinimalOnlyNames[] = {"mnuLogicalStylesMain",
                                         "mnuembed",
                                         "mnuImageMap",
                                         "mnuTableMaker",
                                         "mnuSpecialEffectsMain",
                                         "sep4",
                                         "mnuJavaApplet",
                                         "mnuScriptingMain",
                                         "mnuTable",
                                         "mnuForm",
                                         "mnuCSSMain",
                                         "sep51",
                                         "mnuFrameMaker",
                                         "mnuAnchor"};

TEST(MenuSystemTest, TypicalMenusKeepTheCommonTagsOfEachArray) {
  const std::set<std::string> h = Hidden("intermediate");
  EXPECT_EQ(Visible(h, "mnuLogicalStyles", 18), (std::set<int>{9, 16}));
  EXPECT_EQ(Visible(h, "mnuPhysicalStyles", 7), (std::set<int>{0, 1, 3, 4, 5, 6}));
  EXPECT_EQ(Visible(h, "mnuParagraphSub", 10), (std::set<int>{0, 1, 3, 4, 7, 8, 9}));
  EXPECT_EQ(Visible(h, "mnuStructureTagsSub", 9), (std::set<int>{2, 3, 4, 8}));
  EXPECT_EQ(Visible(h, "mnuOtherHTMLSub", 5), (std::set<int>{0, 1, 4}));
  // The whole groups go only in the minimal menus.
  for (const char* name : kMinimalOnlyNames) EXPECT_FALSE(h.count(name)) << name;
}

TEST(MenuSystemTest, MinimalMenusHideTheTypicalListAndTheirOwn) {
  const std::set<std::string> minimal = Hidden("beginner");
  for (const std::string& item : Hidden("intermediate")) EXPECT_TRUE(minimal.count(item)) << item;
  for (const char* name : kMinimalOnlyNames) EXPECT_TRUE(minimal.count(name)) << name;
  EXPECT_EQ(Visible(minimal, "mnuPhysicalStyles", 7), (std::set<int>{0, 1, 5, 6}));
  EXPECT_EQ(Visible(minimal, "mnuParagraphSub", 10), (std::set<int>{0, 1, 3, 7}));
  EXPECT_EQ(Visible(minimal, "mnuLogicalStyles", 18), (std::set<int>{9, 16}));
  // Nothing is listed twice.
  SettingsVars vars;
  vars.MenuSystem = "beginner";
  EXPECT_EQ(HiddenMenuItems(vars).size(), minimal.size());
}

TEST(MenuSystemTest, WordsAreComparedExactly) {
  for (const char* word :
       {"advanced", "", "Beginner", "INTERMEDIATE", "beginner ", "Custom", "expert"})
    EXPECT_TRUE(Hidden(word).empty()) << '"' << word << '"';
}

TEST(MenuSystemTest, CustomWithNoKeysStoredHidesAllFiveGroups) {
  MemorySettingsStore store;
  store.SaveSetting("Menu", "MenuSystem", "custom");
  SettingsVars vars;
  vars.FormsMenu = vars.TablesMenu = "on";  // a first load replaces what memory held
  LoadSettings(vars, store, "/");
  EXPECT_EQ(Hidden(vars),
            (std::set<std::string>{"mnuOtherHTMLSub0", "mnuForm", "mnuTable",
                                   "mnuSpecialEffectsMain", "mnuJavaApplet", "mnuScriptingMain"}));
}

TEST(MenuSystemTest, EachCustomKeyHidesItsGroupOnlyWhenExactlyOff) {
  struct Case {
    std::string SettingsVars::*key;
    std::set<std::string> hides;
  };
  const Case cases[] = {
      {&SettingsVars::StructMenu, {"mnuOtherHTMLSub0"}},
      {&SettingsVars::FormsMenu, {"mnuForm"}},
      {&SettingsVars::TablesMenu, {"mnuTable"}},
      {&SettingsVars::IEMenu, {"mnuSpecialEffectsMain"}},
      {&SettingsVars::JavaMenu, {"mnuJavaApplet", "mnuScriptingMain"}},
      {&SettingsVars::AnchorMenu, {}},
      {&SettingsVars::NetscapeMenu, {}},
  };
  for (const Case& c : cases) {
    SettingsVars vars;
    vars.MenuSystem = "custom";
    vars.StructMenu = vars.AnchorMenu = vars.FormsMenu = vars.TablesMenu = vars.NetscapeMenu =
        vars.IEMenu = vars.JavaMenu = "on";
    vars.*c.key = "off";
    EXPECT_EQ(Hidden(vars), c.hides);
    for (const char* other : {"Off", "OFF", "", "no", "off "}) {
      vars.*c.key = other;
      EXPECT_TRUE(Hidden(vars).empty()) << '"' << other << '"';
    }
  }
}

TEST(MenuSystemTest, ParagraphAndTheAlignSubmenuAreNeverHidden) {
  SettingsVars custom;
  custom.MenuSystem = "custom";  // every variable "off"
  for (const std::set<std::string>& h :
       {Hidden("beginner"), Hidden("intermediate"), Hidden("advanced"), Hidden(custom)}) {
    EXPECT_FALSE(h.count("mnuParagraphSub7"));
    EXPECT_FALSE(h.count("mnuParagraphSub0"));
  }
}

TEST(MenuSystemTest, EveryHiddenEntryIsAManagedOne) {
  const std::vector<MenuItemRef>& managed = ManagedMenuItems();
  SettingsVars custom;
  custom.MenuSystem = "custom";
  for (const std::set<std::string>& h : {Hidden("beginner"), Hidden(custom)})
    for (const std::string& name : h)
      EXPECT_TRUE(std::any_of(managed.begin(), managed.end(), [&](const MenuItemRef& m) {
        return m.ControlName() == name;
      })) << name;
  std::set<std::string> unique;
  for (const MenuItemRef& m : managed) EXPECT_TRUE(unique.insert(m.ControlName()).second);
}

TEST(MenuSystemTest, CustomSystemWritesItsSevenKeysOthersOnlyTheWord) {
  MemorySettingsStore store;
  SettingsVars vars;
  vars.StructMenu = "on";
  vars.AnchorMenu = "";  // written as it is held
  SaveMenuSystem(vars, store, "beginner");
  EXPECT_EQ(vars.MenuSystem, "beginner");
  EXPECT_EQ(store.GetSetting("Menu", "MenuSystem", "?"), "beginner");
  EXPECT_FALSE(store.Has("Menu", "StructMenu"));

  SaveMenuSystem(vars, store, "custom");
  EXPECT_EQ(store.GetSetting("Menu", "MenuSystem", "?"), "custom");
  EXPECT_EQ(store.GetSetting("Menu", "StructMenu", "?"), "on");
  EXPECT_EQ(store.GetSetting("Menu", "AnchorMenu", "?"), "");
  for (const char* key : {"FormsMenu", "TablesMenu", "NetscapeMenu", "IEMenu", "JavaMenu"})
    EXPECT_EQ(store.GetSetting("Menu", key, "?"), "off") << key;

  // What was written loads back as it was held.
  SettingsVars loaded;
  LoadSettings(loaded, store, "/");
  EXPECT_EQ(Hidden(loaded), Hidden(vars));
  EXPECT_EQ(loaded.AnchorMenu, "");
}

TEST(MenuSystemTest, FirstSelectedRadioButtonGivesTheWord) {
  EXPECT_EQ(MenuSystemOfChoice(true, false, false, true, "x"), "beginner");
  EXPECT_EQ(MenuSystemOfChoice(false, true, true, false, "x"), "intermediate");
  EXPECT_EQ(MenuSystemOfChoice(false, false, true, false, "x"), "advanced");
  EXPECT_EQ(MenuSystemOfChoice(false, false, false, true, "x"), "custom");
  EXPECT_EQ(MenuSystemOfChoice(false, false, false, false, "custom"), "custom");
}

TEST(MenuSystemTest, CustomDialogShowsAndSetsTheFiveVariables) {
  SettingsVars vars;
  vars.StructMenu = "on";
  vars.FormsMenu = "On";  // not exactly "on": shown unticked
  vars.JavaMenu = "on";
  vars.AnchorMenu = vars.NetscapeMenu = "on";
  const CustomMenuChoices shown = CurrentCustomMenuChoices(vars);
  EXPECT_TRUE(shown.structureTags);
  EXPECT_FALSE(shown.forms);
  EXPECT_FALSE(shown.tables);
  EXPECT_FALSE(shown.specialEffects);
  EXPECT_TRUE(shown.javaScript);

  CustomMenuChoices picked = shown;
  picked.structureTags = false;
  picked.specialEffects = true;
  ApplyCustomMenuChoices(vars, picked);
  EXPECT_EQ(vars.StructMenu, "off");
  EXPECT_EQ(vars.FormsMenu, "off");
  EXPECT_EQ(vars.TablesMenu, "off");
  EXPECT_EQ(vars.IEMenu, "on");
  EXPECT_EQ(vars.JavaMenu, "on");
  // No box sets these two.
  EXPECT_EQ(vars.AnchorMenu, "on");
  EXPECT_EQ(vars.NetscapeMenu, "on");
}

}  // namespace
}  // namespace tessarine
