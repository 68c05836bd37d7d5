// LoadSettings: defaults, the two flag forms, colours, numbers and the custom menu.

#include <gtest/gtest.h>

#include "platform/SettingsStore.h"
#include "settings/Settings.h"

namespace tessarine {
namespace {

struct LoadSettingsTest : ::testing::Test {
  MemorySettingsStore store;
  SettingsVars vars;
  const SettingsVars& Load() {
    LoadSettings(vars, store, "/opt/tessarine");
    return vars;
  }
  void Set(const char* section, const char* key, const char* value) {
    store.SaveSetting(section, key, value);
  }
};

TEST_F(LoadSettingsTest, DefaultOrEmptyFlagsFlipOnAnyOtherWordExactly) {
  struct Case {
    const char* section;
    const char* key;
    const char* value;
    bool SettingsVars::*flag;
    bool expected;
  };
  const Case cases[] = {
      {"Miscellaneous", "TagCase", "upper", &SettingsVars::TagCaseUpper, true},
      {"Miscellaneous", "TagCase", "", &SettingsVars::TagCaseUpper, true},
      {"Miscellaneous", "TagCase", "Upper", &SettingsVars::TagCaseUpper, false},
      {"Miscellaneous", "TagCase", "lower", &SettingsVars::TagCaseUpper, false},
      {"Miscellaneous", "TagCase", "bogus", &SettingsVars::TagCaseUpper, false},
      {"Miscellaneous", "ShowFileList", "no", &SettingsVars::ShowFileList, false},
      {"Miscellaneous", "ShowFileList", "", &SettingsVars::ShowFileList, true},
      {"Miscellaneous", "AlignFileListLeft", "", &SettingsVars::AlignFileListLeft, false},
      {"Miscellaneous", "AlignFileListLeft", "yes", &SettingsVars::AlignFileListLeft, true},
      {"Miscellaneous", "StartNewDoc", "", &SettingsVars::StartNewDoc, true},
      {"Miscellaneous", "StartNewDoc", "0", &SettingsVars::StartNewDoc, false},
      {"Miscellaneous", "OpenMRUDoc", "1", &SettingsVars::OpenMRUDoc, true},
      {"Miscellaneous", "OpenMRUDoc", "", &SettingsVars::OpenMRUDoc, true},
      {"Miscellaneous", "OpenMRUDoc", "0", &SettingsVars::OpenMRUDoc, false},
      {"Miscellaneous", "OpenMRUDoc", "yes", &SettingsVars::OpenMRUDoc, false},
      {"Miscellaneous", "WordWrap", "On", &SettingsVars::WordWrap, false},
      {"Miscellaneous", "BlankNewDoc", "1", &SettingsVars::BlankNewDoc, true},
      // Exactly-"1" keys.
      {"Miscellaneous", "RTFCascaded", "1", &SettingsVars::RTFCascaded, true},
      {"Miscellaneous", "RTFCascaded", " 1", &SettingsVars::RTFCascaded, false},
      {"Miscellaneous", "HRPropsBox", "", &SettingsVars::HRPropsBox, false},
      {"Miscellaneous", "EndingPtag", "yes", &SettingsVars::EndingPtag, false},
      {"Miscellaneous", "useDIVtag", "1", &SettingsVars::useDIVtag, true},
      {"Miscellaneous", "BRcarriageReturn", "true", &SettingsVars::BRcarriageReturn, false},
      // Bold: only exactly "0" is off.
      {"Font", "Bold", "", &SettingsVars::Bold, true},
      {"Font", "Bold", "00", &SettingsVars::Bold, true},
      {"Font", "Bold", "0", &SettingsVars::Bold, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.key) + "=\"" + c.value + "\"");
    MemorySettingsStore s;
    s.SaveSetting(c.section, c.key, c.value);
    SettingsVars v;
    LoadSettings(v, s, "/");
    EXPECT_EQ(v.*c.flag, c.expected);
  }
}

TEST_F(LoadSettingsTest, ColourFlagsAndTheEmptyItalicWord) {
  Set("ColoredTags", "CommentTagItalic", "");
  EXPECT_TRUE(Load().Flags.CommentTagItalic);
  Set("ColoredTags", "CommentTagItalic", "ON");
  EXPECT_FALSE(Load().Flags.CommentTagItalic);
  Set("ColoredTags", "CommentTagItalic", "on");
  EXPECT_TRUE(Load().Flags.CommentTagItalic);
  Set("ColoredTags", "TableColorTags", "off");
  Set("ColoredTags", "ASPColorTags", "");
  EXPECT_FALSE(Load().Flags.TableColorTags);
  EXPECT_TRUE(vars.Flags.ASPColorTags);
}

TEST_F(LoadSettingsTest, ColoursThatAreNoNumberKeepTheDefault) {
  Set("ColoredTags", "HTMLTagColor", "");
  Set("ColoredTags", "TableTagColor", "green");
  Set("ColoredTags", "QuoteTagColor", "255");
  Set("ColoredTags", "CommentTagColor", " 65280");
  Set("ColoredTags", "ASPTagColor", "&HFF");
  const SettingsVars& v = Load();
  EXPECT_EQ(v.Colors.tagColor, 3277055);
  EXPECT_EQ(v.Colors.tableColor, 2793472);
  EXPECT_EQ(v.Colors.quoteColor, 255);
  EXPECT_EQ(v.Colors.commentColor, 65280);
  EXPECT_EQ(v.Colors.aspColor, 16711935);
}

TEST_F(LoadSettingsTest, NumbersAreParsedTolerantlyAndRounded) {
  struct Case {
    const char* fontSize;
    int expected;
  };
  for (const Case& c :
       {Case{"12", 12}, Case{"12pt", 12}, Case{" 14", 14}, Case{"10.6", 11}, Case{"10.5", 10},
        Case{"11.5", 12}, Case{"big", 0}, Case{"", 0}, Case{"1e1", 10}}) {
    SCOPED_TRACE(c.fontSize);
    Set("Font", "FontSize", c.fontSize);
    EXPECT_EQ(Load().DocumentFontSize, c.expected);
  }
  Set("Miscellaneous", "AutoSave", "");
  EXPECT_EQ(Load().AutoSaveMinutes, 0);
  Set("Miscellaneous", "AutoSave", "5 minutes");
  EXPECT_EQ(Load().AutoSaveMinutes, 5);
  Set("Startup", "NumberOfMRUFiles", "6");
  EXPECT_EQ(Load().NumberOfMRUFiles, 6);
  Set("Startup", "NumberOfMRUFiles", "many");
  EXPECT_EQ(Load().NumberOfMRUFiles, 4);
}

TEST_F(LoadSettingsTest, MenuKeysAreReadOnlyForTheCustomSystem) {
  Set("Menu", "MenuSystem", "custom");
  Set("Menu", "TablesMenu", "on");
  Set("Menu", "FormsMenu", "On");
  Load();
  EXPECT_EQ(vars.TablesMenu, "on");
  EXPECT_EQ(vars.FormsMenu, "On");  // kept as stored
  EXPECT_EQ(vars.JavaMenu, "off");  // absent

  // Another system leaves the variables as they were.
  Set("Menu", "MenuSystem", "Custom");
  Set("Menu", "TablesMenu", "off");
  Set("Menu", "JavaMenu", "on");
  Load();
  EXPECT_EQ(vars.MenuSystem, "Custom");
  EXPECT_EQ(vars.TablesMenu, "on");
  EXPECT_EQ(vars.JavaMenu, "off");
}

TEST_F(LoadSettingsTest, FoldersFontsAndFavouritesComeFromTheStore) {
  Set("Directory", "WorkingDirectory", "/home/u/site");
  Set("Font", "HTMLTagFont", "");
  Set("Font", "FontName", "Courier");
  Set("Favorite URLs", "URL3", "http://a.example/");
  vars.FavoriteURLs[4] = "kept";
  const SettingsVars& v = Load();
  EXPECT_EQ(v.WorkingDirectory, "/home/u/site");
  EXPECT_EQ(v.ImageDirectory, "/opt/tessarine");
  EXPECT_EQ(v.HTMLTagFont, "MS Sans Serif");
  EXPECT_EQ(v.DocumentFontName, "Courier");
  EXPECT_EQ(v.FavoriteURLs[3], "http://a.example/");
  EXPECT_EQ(v.FavoriteURLs[4], "kept");  // an empty key leaves the old text
}

}  // namespace
}  // namespace tessarine
