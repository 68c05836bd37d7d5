#include "settings/Settings.h"

#include <cctype>
#include <cmath>
#include <cstdlib>

#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"

namespace tessarine {

double Val(const std::string& text) {
  size_t i = 0;
  while (i < text.size() && (text[i] == ' ' || text[i] == '\t')) ++i;
  std::string number;
  auto take = [&](auto pred) {
    while (i < text.size() && pred(static_cast<unsigned char>(text[i]))) number += text[i++];
  };
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) number += text[i++];
  take([](unsigned char c) { return std::isdigit(c) != 0; });
  if (i < text.size() && text[i] == '.') {
    number += text[i++];
    take([](unsigned char c) { return std::isdigit(c) != 0; });
  }
  if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
    size_t j = i + 1;
    if (j < text.size() && (text[j] == '+' || text[j] == '-')) ++j;
    if (j < text.size() && std::isdigit(static_cast<unsigned char>(text[j]))) {
      number += text.substr(i, j - i);
      i = j;
      take([](unsigned char c) { return std::isdigit(c) != 0; });
    }
  }
  const double v = std::strtod(number.c_str(), nullptr);
  return std::isfinite(v) ? v : 0.0;
}

std::int16_t ToInt16(double value) {
  const double r = std::nearbyint(value);  // default rounding mode: half to even
  if (r > 32767) return 32767;
  if (r < -32768) return -32768;
  return static_cast<std::int16_t>(r);
}

namespace {

// Default-or-empty form: the default state for the default word or "", else the opposite.
bool DefaultOrEmpty(const std::string& stored, const std::string& word, bool state) {
  return (stored == word || stored.empty()) ? state : !state;
}

std::int32_t ColorOr(const std::string& stored, std::int32_t fallback) {
  size_t i = 0;
  while (i < stored.size() && stored[i] == ' ') ++i;
  if (i < stored.size() && (stored[i] == '-' || stored[i] == '+')) ++i;
  if (i >= stored.size() || !std::isdigit(static_cast<unsigned char>(stored[i]))) return fallback;
  const double v = Val(stored);
  if (v < -2147483648.0 || v > 2147483647.0) return fallback;
  return static_cast<std::int32_t>(v);
}

}  // namespace

bool StrictInt16(const std::string& text, std::int16_t& value) {
  const auto b = text.find_first_not_of(" \t");
  if (b == std::string::npos) return false;
  const std::string t = text.substr(b, text.find_last_not_of(" \t") - b + 1);
  double number = 0;
  if (t.size() > 2 && t[0] == '&' && (t[1] == 'H' || t[1] == 'h' || t[1] == 'O' || t[1] == 'o')) {
    const int base = (t[1] == 'H' || t[1] == 'h') ? 16 : 8;
    if (t.size() > 2 + (base == 16 ? 4 : 6)) return false;
    // strtol would take blanks and a sign here; the digits must follow at once.
    if (!std::isalnum(static_cast<unsigned char>(t[2]))) return false;
    char* end = nullptr;
    const long n = std::strtol(t.c_str() + 2, &end, base);
    if (*end != '\0') return false;
    // Four hex digits are a 16-bit pattern: &HFFFF is -1.
    number = n > 32767 && n <= 65535 ? static_cast<double>(n - 65536) : static_cast<double>(n);
  } else {
    size_t i = 0;
    if (t[i] == '+' || t[i] == '-') ++i;
    size_t digits = 0;
    while (i < t.size() && std::isdigit(static_cast<unsigned char>(t[i]))) ++i, ++digits;
    if (i < t.size() && t[i] == '.') {
      ++i;
      while (i < t.size() && std::isdigit(static_cast<unsigned char>(t[i]))) ++i, ++digits;
    }
    if (digits == 0) return false;
    if (i < t.size() && (t[i] == 'e' || t[i] == 'E')) {
      ++i;
      if (i < t.size() && (t[i] == '+' || t[i] == '-')) ++i;
      size_t exponent = 0;
      while (i < t.size() && std::isdigit(static_cast<unsigned char>(t[i]))) ++i, ++exponent;
      if (exponent == 0) return false;
    }
    if (i != t.size()) return false;
    // Out of the range of a double ("1e400") is out of range, not the 0 Val makes of it.
    number = std::strtod(t.c_str(), nullptr);
    if (!std::isfinite(number)) return false;
  }
  const double r = std::nearbyint(number);
  if (r < -32768 || r > 32767) return false;
  value = static_cast<std::int16_t>(r);
  return true;
}

std::array<std::string, 5> ReadSearchKeywords(const SettingsStore& store) {
  std::array<std::string, 5> words;
  for (size_t i = 0; i < words.size(); ++i)
    words[i] = store.GetSetting("Miscellaneous", "SearchKeyword" + std::to_string(i + 1), "");
  return words;
}

void SaveSearchKeywords(SettingsStore& store, const std::vector<std::string>& list) {
  for (size_t i = 0; i < 5; ++i)
    store.SaveSetting("Miscellaneous", "SearchKeyword" + std::to_string(i + 1),
                      i < list.size() ? list[i] : "");
}

void LoadSettings(SettingsVars& v, const SettingsStore& s, const std::string& programFolder,
                  MessageBoxes* messages) {
  auto get = [&](const char* section, const char* key, const char* def) {
    return s.GetSetting(section, key, def);
  };
  v.WorkingDirectory = programFolder;
  v.ImageDirectory = programFolder;

  v.DocumentFontName = get("Font", "FontName", "MS Sans Serif");
  v.DocumentFontSize = ToInt16(Val(get("Font", "FontSize", "10")));
  v.WorkingDirectory = s.GetSetting("Directory", "WorkingDirectory", programFolder);
  v.ImageDirectory = s.GetSetting("Directory", "ImageDirectory", programFolder);

  v.Browser = get("Apps", "Browser", "c:\\");
  v.Browser2 = get("Apps", "Browser2", "c:\\");
  v.ImageMapper = get("Apps", "ImageMapper", "c:\\");
  v.FTPClient = get("Apps", "FTPClient", "c:\\");
  v.PrinterProgram = get("Apps", "PrinterProgram", "c:\\");

  // Unlike the other numbers this one is converted whole: a text that is no number is
  // reported and the default used, and the stored text is left for the user to mend.
  const std::string mru = get("Startup", "NumberOfMRUFiles", "4");
  std::int16_t files = 4;
  if (StrictInt16(mru, files)) {
    v.NumberOfMRUFiles = files;
    v.RejectedNumberOfMRUFiles.clear();
  } else {
    v.NumberOfMRUFiles = 4;
    if (messages && v.RejectedNumberOfMRUFiles != mru) {
      messages->Show("The setting NumberOfMRUFiles (section Startup) holds \"" + mru +
                         "\", which is not a number of recent files. The default of 4 is used.",
                     MsgButtons::OK, MsgIcon::Exclamation, "Tessarine");
      v.RejectedNumberOfMRUFiles = mru;
    }
  }

  const char* misc = "Miscellaneous";
  v.EnableAutotab = DefaultOrEmpty(get(misc, "EnableAutotab", "yes"), "yes", true);
  v.ShowFileList = DefaultOrEmpty(get(misc, "ShowFileList", "yes"), "yes", true);
  v.AlignFileListLeft = DefaultOrEmpty(get(misc, "AlignFileListLeft", "0"), "0", false);
  v.BeginnerTableWizard = DefaultOrEmpty(get(misc, "BeginnerTableWizard", "on"), "on", true);
  v.TagCaseUpper = DefaultOrEmpty(get(misc, "TagCase", "upper"), "upper", true);
  v.BlankNewDoc = DefaultOrEmpty(get(misc, "BlankNewDoc", "0"), "0", false);
  v.ShowPageProps = DefaultOrEmpty(get(misc, "ShowPageProps", "1"), "1", true);
  v.StartNewDoc = DefaultOrEmpty(get(misc, "StartNewDoc", "1"), "1", true);
  // Compared with "1", not with its default "0": "1" and "" both open the recent file.
  v.OpenMRUDoc = DefaultOrEmpty(get(misc, "OpenMRUDoc", "0"), "1", true);
  v.RTFCascaded = get(misc, "RTFCascaded", "0") == "1";
  v.Bold = get("Font", "Bold", "0") != "0";
  v.HRPropsBox = get(misc, "HRPropsBox", "1") == "1";
  v.EndingPtag = get(misc, "EndingPtag", "1") == "1";
  v.useDIVtag = get(misc, "useDIVtag", "0") == "1";
  v.BRcarriageReturn = get(misc, "BRcarriageReturn", "0") == "1";

  const char* ct = "ColoredTags";
  v.Flags.ColorTags = DefaultOrEmpty(get(ct, "ColorTags", "on"), "on", true);
  v.HTMLTagFont = get("Font", "HTMLTagFont", "MS Sans Serif");
  if (v.HTMLTagFont.empty()) v.HTMLTagFont = "MS Sans Serif";
  v.Colors.tagColor = ColorOr(get(ct, "HTMLTagColor", "3277055"), 3277055);
  v.Flags.TableColorTags = DefaultOrEmpty(get(ct, "TableColorTags", "on"), "on", true);
  v.Colors.tableColor = ColorOr(get(ct, "TableTagColor", "2793472"), 2793472);
  v.Flags.QuoteColorTags = DefaultOrEmpty(get(ct, "QuoteColorTags", "on"), "on", true);
  v.Colors.quoteColor = ColorOr(get(ct, "QuoteTagColor", "12615680"), 12615680);
  v.Flags.CommentColorTags = DefaultOrEmpty(get(ct, "CommentColorTags", "on"), "on", true);
  v.Colors.commentColor = ColorOr(get(ct, "CommentTagColor", "10526880"), 10526880);
  // Only "on" or "" give italics, so an empty stored text turns them on.
  const std::string italic = get(ct, "CommentTagItalic", "off");
  v.Flags.CommentTagItalic = italic == "on" || italic.empty();
  v.Flags.ASPColorTags = DefaultOrEmpty(get(ct, "ASPColorTags", "on"), "on", true);
  v.Colors.aspColor = ColorOr(get(ct, "ASPTagColor", "16711935"), 16711935);

  v.WordWrap = DefaultOrEmpty(get(misc, "WordWrap", "on"), "on", true);
  const std::string autoSave = get(misc, "AutoSave", "0");
  v.AutoSaveMinutes = (autoSave == "0" || autoSave.empty()) ? 0 : ToInt16(Val(autoSave));

  v.MenuSystem = get("Menu", "MenuSystem", "");
  if (v.MenuSystem == "custom") {
    auto read = [&](const char* key) { return get("Menu", key, "off"); };
    v.StructMenu = read("StructMenu");
    v.AnchorMenu = read("AnchorMenu");
    v.FormsMenu = read("FormsMenu");
    v.TablesMenu = read("TablesMenu");
    v.NetscapeMenu = read("NetscapeMenu");
    v.IEMenu = read("IEMenu");
    v.JavaMenu = read("JavaMenu");
  }

  for (int i = 1; i <= 20; ++i) {
    const std::string url = s.GetSetting("Favorite URLs", "URL" + std::to_string(i), "");
    if (!url.empty()) v.FavoriteURLs[static_cast<size_t>(i)] = url;
  }
}

}  // namespace tessarine
