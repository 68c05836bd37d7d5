#pragma once
// Checks of the settings that hold for every store: the headless one and the user's INI file.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"
#include "settings/Settings.h"

namespace tessarine::testing {

// A first start: every variable at its default, whatever the store is.
inline void ExpectFirstStartDefaults(const SettingsStore& store) {
  SettingsVars v;
  v.Browser = v.Browser2 = v.ImageMapper = v.FTPClient = v.PrinterProgram = "stale";
  v.TagCaseUpper = false;
  v.NumberOfMRUFiles = 0;
  v.AutoSaveMinutes = 7;
  v.MenuSystem = "stale";
  ScriptedMessageBoxes messages;
  LoadSettings(v, store, "/home/u", &messages);
  EXPECT_TRUE(messages.shown().empty());
  EXPECT_TRUE(v.TagCaseUpper);
  EXPECT_EQ(v.NumberOfMRUFiles, 4);
  EXPECT_EQ(v.AutoSaveMinutes, 0);
  EXPECT_EQ(v.Colors.tagColor, 3277055);
  EXPECT_EQ(v.Colors.tableColor, 2793472);
  EXPECT_EQ(v.Colors.quoteColor, 12615680);
  EXPECT_EQ(v.Colors.commentColor, 10526880);
  EXPECT_EQ(v.Colors.aspColor, 16711935);
  EXPECT_EQ(v.MenuSystem, "");
  for (const std::string* app :
       {&v.Browser, &v.Browser2, &v.ImageMapper, &v.FTPClient, &v.PrinterProgram})
    EXPECT_EQ(*app, "c:\\");
  EXPECT_EQ(v.WorkingDirectory, "/home/u");
  EXPECT_EQ(v.ImageDirectory, "/home/u");
  EXPECT_EQ(v.DocumentFontName, "MS Sans Serif");
  EXPECT_EQ(v.DocumentFontSize, 10);
  EXPECT_TRUE(v.EnableAutotab && v.ShowFileList && v.BeginnerTableWizard && v.ShowPageProps &&
              v.StartNewDoc && v.HRPropsBox && v.EndingPtag && v.WordWrap);
  EXPECT_FALSE(v.AlignFileListLeft || v.BlankNewDoc || v.OpenMRUDoc || v.RTFCascaded ||
               v.useDIVtag || v.BRcarriageReturn || v.Bold || v.Flags.CommentTagItalic);
  EXPECT_TRUE(v.Flags.ColorTags && v.Flags.TableColorTags && v.Flags.QuoteColorTags &&
              v.Flags.CommentColorTags && v.Flags.ASPColorTags);
}

// Empty stored texts are values of their own, and the two flag forms read them differently.
inline void ExpectEmptyTextsKeepTheirMeaning(SettingsStore& store) {
  for (const char* key : {"TagCase", "OpenMRUDoc", "StartNewDoc", "HRPropsBox", "AutoSave"})
    store.SaveSetting("Miscellaneous", key, "");
  store.SaveSetting("ColoredTags", "CommentTagItalic", "");
  store.SaveSetting("ColoredTags", "QuoteTagColor", "");
  store.SaveSetting("Font", "HTMLTagFont", "");
  SettingsVars v;
  LoadSettings(v, store, "/");
  EXPECT_TRUE(v.TagCaseUpper);
  EXPECT_TRUE(v.OpenMRUDoc);  // although its default is "0"
  EXPECT_TRUE(v.StartNewDoc);
  EXPECT_FALSE(v.HRPropsBox);  // exactly "1" only
  EXPECT_EQ(v.AutoSaveMinutes, 0);
  EXPECT_TRUE(v.Flags.CommentTagItalic);  // although its default is "off"
  EXPECT_EQ(v.Colors.quoteColor, 12615680);
  EXPECT_EQ(v.HTMLTagFont, "MS Sans Serif");
}

// A recent-file count that is no number is reported once, by key and value, and left stored.
inline void ExpectBadRecentFileCountReportedNotRepaired(SettingsStore& store) {
  store.SaveSetting("Startup", "NumberOfMRUFiles", "six");
  ScriptedMessageBoxes messages;
  SettingsVars v;
  v.NumberOfMRUFiles = 9;
  LoadSettings(v, store, "/", &messages);
  LoadSettings(v, store, "/", &messages);  // the start loads twice: one message
  EXPECT_EQ(v.NumberOfMRUFiles, 4);
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_NE(messages.shown()[0].text.find("NumberOfMRUFiles"), std::string::npos);
  EXPECT_NE(messages.shown()[0].text.find("\"six\""), std::string::npos);
  EXPECT_EQ(store.GetSetting("Startup", "NumberOfMRUFiles", ""), "six");

  store.SaveSetting("Startup", "NumberOfMRUFiles", " 6 ");
  LoadSettings(v, store, "/", &messages);
  EXPECT_EQ(v.NumberOfMRUFiles, 6);
  store.SaveSetting("Startup", "NumberOfMRUFiles", "six");
  LoadSettings(v, store, "/", &messages);  // bad again after a good value: said again
  EXPECT_EQ(messages.shown().size(), 2u);
}

inline std::string ReadText(const std::filesystem::path& p) {
  std::ifstream in(p, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

}  // namespace tessarine::testing
