// Preferences: what OK writes, in which order, what it keeps, and what it refuses.

#include "settings/Preferences.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "conventions/FavoriteUrls.h"
#include "core/Application.h"
#include "core/Styles.h"
#include "platform/HeadlessPlatform.h"

namespace tessarine {
namespace {

// The headless store, with every write noted in order.
class RecordingStore : public MemorySettingsStore {
 public:
  struct Write {
    std::string section, key, value;
  };
  void SaveSetting(const std::string& section, const std::string& key,
                   const std::string& value) override {
    writes.push_back({section, key, value});
    MemorySettingsStore::SaveSetting(section, key, value);
  }
  // The position of the first write of `key`, or -1.
  int IndexOf(const std::string& key) const {
    for (std::size_t i = 0; i < writes.size(); ++i)
      if (writes[i].key == key) return static_cast<int>(i);
    return -1;
  }
  std::vector<Write> writes;
};

struct PreferencesTest : ::testing::Test {
  HeadlessPlatform platform;
  RecordingStore store;
  Application app{
      Platform{platform.frame, platform.messages, store, platform.fileDialogs, platform.colorDialog,
               platform.shell, platform.clipboard, platform.images, platform.clock,
               platform.checkedQuestions, &platform.defaultBrowser},
      "/opt/tessarine"};

  Preferences Load() {
    app.LoadSettings();
    return LoadPreferences(app.settings, store, app.defaultDocumentFolder);
  }
  CheckResult Save(const Preferences& p) {
    store.writes.clear();
    return SavePreferences(app, p);
  }
  std::string Get(const char* section, const char* key) {
    return store.GetSetting(section, key, "<none>");
  }
  // A store as a user who changed many things leaves it.
  void FillStore() {
    const char* values[][3] = {
        {"Font", "FontName", "Courier New"},
        {"Font", "FontSize", "12"},
        {"Font", "Bold", "1"},
        {"Font", "HTMLTagFont", "Arial"},
        {"Directory", "WorkingDirectory", "/home/u/site"},
        {"Directory", "ImageDirectory", "/home/u/site/img"},
        {"Apps", "Browser", "/usr/bin/firefox"},
        {"Apps", "Browser2", "c:\\"},
        {"Apps", "ImageMapper", "/usr/bin/gimp"},
        {"Apps", "FTPClient", "c:\\"},
        {"Apps", "PrinterProgram", "c:\\"},
        {"Apps", "Override", "1"},
        {"Startup", "NumberOfMRUFiles", "6"},
        {"Miscellaneous", "EnableAutotab", "no"},
        {"Miscellaneous", "ShowFileList", "yes"},
        {"Miscellaneous", "AlignFileListLeft", "1"},
        {"Miscellaneous", "BeginnerTableWizard", "off"},
        {"Miscellaneous", "TagCase", "lower"},
        {"Miscellaneous", "BlankNewDoc", "1"},
        {"Miscellaneous", "ShowPageProps", "0"},
        {"Miscellaneous", "StartNewDoc", "1"},
        {"Miscellaneous", "OpenMRUDoc", "0"},
        {"Miscellaneous", "RTFCascaded", "1"},
        {"Miscellaneous", "HRPropsBox", "0"},
        {"Miscellaneous", "EndingPtag", "1"},
        {"Miscellaneous", "useDIVtag", "1"},
        {"Miscellaneous", "BRcarriageReturn", "0"},
        {"Miscellaneous", "WordWrap", "off"},
        {"Miscellaneous", "TipOfTheDay", "off"},
        {"Miscellaneous", "AutoSave", "15"},
        {"ColoredTags", "ColorTags", "on"},
        {"ColoredTags", "HTMLTagColor", "255"},
        {"ColoredTags", "TableColorTags", "off"},
        {"ColoredTags", "TableTagColor", "65280"},
        {"ColoredTags", "QuoteColorTags", "on"},
        {"ColoredTags", "QuoteTagColor", "16711680"},
        {"ColoredTags", "CommentColorTags", "on"},
        {"ColoredTags", "CommentTagColor", "8421504"},
        {"ColoredTags", "ASPColorTags", "on"},
        {"ColoredTags", "ASPTagColor", "128"},
        {"Menu", "MenuSystem", "intermediate"},
        {"Options", "SpellLanguage", "de_DE"},
        {"Favorite URLs", "URL16", "http://one.example/"},
        {"Favorite URLs", "URL17", "http://two.example/"},
    };
    for (const auto& v : values) store.SaveSetting(v[0], v[1], v[2]);
  }
};

TEST_F(PreferencesTest, OkWithNothingChangedWritesTheSameValues) {
  FillStore();
  MemorySettingsStore before = store;
  ASSERT_FALSE(Save(Load()));
  EXPECT_TRUE(platform.messages.shown().empty());
  ASSERT_FALSE(store.writes.empty());
  for (const auto& w : store.writes) {
    SCOPED_TRACE(w.section + "/" + w.key);
    if (w.section == "Favorite URLs" && !before.Has(w.section, w.key))
      EXPECT_EQ(w.value, "");  // the three empty favourites
    else
      EXPECT_EQ(w.value, before.GetSetting(w.section, w.key, "<none>"));
  }
  // The unticked table colour is not written at all.
  EXPECT_EQ(store.IndexOf("TableTagColor"), -1);
  EXPECT_NE(store.IndexOf("HTMLTagColor"), -1);
}

TEST_F(PreferencesTest, WritesComeInTheirOrderAndTheSettingsAreLoadedAgain) {
  Preferences p = Load();
  p.wordWrap = false;
  p.colors.tagColor = 42;
  p.autoSave = true;
  p.autoSaveMinutes = "5";
  ASSERT_FALSE(Save(p));
  const auto& w = store.writes;
  ASSERT_GE(w.size(), 6u);
  for (int i = 0; i < 5; ++i)
    EXPECT_EQ(w[static_cast<std::size_t>(i)].key, "URL" + std::to_string(16 + i));
  EXPECT_EQ(w[5].key, "MenuSystem");
  EXPECT_EQ(w[6].key, "FontName");
  // Sections in their order, the words before the colours, AutoSave last.
  EXPECT_LT(store.IndexOf("FontName"), store.IndexOf("WorkingDirectory"));
  EXPECT_LT(store.IndexOf("WorkingDirectory"), store.IndexOf("Browser"));
  EXPECT_LT(store.IndexOf("Override"), store.IndexOf("NumberOfMRUFiles"));
  EXPECT_LT(store.IndexOf("NumberOfMRUFiles"), store.IndexOf("EnableAutotab"));
  EXPECT_LT(store.IndexOf("TipOfTheDay"), store.IndexOf("ColorTags"));
  EXPECT_LT(store.IndexOf("ASPColorTags"), store.IndexOf("HTMLTagColor"));
  EXPECT_EQ(w.back().key, "AutoSave");
  // The running settings follow.
  EXPECT_FALSE(app.settings.WordWrap);
  EXPECT_EQ(app.settings.Colors.tagColor, 42);
  EXPECT_EQ(app.settings.AutoSaveMinutes, 5);
}

TEST_F(PreferencesTest, EmptiedTextFieldsKeepTheirOldValues) {
  FillStore();
  Preferences p = Load();
  p.workingDirectory = "";
  p.browser2 = "";
  p.fontSize = "  ";
  p.fontName = "";
  p.numberOfMRUFiles = "";
  ASSERT_FALSE(Save(p));
  EXPECT_EQ(Get("Directory", "WorkingDirectory"), "/home/u/site");
  EXPECT_EQ(app.settings.WorkingDirectory, "/home/u/site");
  EXPECT_EQ(Get("Apps", "Browser2"), "c:\\");
  EXPECT_EQ(Get("Font", "FontSize"), "12");
  EXPECT_EQ(Get("Font", "FontName"), "Courier New");
  EXPECT_EQ(Get("Startup", "NumberOfMRUFiles"), "6");
  for (const char* key : {"WorkingDirectory", "Browser2", "FontSize", "FontName"})
    EXPECT_EQ(store.IndexOf(key), -1) << key;
}

TEST_F(PreferencesTest, OverrideWithoutABrowserStaysAndWritesNothing) {
  Preferences p = Load();
  p.overrideBrowser = true;
  p.browser = "";
  p.fontSize = "500";  // the override is asked about first
  const CheckResult failed = Save(p);
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->field, "browser");
  ASSERT_EQ(platform.messages.shown().size(), 1u);
  EXPECT_EQ(platform.messages.shown()[0].text, kOverrideNeedsBrowser);
  EXPECT_TRUE(store.writes.empty());

  // With a browser it goes through.
  p.browser = "/usr/bin/firefox";
  p.fontSize = "11";
  ASSERT_FALSE(Save(p));
  EXPECT_EQ(Get("Apps", "Override"), "1");
  EXPECT_EQ(Get("Apps", "Browser"), "/usr/bin/firefox");
}

TEST_F(PreferencesTest, NumbersOutOfRangeOrNotNumbersAreRefusedByName) {
  struct Case {
    std::string Preferences::*field;
    const char* value;
    const char* name;
    const char* words;
  };
  const Case cases[] = {
      {&Preferences::fontSize, "0", "fontSize", "font size"},
      {&Preferences::fontSize, "97", "fontSize", "font size"},
      {&Preferences::fontSize, "12pt", "fontSize", "font size"},
      {&Preferences::fontSize, "-3", "fontSize", "font size"},
      {&Preferences::autoSaveMinutes, "0", "autoSaveMinutes", "autosaves"},
      {&Preferences::autoSaveMinutes, "99999", "autoSaveMinutes", "autosaves"},
      {&Preferences::numberOfMRUFiles, "11", "numberOfMRUFiles", "Most Recently Used"},
      {&Preferences::numberOfMRUFiles, "four", "numberOfMRUFiles", "Most Recently Used"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.name) + "=" + c.value);
    Preferences p = Load();
    p.autoSave = true;
    p.autoSaveMinutes = "10";
    p.*(c.field) = c.value;
    platform.messages.Clear();
    const CheckResult failed = Save(p);
    ASSERT_TRUE(failed);
    EXPECT_EQ(failed->field, c.name);
    ASSERT_EQ(platform.messages.shown().size(), 1u);
    EXPECT_NE(platform.messages.shown()[0].text.find(c.words), std::string::npos);
    EXPECT_TRUE(store.writes.empty());
  }
  // Minutes that do not count while autosave is off.
  Preferences p = Load();
  p.autoSave = false;
  p.autoSaveMinutes = "junk";
  EXPECT_FALSE(Save(p));
  EXPECT_EQ(Get("Miscellaneous", "AutoSave"), "0");
}

TEST_F(PreferencesTest, FewerRecentFilesLeaveTheStoredListAlone) {
  store.SaveSetting("Startup", "NumberOfMRUFiles", "6");
  for (int i = 1; i <= 6; ++i)
    store.SaveSetting("Startup", "RecentFile" + std::to_string(i), "/f" + std::to_string(i));
  Preferences p = Load();
  EXPECT_EQ(p.numberOfMRUFiles, "6");
  p.numberOfMRUFiles = "2";
  ASSERT_FALSE(Save(p));
  EXPECT_EQ(Get("Startup", "NumberOfMRUFiles"), "2");
  EXPECT_EQ(app.settings.NumberOfMRUFiles, 2);
  for (int i = 1; i <= 6; ++i)
    EXPECT_EQ(store.GetSetting("Startup", "RecentFile" + std::to_string(i), ""),
              "/f" + std::to_string(i));
  for (const auto& w : store.writes) EXPECT_EQ(w.key.rfind("RecentFile", 0), std::string::npos);
}

TEST_F(PreferencesTest, AColourIsWrittenOnlyWhileItsBoxIsTicked) {
  FillStore();
  Preferences p = Load();
  // Unticked: "off", and the colour chosen meanwhile is not kept.
  p.colorFlags.QuoteColorTags = false;
  p.colors.quoteColor = 1;
  // Ticked again: the colour chosen is written.
  p.colorFlags.TableColorTags = true;
  p.colors.tableColor = 2;
  ASSERT_FALSE(Save(p));
  EXPECT_EQ(Get("ColoredTags", "QuoteColorTags"), "off");
  EXPECT_EQ(Get("ColoredTags", "QuoteTagColor"), "16711680");
  EXPECT_EQ(app.settings.Colors.quoteColor, 16711680);
  EXPECT_EQ(Get("ColoredTags", "TableColorTags"), "on");
  EXPECT_EQ(Get("ColoredTags", "TableTagColor"), "2");
  EXPECT_EQ(app.settings.Colors.tableColor, 2);
  // The italic key is nobody's to write.
  EXPECT_EQ(store.IndexOf("CommentTagItalic"), -1);
}

TEST_F(PreferencesTest, AutoSaveTakesTheMinutesTenOrZero) {
  struct Case {
    bool on;
    const char* minutes;
    const char* stored;
    int loaded;
  };
  for (const Case& c : {Case{true, "", "10", 10}, Case{true, "  ", "10", 10},
                        Case{true, " 25 ", "25", 25}, Case{false, "25", "0", 0}}) {
    SCOPED_TRACE(c.minutes);
    Preferences p = Load();
    p.autoSave = c.on;
    p.autoSaveMinutes = c.minutes;
    ASSERT_FALSE(Save(p));
    EXPECT_EQ(Get("Miscellaneous", "AutoSave"), c.stored);
    EXPECT_EQ(app.settings.AutoSaveMinutes, c.loaded);
  }
  // The box: ticked starts at ten, unticked clears.
  Preferences p;
  p.SetAutoSave(true);
  EXPECT_EQ(p.autoSaveMinutes, "10");
  p.SetAutoSave(false);
  EXPECT_FALSE(p.autoSave);
  EXPECT_EQ(p.autoSaveMinutes, "");
}

TEST_F(PreferencesTest, FieldsComeFromTheSettings) {
  FillStore();
  store.SaveSetting("Miscellaneous", "TipOfTheDay", "ON");
  Preferences p = Load();
  EXPECT_TRUE(p.tipOfTheDay);  // any case
  EXPECT_EQ(p.fontName, "Courier New");
  EXPECT_EQ(p.fontSize, "12");
  EXPECT_TRUE(p.bold);
  EXPECT_FALSE(p.upperCaseTags);
  EXPECT_TRUE(p.overrideBrowser);
  EXPECT_TRUE(p.autoSave);
  EXPECT_EQ(p.autoSaveMinutes, "15");
  EXPECT_FALSE(p.colorFlags.TableColorTags);
  EXPECT_EQ(p.colors.aspColor, 128);
  EXPECT_EQ(p.menuSystem, "intermediate");
  EXPECT_EQ(p.spellLanguage, "de_DE");
  EXPECT_EQ(p.favoriteURLs,
            (std::vector<std::string>{"http://one.example/", "http://two.example/"}));

  // An open project moves the folder variable, not the key: the field shows the key.
  app.settings.WorkingDirectory = "/home/u/project";
  p = LoadPreferences(app.settings, store, app.defaultDocumentFolder);
  EXPECT_EQ(p.workingDirectory, "/home/u/site");

  // A size that makes no sense shows as nothing, so OK keeps it rather than refusing.
  store.SaveSetting("Font", "FontSize", "big");
  p = Load();
  EXPECT_EQ(p.fontSize, "");
  EXPECT_FALSE(Save(p));
  EXPECT_EQ(Get("Font", "FontSize"), "big");
  store.SaveSetting("Startup", "NumberOfMRUFiles", "25");
  p = Load();
  EXPECT_EQ(p.numberOfMRUFiles, "");
  EXPECT_FALSE(Save(p));
  EXPECT_EQ(Get("Startup", "NumberOfMRUFiles"), "25");

  // A first start: the default spell language, no autosave, no favourites.
  RecordingStore empty;
  SettingsVars fresh;
  LoadSettings(fresh, empty, "/home/u");
  p = LoadPreferences(fresh, empty, "/home/u");
  EXPECT_EQ(p.spellLanguage, "en_US");
  EXPECT_FALSE(p.autoSave);
  EXPECT_EQ(p.autoSaveMinutes, "");
  EXPECT_EQ(p.workingDirectory, "/home/u");
  EXPECT_TRUE(p.favoriteURLs.empty());
}

TEST_F(PreferencesTest, FavouritesAreFiveAndAllFiveKeysAreWritten) {
  Preferences p = Load();
  for (int i = 1; i <= 5; ++i)
    EXPECT_FALSE(p.ReplaceOrInsertUrl(-1, "http://" + std::to_string(i) + ".example/"));
  const CheckResult full = p.ReplaceOrInsertUrl(-1, "http://6.example/");
  ASSERT_TRUE(full);
  EXPECT_EQ(full->message, "Only 5 Favorite URLs are allowed.");
  EXPECT_EQ(p.favoriteURLs.size(), 5u);
  // A selected line is replaced, also when the list is full; emptied it stays a line.
  EXPECT_FALSE(p.ReplaceOrInsertUrl(1, "http://two.example/"));
  EXPECT_FALSE(p.ReplaceOrInsertUrl(3, ""));
  ASSERT_FALSE(Save(p));
  EXPECT_EQ(Get("Favorite URLs", "URL17"), "http://two.example/");
  EXPECT_EQ(Get("Favorite URLs", "URL19"), "");
  EXPECT_EQ(app.settings.FavoriteURLs[19], "");

  // Fewer lines empty the keys behind them.
  p.favoriteURLs.resize(2);
  ASSERT_FALSE(Save(p));
  for (int i = 18; i <= 20; ++i) {
    EXPECT_EQ(Get("Favorite URLs", ("URL" + std::to_string(i)).c_str()), "");
    EXPECT_EQ(app.settings.FavoriteURLs[static_cast<std::size_t>(i)], "");
  }
  // The link dialogs' list rolls below them.
  AddFavoriteUrl(store, "http://rolled.example/");
  EXPECT_EQ(Get("Favorite URLs", "URL16"), "http://1.example/");
}

TEST_F(PreferencesTest, CustomButtonsAreThreeKeysEach) {
  WriteCustomButton(store, 7, {"Note", "<SPAN Class=\"note\">", "</SPAN>"});
  EXPECT_EQ(Get("CustomButtons", "ButtonName7"), "Note");
  EXPECT_EQ(Get("CustomButtons", "ButtonStartTag7"), "<SPAN Class=\"note\">");
  const CustomButton b = ReadCustomButton(store, 7);
  EXPECT_EQ(b.endTag, "</SPAN>");
  EXPECT_EQ(ReadCustomButton(store, 8).name, "");
  // Removing writes the three keys empty.
  WriteCustomButton(store, 7, {});
  EXPECT_EQ(Get("CustomButtons", "ButtonStartTag7"), "");
}

TEST_F(PreferencesTest, ThePreviewIsColouredByTheDocumentsPass) {
  Preferences p = Load();
  const std::string& text = PreviewText();
  auto kindAt = [&](const std::vector<Style>& styles, const char* part) {
    return KindOf(styles[text.find(part)]);
  };
  std::vector<Style> s = PreviewStyles(p);
  ASSERT_EQ(s.size(), text.size());
  EXPECT_EQ(kindAt(s, "<html>"), StyleKind::Tag);
  EXPECT_EQ(kindAt(s, "<table>"), StyleKind::Table);
  EXPECT_EQ(kindAt(s, "<!--"), StyleKind::Comment);
  EXPECT_EQ(kindAt(s, "quoted text"), StyleKind::Quote);
  EXPECT_EQ(kindAt(s, "<%asp"), StyleKind::Server);
  EXPECT_FALSE(IsBold(s[0]));

  p.colorFlags.TableColorTags = false;
  p.colorFlags.QuoteColorTags = false;
  p.bold = true;
  s = PreviewStyles(p);
  EXPECT_EQ(kindAt(s, "<table>"), StyleKind::Tag);
  EXPECT_EQ(kindAt(s, "quoted text"), StyleKind::Tag);
  EXPECT_TRUE(IsBold(s[0]));

  p.colorFlags.ColorTags = false;
  s = PreviewStyles(p);
  EXPECT_TRUE(
      std::all_of(s.begin(), s.end(), [](Style x) { return KindOf(x) == StyleKind::Plain; }));

  // The style table takes the dialog's fonts and colours, a bad size keeps the running one.
  p.fontName = "Courier";
  p.fontSize = "abc";
  p.colors.tableColor = 7;
  const SettingsVars v = PreviewSettings(p, app.settings);
  EXPECT_EQ(v.DocumentFontName, "Courier");
  EXPECT_EQ(v.DocumentFontSize, app.settings.DocumentFontSize);
  EXPECT_EQ(BuildStyleTable(v)[static_cast<std::size_t>(MakeStyle(StyleKind::Table))].color, 7);
}

TEST(WholeNumbers, OnlyDigitsInRange) {
  int v = 0;
  EXPECT_TRUE(ParseWholeNumber(" 12 ", 1, 96, v));
  EXPECT_EQ(v, 12);
  for (const char* bad : {"", " ", "0", "97", "1.5", "+3", "-3", "3a", "&H10", "99999999999"})
    EXPECT_FALSE(ParseWholeNumber(bad, 1, 96, v)) << bad;
}

}  // namespace
}  // namespace tessarine
