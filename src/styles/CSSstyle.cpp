#include "styles/CSSstyle.h"

#include "core/TextServices.h"

namespace tessarine {

std::string DecorationText(const std::string& textDecoration) {
  std::string text;
  if (textDecoration.find("underline") != std::string::npos) text = "underline ";
  if (textDecoration.find("overline") != std::string::npos) text += "overline ";
  if (textDecoration.find("line-through") != std::string::npos) text += "line-through";
  if (LCase(textDecoration) == "none") text = "none";
  return text;
}

void CSSstyle::GetStyleDefinition() {
  // Written over the old text, so its room is used again: a changed rule is rarely longer.
  std::string& d = Definition;
  d.clear();
  auto value = [&d](std::string_view name, const std::string& v) {
    if (v.empty()) return;
    d.append(name).append(v);
    d += ';';
  };
  auto measure = [&d](std::string_view name, const std::string& number, const std::string& unit) {
    if (number.empty()) return;
    d.append(name).append(number).append(unit);
    d += ';';
  };
  value("font-family:", FontFamily);
  measure("font-size:", FontSize, FontSizeUnit);
  value("color:", Color);
  value("text-transform:", TextTransform);
  // These three are on/off flags: the value read is not kept.
  if (!FontWeight.empty()) d += "font-weight:bold;";
  if (!FontStyle.empty()) d += "font-style:italic;";
  if (!FontVariant.empty()) d += "font-variant:small-caps;";
  if (!TextDecoration.empty()) value("text-decoration:", DecorationText(TextDecoration));
  value("vertical-align:", VerticalAlign);
  value("text-align:", TextAlign);
  measure("text-indent:", TextIndent, TextIndentUnit);
  measure("letter-spacing:", LetterSpacing, LetterSpacingUnit);
  measure("line-height:", LineHeight, LineHeightUnit);
  value("background-color:", BackgroundColor);
  value("background-image:", BackgroundImage);
  value("background-repeat:", BackgroundRepeat);
  measure("height:", StyleHeight, StyleHeightUnit);
  measure("width:", StyleWidth, StyleWidthUnit);
  measure("left:", StyleLeft, StyleLeftUnit);
  measure("top:", StyleTop, StyleTopUnit);
  value("position:", Position);
  value("visibility:", Visibility);
  value("z-index:", ZIndex);
  d += ExtraAttributes;
}

}  // namespace tessarine
