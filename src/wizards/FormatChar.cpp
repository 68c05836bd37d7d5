#include "wizards/FormatChar.h"

#include "core/Application.h"
#include "core/TextServices.h"
#include "platform/SettingsStore.h"

namespace tessarine {

const char* const kFormatCharSizes[8] = {"Default", "1 - small", "2", "3",
                                         "4",       "5",         "6", "7 - large"};
const char* const kFormatCharPositions[3] = {"Normal", "Subscript", "Superscript"};

std::vector<std::string> FormatCharFonts(const std::string& recentFontName) {
  std::vector<std::string> fonts;
  if (!recentFontName.empty()) fonts.push_back(recentFontName);
  for (const char* f : {"Terminal", "MS Serif", "MS Sans Serif", "Courier", "Symbol", "Modern",
                        "Arial", "Courier New", "Times New Roman", "Wingdings", "CG Times"})
    fonts.emplace_back(f);
  return fonts;
}

int FormatCharPointSize(const std::string& sizeRow) {
  static const int kPoints[8] = {0, 7, 9, 11, 14, 17, 22, 34};
  if (sizeRow.empty() || sizeRow[0] < '1' || sizeRow[0] > '7') return 0;
  return kPoints[sizeRow[0] - '0'];
}

FormatChar::Tags FormatChar::Build() const {
  const char q = '"';
  std::string face, color, size;
  if (!Combo3.empty()) face = std::string(" FACE=") + q + Combo3 + q;
  if (!Text1.empty()) color = std::string(" COLOR=") + q + "#" + Text1 + q;
  if (Combo1 != "Default" && !Combo1.empty()) {
    const std::string value = Combo1 == "1 - small" ? "1" : Combo1 == "7 - large" ? "7" : Combo1;
    size = std::string(" SIZE=") + q + value + q;
  }
  Tags t;
  if (!face.empty() || !color.empty() || !size.empty()) {
    t.start = "<FONT" + face + color + size + ">";
    t.end = "</FONT>";
  }
  auto nest = [&t](bool on, const char* tag) {
    if (!on) return;
    t.start += std::string("<") + tag + ">";
    t.end = std::string("</") + tag + ">" + t.end;
  };
  nest(Check1, "B");
  nest(Check2, "I");
  nest(Check3, "U");
  nest(Check4, "S");
  nest(Check5, "TT");
  nest(Check7, "CODE");
  nest(Check9, "EM");
  nest(Check10, "KBD");
  nest(Check12, "SAMP");
  nest(Check13, "STRONG");
  nest(Check14, "VAR");
  nest(Combo2 == "Subscript", "SUB");
  nest(Combo2 == "Superscript", "SUP");
  return t;
}

std::string RecentFontName(Application& app) {
  return app.store.GetSetting("Font", "RecentFontName", "");
}

void FormatChar_OK(Application& app, const FormatChar& form) {
  if (!form.Combo3.empty()) app.store.SaveSetting("Font", "RecentFontName", form.Combo3);
  const FormatChar::Tags t = form.Build();
  WrapSelection(app, t.start, t.end, false);
}

}  // namespace tessarine
