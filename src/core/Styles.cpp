#include "core/Styles.h"

#include "settings/Settings.h"

namespace tessarine {

StyleTable BuildStyleTable(const SettingsVars& v) {
  StyleTable table;
  for (int i = 0; i < kStyleCount; ++i) {
    const auto s = static_cast<Style>(i);
    StyleLook& look = table[static_cast<size_t>(i)];
    look.bold = IsBold(s);
    look.italic = IsItalic(s);
    look.fontName = v.DocumentFontName;
    look.fontSize = v.DocumentFontSize;
    switch (KindOf(s)) {
      case StyleKind::Plain:
        look.color = 0;
        break;
      case StyleKind::Tag:
        look.color = v.Colors.tagColor;
        break;
      case StyleKind::Table:
        look.color = v.Colors.tableColor;
        break;
      case StyleKind::Quote:
        look.color = v.Colors.quoteColor;
        break;
      case StyleKind::Comment:
        look.color = v.Colors.commentColor;
        break;
      case StyleKind::Server:
        look.color = v.Colors.aspColor;
        break;
      case StyleKind::ScriptComment:
        look.color = kScriptCommentGrey;
        break;
      case StyleKind::FindHit:
        look.color = kFindHitRed;
        look.bold = true;
        look.fontSize = v.DocumentFontSize + 2;
        break;
    }
    // Tags and quoted values carry the tag font; comments and plain text keep the document's.
    switch (KindOf(s)) {
      case StyleKind::Tag:
      case StyleKind::Table:
      case StyleKind::Quote:
      case StyleKind::Server:
        look.fontName = v.HTMLTagFont;
        break;
      default:
        break;
    }
  }
  return table;
}

}  // namespace tessarine
