#include "core/Editing.h"

#include "conventions/SaveWarning.h"
#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/ColorizeRun.h"
#include "core/TextServices.h"
#include "platform/Desktop.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"
#include "platform/Frame.h"

namespace tessarine {

namespace {

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string out;
  out.reserve(text.size());
  size_t at = 0;
  for (size_t hit; (hit = text.find(from, at)) != std::string_view::npos; at = hit + from.size()) {
    out.append(text, at, hit - at);
    out.append(to);
  }
  out.append(text, at);
  return out;
}

bool EndsWith(std::string_view s, std::string_view tail) {
  return s.size() >= tail.size() && s.substr(s.size() - tail.size()) == tail;
}

}  // namespace

bool EditKeyDown(Application& app, DocumentWindow& window, int keyCode, bool shift, bool ctrl) {
  if (app.editing.SuppressEditKeys) return false;
  EditControl& e = window.Edit();
  switch (keyCode) {
    case kKeyTab:
      if (e.SelLength() >= 2 &&
          e.RangeView(e.SelStart(), e.SelLength()).find("\r\n") != std::string_view::npos) {
        BlockIndent(e, shift);
        return true;
      }
      return false;
    case kKeySpace:
      if (!ctrl) return false;
      InsertAtCaret(app, "&nbsp;", false);
      return true;
    case kKeyLessComma:
      if (!shift && !ctrl) return false;
      OnLessThanKeyDown(app, window);
      if (!ctrl) return false;  // the "<" itself is typed by the control
      WrapSelection(app, shift ? "<%=" : "<%", "%>", false);
      return true;
    case kKeyQuote:
      OnQuoteKeyDown(app, window);
      return false;
    default:
      return false;
  }
}

void EditKeyUp(Application& app, DocumentWindow& window, int keyCode, bool shift) {
  if (app.editing.SuppressEditKeys) return;
  UpdateLinePanel(app, window);
  EditControl& e = window.Edit();
  if (keyCode == kKeyEnter && app.settings.EnableAutotab) {
    e.ReplaceSel(std::string(static_cast<size_t>(AutoTabCount(e)), '\t'));
  } else if (keyCode == kKeyGreaterPeriod && shift) {
    OnGreaterThanKeyUp(app, window);
  } else if (keyCode == kKeyQuote) {
    OnQuoteKeyUp(app, window);
  }
}

void BlockIndent(EditControl& e, bool outdent) {
  const Pos selStart = e.SelStart();
  Pos end = selStart + e.SelLength();
  Pos start = 0;
  const std::string_view before = e.RangeView(0, selStart);
  if (const auto q = before.rfind("\r\n"); q != std::string_view::npos)
    start = static_cast<Pos>(q) + 2;

  // `end` isn't moved for the tabs written inside the block, so the selection left behind
  // can be a few characters off; documents and habits depend on it as it is.
  if (!outdent) {
    e.Select(start, 0);
    e.ReplaceSel("\t");
    ++end;
    e.SetSelLength(end - start);  // from the caret, just behind the new tab
    e.ReplaceSel(ReplaceAll(e.SelText(), "\r\n", "\r\n\t"));
  } else {
    e.Select(start, 1);
    if (e.SelText() == "\t") {
      e.ReplaceSel("");
      --end;
    }
    e.SetSelLength(end - start);
    e.ReplaceSel(ReplaceAll(e.SelText(), "\r\n\t", "\r\n"));
  }
  e.Select(start, end - start);
}

int AutoTabCount(const EditControl& e) {
  const Pos pos = e.SelStart();
  // The line before the caret's starts behind the last CR that isn't the one just typed.
  Pos p = 0;
  if (pos - 2 > 0) {
    const std::string_view head = e.RangeView(0, pos - 2);
    if (const auto q = head.rfind('\r'); q != std::string_view::npos) p = static_cast<Pos>(q) + 1;
  }
  std::string line = e.TextRange(p, pos - p);
  std::erase(line, '\n');
  // The position of the last TAB, which is the number of leading TABs only for a line
  // that has them at its start alone.
  const auto last = line.rfind('\t');
  return last == std::string::npos ? 0 : static_cast<int>(last) + 1;
}

void UpdateStatusOnChange(Application& app, DocumentWindow& window) {
  if (app.ActiveDocument() != &window) return;
  app.frame.SetLengthPanel(window.Edit().Length());
  UpdateLinePanel(app, window);
}

void UpdateLinePanel(Application& app, DocumentWindow& window) {
  const EditControl& e = window.Edit();
  app.frame.SetLinePanel(1 + e.LineFromPosition(e.SelStart()));
}

void OnEditMouseMove(Application& app) {
  app.frame.SetStatusText("Press F1 for Help");
}

std::string DroppedFileTag(const std::string& name, const std::string& path, bool upperCase,
                           const std::string& selected, int width, int height, bool sizeKnown) {
  const std::string lower = LCase(name);
  if (EndsWith(lower, ".htm") || EndsWith(lower, "html")) {
    return (upperCase ? "<A HREF=\"" : "<a href=\"") + path + "\">" + selected +
           (upperCase ? "</A>" : "</a>");
  }
  if (EndsWith(lower, ".gif") || EndsWith(lower, ".jpg")) {
    // A picture that can't be read leaves its size empty.
    const std::string w = sizeKnown ? std::to_string(width) : "";
    const std::string h = sizeKnown ? std::to_string(height) : "";
    return (upperCase ? "<IMG SRC=\"" : "<img src=\"") + path +
           (upperCase ? "\" WIDTH=\"" : "\" width=\"") + w +
           (upperCase ? "\" HEIGHT=\"" : "\" height=\"") + h + "\">";
  }
  if (EndsWith(lower, ".css")) return "<link rel=\"StyleSheet\" href=\"" + path + "\">";
  return {};
}

bool DropFile(Application& app, DocumentWindow& window, const std::string& path) {
  const std::string lower = LCase(path);
  const bool link = EndsWith(lower, ".htm") || EndsWith(lower, "html");
  const bool image = EndsWith(lower, ".gif") || EndsWith(lower, ".jpg");
  if (!link && !image && !EndsWith(lower, ".css")) return false;

  const DropServices& services = app.editing.drop;
  if (services.checkSaveWarning)
    services.checkSaveWarning();
  else
    CheckSaveWarning(app);
  const auto slash = path.find_last_of('/');
  const std::string folder = slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
  const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
  // Read after the warning: a save there gives the document its path.
  const std::string caption = window.Caption();
  const std::string prefix = services.relativePath ? services.relativePath(caption, folder)
                                                   : RelativePath(caption, folder);

  int width = 0, height = 0;
  const bool sizeKnown = image && app.images.Size(path, width, height);
  EditControl& e = window.Edit();
  const std::string selected = link ? e.SelText() : std::string();
  e.ReplaceSel(DroppedFileTag(name, prefix + name, app.settings.TagCaseUpper, selected, width,
                              height, sizeKnown));
  e.SetFocus();
  return true;
}

void mnuUndo(Application& app) {
  // The tag commands empty the history, so this stops at the last of them.
  if (EditControl* e = app.ActiveEdit()) e->Undo();
}

void mnuRedo(Application& app) {
  if (EditControl* e = app.ActiveEdit()) e->Redo();
}

bool ReplaceAllAsOneStep(Application& app, const FindReplaceInputs& in) {
  EditControl* e = app.ActiveEdit();
  if (!e) return cmdReplaceAll(app, in);
  UndoGroup group(*e);
  return cmdReplaceAll(app, in);
}

void mnuCut(Application& app) {
  EditControl* e = app.ActiveEdit();
  if (!e) return;
  app.clipboard.SetText(e->SelText());
  e->ReplaceSel("");
  e->SetFocus();
}

void mnuCopy(Application& app) {
  EditControl* e = app.ActiveEdit();
  if (!e) return;
  app.clipboard.SetText(e->SelText());
  e->SetFocus();
}

void mnuPaste(Application& app) {
  EditControl* e = app.ActiveEdit();
  if (!e) return;
  // Plain text only; it takes the insertion colour like anything typed.
  e->ReplaceSel(ToCrLf(app.clipboard.Text()));
  e->SetFocus();
}

void mnuSelectAll(Application& app) {
  EditControl* e = app.ActiveEdit();
  if (!e) return;
  e->SetFocus();
  e->Select(0, e->Length());
}

bool mnuWordWrap(Application& app) {
  app.settings.WordWrap = !app.settings.WordWrap;
  if (EditControl* e = app.ActiveEdit()) e->SetWordWrap(app.settings.WordWrap);
  return app.settings.WordWrap;
}

std::string ToCrLf(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\r') {
      out += "\r\n";
      if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
    } else if (c == '\n') {
      out += "\r\n";
    } else {
      out += c;
    }
  }
  return out;
}

}  // namespace tessarine
