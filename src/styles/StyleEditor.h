#pragma once
// The style editor as a record: the naming page and the five pages of properties, the
// selector they name, the declarations they build, and what OK does in each mode.

#include <cstdint>
#include <optional>
#include <string>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;
struct CSSstyle;

// How the style editor and the style manager were opened.
enum StyleDialogModes : std::int16_t {
  kAddStyleToDocument = 1,  // Add Style: OK writes the rule at once (the manager: full mode)
  kEditManagedStyle = 2,    // the manager's Edit: OK changes the selected style
  kApplyStyle = 3,          // the manager only: apply a style
  kInsertInlineStyle = 4,   // OK inserts a style attribute or a SPAN at the caret
  kAddManagedStyle = 5,     // the manager's Add: OK adds a style to Styles
};

// The lists of the pages.
inline constexpr const char* kStyleHtmlElements[] = {
    "A",          "A:active", "A:hover",  "A:link",  "A:visited", "ACRONYM",  "ADDRESS",
    "APPLET",     "AREA",     "B",        "BASE",    "BASEFONT",  "BGSOUND",  "BIG",
    "BLOCKQUOTE", "BODY",     "BR",       "BUTTON",  "CAPTION",   "CENTER",   "CITE",
    "CODE",       "COL",      "COLGROUP", "COMMENT", "CUSTOM",    "DD",       "DEL",
    "DFN",        "DIR",      "DIV",      "DL",      "DT",        "EM",       "EMBED",
    "FIELDSET",   "FONT",     "FORM",     "FRAME",   "FRAMESET",  "HEAD",     "HN",
    "HR",         "HTML",     "I",        "IFRAME",  "IMG",       "INPUT",    "INS",
    "ISINDEX",    "KBD",      "LABEL",    "LEGEND",  "LI",        "LINK",     "LISTING",
    "MAP",        "MARQUEE",  "MENU",     "META",    "NOBR",      "NOFRAMES", "NOSCRIPT",
    "OBJECT",     "OL",       "OPTGROUP", "OPTION",  "P",         "PARAM",    "PLAINTEXT",
    "PRE",        "Q",        "RT",       "RUBY",    "S",         "SAMP",     "SCRIPT",
    "SELECT",     "SMALL",    "SPAN",     "STRIKE",  "STRONG",    "STYLE",    "SUB",
    "SUP",        "TABLE",    "TBODY",    "TD",      "TEXTAREA",  "TFOOT",    "TH",
    "THEAD",      "TITLE",    "TR",       "TT",      "U",         "UL",       "VAR",
    "WBR",        "XML",      "XMP"};
inline constexpr const char* kStyleFonts[] = {
    "Terminal", "MS Serif", "MS Sans Serif", "Courier",         "Symbol",
    "Modern",   "Arial",    "Courier New",   "Times New Roman", "Wingdings"};
inline constexpr const char* kStyleSizes[] = {"4",  "5",  "6",  "7",  "8",  "9",  "10", "11", "12",
                                              "14", "16", "18", "20", "24", "28", "32", "48"};
inline constexpr const char* kStyleUnits[] = {"cm", "em", "ex", "in", "mm", "pc", "pt", "px", "%"};
inline constexpr const char* kStyleCases[] = {"normal", "capitalize", "uppercase", "lowercase"};
inline constexpr const char* kStyleVerticalAligns[] = {"normal", "subscript", "superscript"};
inline constexpr const char* kStyleHorizontalAligns[] = {"normal", "left", "right", "center",
                                                         "justify"};
inline constexpr const char* kStyleTiles[] = {"none", "horizontally", "vertically",
                                              "in both directions"};
inline constexpr const char* kStylePositions[] = {"absolute", "relative", "static"};
inline constexpr const char* kStyleVisibilities[] = {"visible", "hidden", "inherit"};

struct StyleEditorFields {
  // Naming page.
  bool customName = false;  // false: an HTML element from the list
  std::string htmlElement;  // the list's selected item, empty for none
  std::string customText;
  bool idSelector = false;  // false: Class

  // Formatting.
  std::string font, fontSize, fontSizeUnit = "pt", fontColor, fontCase;
  bool bold = false, italic = false, smallCaps = false;
  bool underline = false, overline = false, strikethrough = false;
  // Layout.
  std::string verticalAlign, horizontalAlign;
  std::string indent, indentUnit = "px";
  std::string lineHeight, lineHeightUnit = "pt";
  std::string letterSpacing, letterSpacingUnit = "pt";
  // Background properties.
  std::string backgroundColor, backgroundImage, backgroundTile;
  // Positioning.
  std::string height, heightUnit = "px", width, widthUnit = "px";
  std::string left, leftUnit = "px", top, topUnit = "px";
  std::string position, visibility, zIndex;
};

// The selector the naming page gives: the element, or the custom text with "." (Class) or
// "#" (ID) put before it unless it begins with one. Not trimmed or checked further.
std::string GetStyleSelector(const StyleEditorFields& f);
// Next on the naming page.
CheckResult ValidateStyleName(const StyleEditorFields& f);

// The declarations from the pages, with fixed units; multi-line: each on a line after a
// tab, else separated by blanks.
std::string BuildStyleDefinition(const StyleEditorFields& f, bool multiLine);
void LoadStyleControls(StyleEditorFields& f, const CSSstyle& style);
// Into the style, then Status 1 and its definition rebuilt; unknown properties stay.
void SaveStyleControls(const StyleEditorFields& f, CSSstyle& style);

// The colour boxes' "Select": the colour dialog's choice as six hex digits without "#", in
// the tag case; nothing after Cancel.
std::optional<std::string> PickStyleColor(Application& app);
// The background image's browse: the file as a path relative to the active document.
std::optional<std::string> BrowseBackgroundImage(Application& app);

// The preview page for one style: the name without its leading "." or "#", as a class.
std::string StylePreviewPage(std::string name, const std::string& definition);
// Writes the page to cssprev.htm in the application folder and shows it in the browser.
void ShowStylePreview(Application& app, const std::string& page);

// OK. `managerSelection` is the style selected in the manager (mode 2). True when the
// editor closes; false when it stays open (mode 5 with a name that exists). `added` is
// set when mode 5 added a style, for the manager's list.
bool StyleEditorOK(Application& app, std::int16_t mode, const StyleEditorFields& f,
                   const std::string& managerSelection, std::string* added = nullptr);

// A SPAN (or other tag) with `attribute` around the selection; without one, the attribute
// alone when the caret stands inside a tag, else an empty element. The tag case has no
// effect.
void InsertStyled(Application& app, const std::string& tag, const std::string& attribute);

}  // namespace tessarine
