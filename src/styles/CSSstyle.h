#pragma once
// One rule of a style sheet held in memory: its selector, the properties the editor knows
// (measures as a number and a unit), the ones it does not know as raw text, the rule's
// declarations and a change mark. An empty text means "not set".

#include <cstdint>
#include <string>

namespace tessarine {

// What a style's Status says should happen to its rule when the sheet is written back.
enum StyleStatus : std::int16_t {
  kStyleAsRead = 0,   // nothing to write
  kStyleChanged = 1,  // changed or new: write it
  kStyleDeleted = 2,  // cut it from the document
};

struct CSSstyle {
  std::string StyleName;
  std::string FontFamily;
  std::string FontSize;
  std::string FontSizeUnit;
  std::string Color;
  std::string Definition;
  std::string TextTransform;
  std::string FontWeight;   // any text means bold
  std::string FontStyle;    // any text means italic
  std::string FontVariant;  // any text means small capitals
  std::string TextDecoration;
  std::string VerticalAlign;
  std::string TextAlign;
  std::string TextIndent;
  std::string TextIndentUnit;
  std::string LetterSpacing;
  std::string LetterSpacingUnit;
  std::string LineHeight;
  std::string LineHeightUnit;
  std::string BackgroundColor;
  std::string BackgroundImage;  // also the whole value of a "background" shorthand
  std::string BackgroundRepeat;
  std::string StoredLocation;  // carried along, never read
  std::string StyleWidth;
  std::string StyleWidthUnit;
  std::string StyleHeight;
  std::string StyleHeightUnit;
  std::string StyleLeft;
  std::string StyleLeftUnit;
  std::string StyleTop;
  std::string StyleTopUnit;
  std::string Position;
  std::string Visibility;
  std::string ZIndex;
  // Declarations without a field: "name:value;" and CR LF each, in the order read.
  std::string ExtraAttributes;
  std::int16_t Status = kStyleAsRead;

  // Rebuilds Definition from the fields, in a fixed order, one line (extras last).
  void GetStyleDefinition();
};

// The decoration words as the writer spells them: "underline ", "overline ", "line-through"
// for what the text holds (case-sensitive), or "none" for a text that is "none" in any case.
std::string DecorationText(const std::string& textDecoration);

}  // namespace tessarine
