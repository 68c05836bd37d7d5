#include "styles/StyleManager.h"

#include "core/Application.h"
#include "core/TextServices.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"
#include "platform/MessageBoxes.h"
#include "styles/CSSFunctions.h"
#include "styles/StyleEditor.h"

namespace tessarine {

namespace {

bool EndsWith(const std::string& s, const std::string& tail) {
  return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}

}  // namespace

bool IsStyleSheetCaption(const std::string& caption) {
  return EndsWith(LCase(caption), ".css");
}

bool LoadStyles(Application& app, std::vector<std::string>& listed) {
  StyleState& state = app.styles;
  state.Reset();
  listed.clear();
  // Read in place: the document does not change while its rules are read.
  DocumentWindow* w = app.ActiveDocument();
  const std::string_view sheet = w ? DocumentStyleSheet(w->Edit().View(), w->Caption()) : "";
  if (!sheet.empty() || state.StyleDialogMode != kApplyStyle) listed = LoadStyleRules(state, sheet);
  if (state.StyleDialogMode != kApplyStyle || !listed.empty()) return true;
  if (app.messages.Show(
          "There are no styles to apply in this document.  Would you like to add styles to this "
          "document?",
          MsgButtons::YesNo, MsgIcon::Question, app.title) != MsgAnswer::Yes)
    return false;
  state.StyleDialogMode = kAddStyleToDocument;
  return true;
}

std::vector<StyleWrite> SaveStylesWrites(const CSSStyleCollection& styles,
                                         const std::string& caption) {
  std::vector<StyleWrite> writes;
  writes.reserve(styles.Count());
  // A removal takes the flag of the last changed style before it, clear before any.
  bool embedded = false;
  for (const CSSstyle& s : styles) {
    if (s.Status != kStyleChanged && s.Status != kStyleDeleted) continue;
    if (s.Status == kStyleChanged) embedded = !EndsWith(caption, ".css");
    writes.push_back({s.StyleName, s.Definition, embedded, s.Status == kStyleDeleted, true});
  }
  return writes;
}

void SaveStyles(Application& app) {
  DocumentWindow* w = app.ActiveDocument();
  if (!w) return;
  const std::vector<StyleWrite> writes = SaveStylesWrites(app.styles.Styles, w->Caption());
  if (writes.empty()) return;
  EditControl& edit = w->Edit();
  const std::string_view old = edit.View();
  const std::string text = WriteStyleDefinitions(old, writes);
  // One edit over the stretch that changed, so one Undo takes the whole pass back.
  std::size_t head = 0;
  const std::size_t shorter = std::min(old.size(), text.size());
  while (head < shorter && old[head] == text[head]) ++head;
  std::size_t tail = 0;
  while (tail < shorter - head && old[old.size() - 1 - tail] == text[text.size() - 1 - tail])
    ++tail;
  if (head == old.size() && head == text.size()) return;
  edit.ReplaceRange(static_cast<Pos>(head), static_cast<Pos>(old.size() - head - tail),
                    std::string_view(text).substr(head, text.size() - head - tail));
}

bool CanApplyStyle(const std::string& selector) {
  return !selector.empty() && (selector.front() == '.' || selector.front() == '#');
}

CheckResult ApplyStyle(Application& app, const std::string& selector, ApplyMethod method) {
  if (method == ApplyMethod::None)
    return WizardCheck{"Please select a method to apply this style.", "applyMethod"};
  std::string name = selector;
  std::string attribute = " class=";
  if (!name.empty() && name.front() == '#') {
    attribute = " id=";
    name.erase(0, 1);
  } else if (!name.empty() && name.front() == '.') {
    name.erase(0, 1);
  }
  InsertStyled(app, method == ApplyMethod::Div ? "div" : "span", attribute + "\"" + name + "\"");
  SaveStyles(app);
  return std::nullopt;
}

std::string ManagerPreviewPage(const CSSStyleCollection& styles) {
  std::string head = "<html><head><style>\r\n";
  std::string body;
  for (const CSSstyle& s : styles) {
    if (CanApplyStyle(s.StyleName)) {
      const std::string n = s.StyleName.substr(1);  // an ID is shown as a class
      head += "." + n + "{" + s.Definition + "}\r\n";
      body +=
          "<span class=\"" + n + "\">This is a preview of " + s.StyleName + "</span><br><br>\r\n";
    } else {
      head += s.StyleName + "{" + s.Definition + "}\r\n";
    }
  }
  body +=
      "<hr>Body text<br><br><p>Paragraph text<p><a href=#>Hyperlink text</a><br><br>"
      "<ul><li>Bulleted List item 1<li>Bulleted List item 2</ul><br> <ol><li>Numbered List "
      "item 1<li>Numbered List item 2</ol><br><table border=1><tr><th>Table header</th></tr>"
      "<tr><td>Table data</td></tr></table>";
  return head + "</style></head><body>" + body + "</body></html>";
}

}  // namespace tessarine
