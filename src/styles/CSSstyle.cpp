#include "styles/CSSstyle.h"

#include <cstring>
#include <string_view>

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
  // The three flags write a fixed value: the value read is not kept.
  static const std::string kBold = "bold", kItalic = "italic", kSmallCaps = "small-caps";
  const std::string decoration =
      TextDecoration.empty() ? std::string() : DecorationText(TextDecoration);
  struct Part {
    std::string_view name;
    const std::string& value;
    const std::string* unit;
  };
  const std::string none;
  const Part parts[] = {
      {"font-family:", FontFamily, nullptr},
      {"font-size:", FontSize, &FontSizeUnit},
      {"color:", Color, nullptr},
      {"text-transform:", TextTransform, nullptr},
      {"font-weight:", FontWeight.empty() ? none : kBold, nullptr},
      {"font-style:", FontStyle.empty() ? none : kItalic, nullptr},
      {"font-variant:", FontVariant.empty() ? none : kSmallCaps, nullptr},
      {"text-decoration:", decoration, nullptr},
      {"vertical-align:", VerticalAlign, nullptr},
      {"text-align:", TextAlign, nullptr},
      {"text-indent:", TextIndent, &TextIndentUnit},
      {"letter-spacing:", LetterSpacing, &LetterSpacingUnit},
      {"line-height:", LineHeight, &LineHeightUnit},
      {"background-color:", BackgroundColor, nullptr},
      {"background-image:", BackgroundImage, nullptr},
      {"background-repeat:", BackgroundRepeat, nullptr},
      {"height:", StyleHeight, &StyleHeightUnit},
      {"width:", StyleWidth, &StyleWidthUnit},
      {"left:", StyleLeft, &StyleLeftUnit},
      {"top:", StyleTop, &StyleTopUnit},
      {"position:", Position, nullptr},
      {"visibility:", Visibility, nullptr},
      {"z-index:", ZIndex, nullptr},
  };
  // Measured first, then written over the old text in one go: a changed rule is rarely
  // longer than its room.
  std::size_t size = ExtraAttributes.size();
  for (const Part& p : parts)
    if (!p.value.empty())
      size += p.name.size() + p.value.size() + (p.unit ? p.unit->size() : 0) + 1;
  Definition.resize(size);
  char* to = Definition.data();
  auto put = [&to](std::string_view text) {
    std::memcpy(to, text.data(), text.size());
    to += text.size();
  };
  for (const Part& p : parts) {
    if (p.value.empty()) continue;
    put(p.name);
    put(p.value);
    if (p.unit) put(*p.unit);
    *to++ = ';';
  }
  put(ExtraAttributes);
}

}  // namespace tessarine
