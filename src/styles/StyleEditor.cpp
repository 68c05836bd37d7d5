#include "styles/StyleEditor.h"

#include "conventions/CFile.h"
#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/FileSave.h"
#include "core/Preview.h"
#include "core/TextServices.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"
#include "platform/MessageBoxes.h"
#include "styles/CSSFunctions.h"
#include "styles/CSSstyle.h"

namespace tessarine {

std::string GetStyleSelector(const StyleEditorFields& f) {
  if (!f.customName) return f.htmlElement;
  const char mark = f.idSelector ? '#' : '.';
  if (!f.customText.empty() && f.customText.front() == mark) return f.customText;
  return std::string(1, mark) + f.customText;
}

CheckResult ValidateStyleName(const StyleEditorFields& f) {
  if (!f.customName && f.htmlElement.empty())
    return WizardCheck{"Please select an HTML element from the list below.", "htmlElements"};
  if (f.customName && f.customText.empty())
    return WizardCheck{"Please enter the name of the CSS style in the text box below.",
                       "customName"};
  return std::nullopt;
}

std::string BuildStyleDefinition(const StyleEditorFields& f, bool multiLine) {
  const std::string separator = multiLine ? "\r\n\t" : " ";
  std::string d = multiLine ? "\t" : "";
  auto item = [&](const char* name, const std::string& value, const char* unit = "") {
    if (!value.empty())
      d.append(name).append(":").append(value).append(unit).append(";") += separator;
  };
  item("font-family", f.font);
  item("font-size", f.fontSize, "pt");
  item("color", f.fontColor);
  item("text-transform", f.fontCase);
  if (f.bold) d += "font-weight:bold;" + separator;
  if (f.italic) d += "font-style:italic;" + separator;
  if (f.smallCaps) d += "font-variant:small-caps;" + separator;
  if (f.underline || f.overline || f.strikethrough) {
    d += "text-decoration:";
    if (f.underline) d += "underline ";
    if (f.overline) d += "overline ";
    if (f.strikethrough) d += "line-through";
    d += ";" + separator;
  }
  item("vertical-align", f.verticalAlign);
  item("text-align", f.horizontalAlign);
  item("text-indent", f.indent, "px");
  item("letter-spacing", f.letterSpacing, "pt");
  item("line-height", f.lineHeight, "pt");
  item("background-color", f.backgroundColor);
  item("background-image", f.backgroundImage);
  item("background-repeat", f.backgroundTile);
  item("height", f.height, "px");
  item("width", f.width, "px");
  item("left", f.left, "px");
  item("top", f.top, "px");
  item("position", f.position);
  item("visibility", f.visibility);
  item("z-index", f.zIndex);
  if (multiLine) {
    d.resize(d.size() >= 3 ? d.size() - 3 : 0);  // the last separator; nothing set: empty
  } else {
    while (!d.empty() && d.back() == ' ') d.pop_back();
  }
  return d;
}

void LoadStyleControls(StyleEditorFields& f, const CSSstyle& s) {
  f.font = s.FontFamily;
  f.fontSize = s.FontSize;
  f.fontSizeUnit = s.FontSizeUnit;
  f.fontColor = s.Color;
  f.fontCase = s.TextTransform;
  f.bold = !s.FontWeight.empty();
  f.italic = !s.FontStyle.empty();
  f.smallCaps = !s.FontVariant.empty();
  f.underline = s.TextDecoration.find("underline") != std::string::npos;
  f.overline = s.TextDecoration.find("overline") != std::string::npos;
  f.strikethrough = s.TextDecoration.find("line-through") != std::string::npos;
  f.verticalAlign = s.VerticalAlign;
  f.horizontalAlign = s.TextAlign;
  f.indent = s.TextIndent;
  f.indentUnit = s.TextIndentUnit;
  f.lineHeight = s.LineHeight;
  f.lineHeightUnit = s.LineHeightUnit;
  f.letterSpacing = s.LetterSpacing;
  f.letterSpacingUnit = s.LetterSpacingUnit;
  f.backgroundColor = s.BackgroundColor;
  f.backgroundImage = s.BackgroundImage;
  f.backgroundTile = s.BackgroundRepeat;
  f.height = s.StyleHeight;
  f.heightUnit = s.StyleHeightUnit;
  f.width = s.StyleWidth;
  f.widthUnit = s.StyleWidthUnit;
  f.left = s.StyleLeft;
  f.leftUnit = s.StyleLeftUnit;
  f.top = s.StyleTop;
  f.topUnit = s.StyleTopUnit;
  f.position = s.Position;
  f.visibility = s.Visibility;
  f.zIndex = s.ZIndex;
}

void SaveStyleControls(const StyleEditorFields& f, CSSstyle& s) {
  s.FontFamily = f.font;
  s.FontSize = f.fontSize;
  s.FontSizeUnit = f.fontSizeUnit;
  s.Color = f.fontColor;
  s.TextTransform = f.fontCase;
  s.FontWeight = f.bold ? "bold" : "";
  s.FontStyle = f.italic ? "italic" : "";
  s.FontVariant = f.smallCaps ? "small caps" : "";
  s.TextDecoration = std::string(f.underline ? "underline " : "") +
                     (f.overline ? "overline " : "") + (f.strikethrough ? "line-through" : "");
  s.VerticalAlign = f.verticalAlign;
  s.TextAlign = f.horizontalAlign;
  s.TextIndent = f.indent;
  s.TextIndentUnit = f.indentUnit;
  s.LineHeight = f.lineHeight;
  s.LineHeightUnit = f.lineHeightUnit;
  s.LetterSpacing = f.letterSpacing;
  s.LetterSpacingUnit = f.letterSpacingUnit;
  s.BackgroundColor = f.backgroundColor;
  s.BackgroundImage = f.backgroundImage;
  s.BackgroundRepeat = f.backgroundTile;
  s.StyleHeight = f.height;
  s.StyleHeightUnit = f.heightUnit;
  s.StyleWidth = f.width;
  s.StyleWidthUnit = f.widthUnit;
  s.StyleLeft = f.left;
  s.StyleLeftUnit = f.leftUnit;
  s.StyleTop = f.top;
  s.StyleTopUnit = f.topUnit;
  s.Position = f.position;
  s.Visibility = f.visibility;
  s.ZIndex = f.zIndex;
  s.Status = kStyleChanged;
  s.GetStyleDefinition();
}

std::optional<std::string> PickStyleColor(Application& app) {
  PickColor(app);
  if (app.wizards.ColorCancelled || !app.wizards.PickedColor) return std::nullopt;
  const std::string& hex = app.wizards.PickedColorHex;
  return TagCaseUpper(app) ? UCase(hex) : LCase(hex);
}

std::optional<std::string> BrowseBackgroundImage(Application& app) {
  CFile file(app.fileDialogs);
  file.DialogTitle = "Background Image";
  if (file.BrowseForFile().empty()) return std::nullopt;
  DocumentWindow* w = app.ActiveDocument();
  return RelativePath(w ? w->Caption() : std::string(), file.Path) + file.Filename;
}

std::string StylePreviewPage(std::string name, const std::string& definition) {
  if (!name.empty() && (name.front() == '.' || name.front() == '#')) name.erase(0, 1);
  return "<html><head><style>\r\n." + name + " {" + definition +
         "}</style></head><body><span class=\"" + name +
         "\">This is a preview of your style</span></body></html>";
}

void ShowStylePreview(Application& app, const std::string& page) {
  const std::string path = app.programFolder + "/cssprev.htm";
  if (const int error = WriteFileReplacing(path, page, ""); error != 0) {
    app.messages.Show(ErrorDescription(error) + ": " + path, MsgButtons::OK, MsgIcon::Exclamation,
                      app.title);
    return;
  }
  OpenInDefaultViewer(app, path);
}

void InsertStyled(Application& app, const std::string& tag, const std::string& attribute) {
  EditControl* edit = app.ActiveEdit();
  if (!edit) return;
  const std::string selected = edit->SelText();
  if (!selected.empty()) {
    edit->ReplaceSel("<" + tag + attribute + ">" + selected + "</" + tag + ">");
    return;
  }
  const std::string_view before = edit->RangeView(0, edit->SelStart());
  const std::size_t lt = before.rfind('<');
  const std::size_t gt = before.rfind('>');
  const bool insideTag = lt != std::string_view::npos && (gt == std::string_view::npos || lt > gt);
  edit->ReplaceSel(insideTag ? attribute + " " : "<" + tag + attribute + "></" + tag + ">");
}

bool StyleEditorOK(Application& app, std::int16_t mode, const StyleEditorFields& f,
                   const std::string& managerSelection, std::string* added) {
  StyleState& state = app.styles;
  switch (mode) {
    case kAddStyleToDocument: {
      DocumentWindow* w = app.ActiveDocument();
      if (!w) return true;
      const bool embedded = w->Caption().find(".css") == std::string::npos;
      WriteStyleDefinition(app, GetStyleSelector(f), BuildStyleDefinition(f, true), embedded,
                           false);
      return true;
    }
    case kEditManagedStyle:
      if (auto style = state.Styles.Item(managerSelection)) SaveStyleControls(f, *style);
      return true;
    case kInsertInlineStyle:
      InsertStyled(app, "span", " style=\"" + BuildStyleDefinition(f, false) + "\"");
      return true;
    case kAddManagedStyle: {
      const std::string name = GetStyleSelector(f);
      for (CSSstyle& existing : state.Styles) {
        if (existing.StyleName != name) continue;  // exact here; deleted styles count
        if (app.messages.Show(
                "A style with this name already exists.  Would you like to overwrite it?",
                MsgButtons::YesNo, MsgIcon::Question, app.title) == MsgAnswer::Yes)
          SaveStyleControls(f, existing);
        return false;
      }
      CSSstyle fresh;
      fresh.StyleName = name;
      if (auto made = state.Styles.Add(std::move(fresh), name)) {
        state.CurrentStyle = made;
        SaveStyleControls(f, *made);
        if (added) *added = name;
      } else if (auto same = state.Styles.Item(name)) {
        // The name differs from a style's only in case: that style is the one it means.
        SaveStyleControls(f, *same);
      }
      return true;
    }
    default:
      return true;
  }
}

}  // namespace tessarine
