#include "settings/Settings.h"

#include <cctype>
#include <cmath>
#include <cstdlib>

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

void LoadSettings(SettingsVars& v, const SettingsStore& s, const std::string& programFolder) {
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

  // A stored text that is no number keeps the default here.
  const std::string mru = get("Startup", "NumberOfMRUFiles", "4");
  v.NumberOfMRUFiles = ColorOr(mru, -1) >= 0 ? ToInt16(Val(mru)) : 4;

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
    auto on = [&](const char* key) { return get("Menu", key, "off") == "on"; };
    v.StructMenu = on("StructMenu");
    v.AnchorMenu = on("AnchorMenu");
    v.FormsMenu = on("FormsMenu");
    v.TablesMenu = on("TablesMenu");
    v.NetscapeMenu = on("NetscapeMenu");
    v.IEMenu = on("IEMenu");
    v.JavaMenu = on("JavaMenu");
  }

  for (int i = 1; i <= 20; ++i) {
    const std::string url = s.GetSetting("Favorite URLs", "URL" + std::to_string(i), "");
    if (!url.empty()) v.FavoriteURLs[static_cast<size_t>(i)] = url;
  }
}

}  // namespace tessarine
