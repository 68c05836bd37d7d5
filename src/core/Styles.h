#pragma once
// The style byte of a character: a kind in the low three bits, then bold and italic.
// Styles 0 to 31 only, which keeps clear of the widget's reserved styles.

#include <array>
#include <cstdint>
#include <string>

#include "platform/EditControl.h"

namespace tessarine {

struct SettingsVars;

enum class StyleKind : std::uint8_t {
  Plain = 0,          // black text
  Tag = 1,            // ordinary tag
  Table = 2,          // table tag
  Quote = 3,          // quoted attribute value
  Comment = 4,        // <!-- -->
  Server = 5,         // <% %> block
  ScriptComment = 6,  // # comment of a script, fixed grey
  FindHit = 7,        // red, bold, two points larger
};

constexpr Style kBoldBit = 8;
constexpr Style kItalicBit = 16;
constexpr int kStyleCount = 32;

constexpr Style MakeStyle(StyleKind kind, bool bold = false, bool italic = false) {
  return static_cast<Style>(static_cast<Style>(kind) | (bold ? kBoldBit : 0) |
                            (italic ? kItalicBit : 0));
}
constexpr StyleKind KindOf(Style s) {
  return static_cast<StyleKind>(s & 7);
}
constexpr bool IsBold(Style s) {
  return (s & kBoldBit) != 0;
}
constexpr bool IsItalic(Style s) {
  return (s & kItalicBit) != 0;
}

// How one style looks. Colours have red in the low byte, as the settings store them.
struct StyleLook {
  std::int32_t color = 0;
  bool bold = false;
  bool italic = false;
  std::string fontName;
  int fontSize = 10;
};

using StyleTable = std::array<StyleLook, kStyleCount>;

// The table the edit control shows, from the colour and font settings.
StyleTable BuildStyleTable(const SettingsVars& vars);

constexpr std::int32_t kScriptCommentGrey = 159 | (159 << 8) | (159 << 16);
constexpr std::int32_t kFindHitRed = 255;

}  // namespace tessarine
