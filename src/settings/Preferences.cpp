#include "settings/Preferences.h"

#include <algorithm>
#include <cctype>

#include "core/Application.h"
#include "core/Colorize.h"
#include "core/Styles.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"
#include "settings/MenuSystem.h"

namespace tessarine {

namespace {

std::string Trim(const std::string& s) {
  const auto b = s.find_first_not_of(" \t");
  if (b == std::string::npos) return "";
  return s.substr(b, s.find_last_not_of(" \t") - b + 1);
}

bool EqualsIgnoringCase(const std::string& a, const char* b) {
  const std::string w = b;
  return a.size() == w.size() && std::equal(a.begin(), a.end(), w.begin(), [](char x, char y) {
           return std::tolower(static_cast<unsigned char>(x)) ==
                  std::tolower(static_cast<unsigned char>(y));
         });
}

const char* Word(bool on, const char* yes, const char* no) {
  return on ? yes : no;
}

// The numeric fields: each may be left empty (the old value stays), else a whole number
// in its range.
CheckResult CheckNumber(const std::string& text, int low, int high, const std::string& what,
                        const char* field) {
  int value = 0;
  if (Trim(text).empty() || ParseWholeNumber(text, low, high, value)) return std::nullopt;
  return WizardCheck{what + " must be a whole number from " + std::to_string(low) + " to " +
                         std::to_string(high) + ".",
                     field};
}

}  // namespace

bool ParseWholeNumber(const std::string& text, int low, int high, int& value) {
  const std::string t = Trim(text);
  if (t.empty() || t.size() > 9) return false;
  if (!std::all_of(t.begin(), t.end(), [](char c) { return c >= '0' && c <= '9'; })) return false;
  const int n = std::stoi(t);
  if (n < low || n > high) return false;
  value = n;
  return true;
}

Preferences LoadPreferences(const SettingsVars& v, const SettingsStore& s,
                            const std::string& defaultFolder) {
  Preferences p;
  // The keys rather than the variables: an open project points the variables elsewhere,
  // and OK must not make that folder the default.
  p.workingDirectory = s.GetSetting("Directory", "WorkingDirectory", defaultFolder);
  p.imageDirectory = s.GetSetting("Directory", "ImageDirectory", defaultFolder);
  p.showPageProps = v.ShowPageProps;
  p.blankNewDoc = v.BlankNewDoc;
  p.cascadeDocuments = v.RTFCascaded;
  p.tipOfTheDay = EqualsIgnoringCase(s.GetSetting("Miscellaneous", "TipOfTheDay", "on"), "on");
  p.startNewDoc = v.StartNewDoc;
  p.openMRUDoc = v.OpenMRUDoc;

  p.fontName = v.DocumentFontName;
  // A stored number out of its field's range shows as an empty field, which keeps it.
  if (v.DocumentFontSize >= kFontSizeMin && v.DocumentFontSize <= kFontSizeMax)
    p.fontSize = std::to_string(v.DocumentFontSize);
  p.bold = v.Bold;
  p.htmlTagFont = v.HTMLTagFont;
  p.colorFlags = v.Flags;
  p.colors = v.Colors;

  p.upperCaseTags = v.TagCaseUpper;
  p.useDivTag = v.useDIVtag;
  p.endingPTag = v.EndingPtag;
  p.brCarriageReturn = v.BRcarriageReturn;

  p.menuSystem = v.MenuSystem;

  p.browser = v.Browser;
  p.browser2 = v.Browser2;
  p.overrideBrowser = s.GetSetting("Apps", "Override", "0") == "1";
  p.printerProgram = v.PrinterProgram;
  p.imageMapper = v.ImageMapper;
  p.ftpClient = v.FTPClient;

  p.enableAutotab = v.EnableAutotab;
  p.autoSave = v.AutoSaveMinutes > 0;
  if (p.autoSave) p.autoSaveMinutes = std::to_string(v.AutoSaveMinutes);
  p.hrPropsBox = v.HRPropsBox;
  p.showFileList = v.ShowFileList;
  p.wordWrap = v.WordWrap;
  p.beginnerTableWizard = v.BeginnerTableWizard;
  p.alignFileListLeft = v.AlignFileListLeft;
  if (v.NumberOfMRUFiles >= 1 && v.NumberOfMRUFiles <= kRecentFilesMax)
    p.numberOfMRUFiles = std::to_string(v.NumberOfMRUFiles);
  p.spellLanguage = s.GetSetting("Options", "SpellLanguage", kDefaultSpellLanguage);

  for (int i = 16; i <= 20; ++i) {
    const std::string& url = v.FavoriteURLs[static_cast<std::size_t>(i)];
    if (!url.empty()) p.favoriteURLs.push_back(url);
  }
  return p;
}

CheckResult Preferences::Validate() const {
  if (overrideBrowser && browser.empty()) return WizardCheck{kOverrideNeedsBrowser, "browser"};
  if (auto failed =
          CheckNumber(fontSize, kFontSizeMin, kFontSizeMax, "The screen font size", "fontSize"))
    return failed;
  if (autoSave)
    if (auto failed = CheckNumber(autoSaveMinutes, 1, kAutoSaveMinutesMax,
                                  "The number of minutes between autosaves", "autoSaveMinutes"))
      return failed;
  return CheckNumber(numberOfMRUFiles, 1, kRecentFilesMax,
                     "The number of files on the Most Recently Used file list", "numberOfMRUFiles");
}

CheckResult Preferences::ReplaceOrInsertUrl(int selected, const std::string& url) {
  if (selected >= 0 && selected < static_cast<int>(favoriteURLs.size())) {
    favoriteURLs[static_cast<std::size_t>(selected)] = url;
    return std::nullopt;
  }
  if (static_cast<int>(favoriteURLs.size()) >= kFavoriteCount)
    return WizardCheck{kOnlyFiveFavorites, "favoriteUrlText"};
  favoriteURLs.push_back(url);
  return std::nullopt;
}

void Preferences::SetAutoSave(bool on) {
  autoSave = on;
  autoSaveMinutes = on ? "10" : "";
}

CheckResult SavePreferences(Application& app, const Preferences& p) {
  if (CheckResult failed = p.Validate()) {
    app.messages.Show(failed->message, MsgButtons::OK, MsgIcon::Exclamation, app.title);
    return failed;
  }
  SettingsStore& s = app.store;

  // The favourites, empty ones too: an emptied line must empty its key.
  for (int i = 0; i < kFavoriteCount; ++i) {
    const std::string url = i < static_cast<int>(p.favoriteURLs.size())
                                ? p.favoriteURLs[static_cast<std::size_t>(i)]
                                : "";
    app.settings.FavoriteURLs[static_cast<std::size_t>(16 + i)] = url;
    s.SaveSetting("Favorite URLs", "URL" + std::to_string(16 + i), url);
  }

  SaveMenuSystem(app.settings, s, p.menuSystem);

  // A text field that was emptied keeps the value it had.
  auto text = [&s](const char* section, const char* key, const std::string& value) {
    const std::string t = Trim(value);
    if (!t.empty()) s.SaveSetting(section, key, value);
  };
  auto number = [&s](const char* section, const char* key, const std::string& value) {
    const std::string t = Trim(value);
    if (!t.empty()) s.SaveSetting(section, key, t);
  };
  auto flag = [&s](const char* section, const char* key, const char* word) {
    s.SaveSetting(section, key, word);
  };

  text("Font", "FontName", p.fontName);
  number("Font", "FontSize", p.fontSize);
  flag("Font", "Bold", p.bold ? "1" : "0");
  text("Font", "HTMLTagFont", p.htmlTagFont);

  text("Directory", "WorkingDirectory", p.workingDirectory);
  text("Directory", "ImageDirectory", p.imageDirectory);

  text("Apps", "Browser", p.browser);
  text("Apps", "Browser2", p.browser2);
  text("Apps", "ImageMapper", p.imageMapper);
  text("Apps", "FTPClient", p.ftpClient);
  text("Apps", "PrinterProgram", p.printerProgram);
  flag("Apps", "Override", Word(p.overrideBrowser, "1", "0"));

  number("Startup", "NumberOfMRUFiles", p.numberOfMRUFiles);

  const char* misc = "Miscellaneous";
  flag(misc, "EnableAutotab", Word(p.enableAutotab, "yes", "no"));
  flag(misc, "ShowFileList", Word(p.showFileList, "yes", "no"));
  flag(misc, "AlignFileListLeft", Word(p.alignFileListLeft, "1", "0"));
  flag(misc, "BeginnerTableWizard", Word(p.beginnerTableWizard, "on", "off"));
  flag(misc, "TagCase", Word(p.upperCaseTags, "upper", "lower"));
  flag(misc, "BlankNewDoc", Word(p.blankNewDoc, "1", "0"));
  flag(misc, "ShowPageProps", Word(p.showPageProps, "1", "0"));
  flag(misc, "StartNewDoc", Word(p.startNewDoc, "1", "0"));
  flag(misc, "OpenMRUDoc", Word(p.openMRUDoc, "1", "0"));
  flag(misc, "RTFCascaded", Word(p.cascadeDocuments, "1", "0"));
  flag(misc, "HRPropsBox", p.hrPropsBox ? "1" : "0");
  flag(misc, "EndingPtag", Word(p.endingPTag, "1", "0"));
  flag(misc, "useDIVtag", Word(p.useDivTag, "1", "0"));
  flag(misc, "BRcarriageReturn", Word(p.brCarriageReturn, "1", "0"));
  flag(misc, "WordWrap", Word(p.wordWrap, "on", "off"));
  flag(misc, "TipOfTheDay", p.tipOfTheDay ? "on" : "off");
  const char* ct = "ColoredTags";
  const ColorFlags& f = p.colorFlags;
  flag(ct, "ColorTags", Word(f.ColorTags, "on", "off"));
  flag(ct, "TableColorTags", Word(f.TableColorTags, "on", "off"));
  flag(ct, "QuoteColorTags", Word(f.QuoteColorTags, "on", "off"));
  flag(ct, "CommentColorTags", Word(f.CommentColorTags, "on", "off"));
  flag(ct, "ASPColorTags", Word(f.ASPColorTags, "on", "off"));
  text("Options", "SpellLanguage", p.spellLanguage);

  // A colour is written only while its kind is coloured: unticked keeps the old colour.
  auto color = [&s, ct](bool on, const char* key, std::int32_t value) {
    if (on) s.SaveSetting(ct, key, std::to_string(value));
  };
  color(f.ColorTags, "HTMLTagColor", p.colors.tagColor);
  color(f.TableColorTags, "TableTagColor", p.colors.tableColor);
  color(f.QuoteColorTags, "QuoteTagColor", p.colors.quoteColor);
  color(f.CommentColorTags, "CommentTagColor", p.colors.commentColor);
  color(f.ASPColorTags, "ASPTagColor", p.colors.aspColor);

  const std::string minutes = Trim(p.autoSaveMinutes);
  flag(misc, "AutoSave", p.autoSave ? (minutes.empty() ? "10" : minutes.c_str()) : "0");

  app.LoadSettings();
  return std::nullopt;
}

CustomButton ReadCustomButton(const SettingsStore& store, int number) {
  const std::string n = std::to_string(number);
  return {store.GetSetting("CustomButtons", "ButtonName" + n, ""),
          store.GetSetting("CustomButtons", "ButtonStartTag" + n, ""),
          store.GetSetting("CustomButtons", "ButtonEndTag" + n, "")};
}

void WriteCustomButton(SettingsStore& store, int number, const CustomButton& button) {
  const std::string n = std::to_string(number);
  store.SaveSetting("CustomButtons", "ButtonName" + n, button.name);
  store.SaveSetting("CustomButtons", "ButtonStartTag" + n, button.startTag);
  store.SaveSetting("CustomButtons", "ButtonEndTag" + n, button.endTag);
}

const std::string& PreviewText() {
  static const std::string text =
      "<html>\r\n<table></table>\r\n<!--comment-->\r\n<tag=\"quoted text\">\r\n<%asp tags%>\r\n"
      "</html>";
  return text;
}

std::vector<Style> PreviewStyles(const Preferences& p) {
  const std::string& text = PreviewText();
  std::vector<Style> styles(text.size(), MakeStyle(StyleKind::Plain, p.bold));
  if (p.colorFlags.ColorTags) ColorizeTags(text, {p.colorFlags, p.bold}, styles.data());
  return styles;
}

SettingsVars PreviewSettings(const Preferences& p, const SettingsVars& running) {
  SettingsVars v = running;
  if (!Trim(p.fontName).empty()) v.DocumentFontName = p.fontName;
  if (!Trim(p.htmlTagFont).empty()) v.HTMLTagFont = p.htmlTagFont;
  int size = 0;
  if (ParseWholeNumber(p.fontSize, kFontSizeMin, kFontSizeMax, size))
    v.DocumentFontSize = static_cast<std::int16_t>(size);
  v.Bold = p.bold;
  v.Flags = p.colorFlags;
  v.Colors = p.colors;
  return v;
}

}  // namespace tessarine
