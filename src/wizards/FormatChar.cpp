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
  if (!fontFace.empty()) face = std::string(" FACE=") + q + fontFace + q;
  if (!colorHex.empty()) color = std::string(" COLOR=") + q + "#" + colorHex + q;
  if (sizeRow != "Default" && !sizeRow.empty()) {
    const std::string value = sizeRow == "1 - small" ? "1" : sizeRow == "7 - large" ? "7" : sizeRow;
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
  nest(bold, "B");
  nest(italic, "I");
  nest(underline, "U");
  nest(strikeThrough, "S");
  nest(teletype, "TT");
  nest(code, "CODE");
  nest(emphasis, "EM");
  nest(keyboard, "KBD");
  nest(sample, "SAMP");
  nest(strong, "STRONG");
  nest(variable, "VAR");
  nest(position == "Subscript", "SUB");
  nest(position == "Superscript", "SUP");
  return t;
}

std::string RecentFontName(Application& app) {
  return app.store.GetSetting("Font", "RecentFontName", "");
}

void FormatChar_OK(Application& app, const FormatChar& form) {
  if (!form.fontFace.empty()) app.store.SaveSetting("Font", "RecentFontName", form.fontFace);
  const FormatChar::Tags t = form.Build();
  WrapSelection(app, t.start, t.end, false);
}

}  // namespace tessarine
