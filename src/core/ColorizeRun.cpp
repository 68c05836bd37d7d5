#include "core/ColorizeRun.h"

#include <algorithm>
#include <vector>

#include "core/Application.h"
#include "core/Colorize.h"
#include "core/Styles.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"
#include "platform/Frame.h"

namespace tessarine {

const char* const kColorizingStatus =
    "Please wait while tags are being colorized...  Press Esc to cancel";
const char* const kReadyStatus = "Press F1 for help";

namespace {

enum class Pass { Tags, ScriptComments };

void RunPass(Application& app, DocumentWindow& window, Pass pass) {
  EditControl& edit = window.Edit();
  const int slot = app.documents.SlotOf(&window);
  if (slot == 0) return;
  const auto serial = app.documents.Form(slot).serial;
  auto alive = [&] { return app.documents.IsAlive(&window, serial); };

  app.colorizing.ColorizingInProgress = 1;
  // Only an Esc pressed while this pass runs may stop it.
  app.colorizing.CancelColorizing = false;
  edit.SetVisible(false);
  const std::string text = edit.Text();
  const Pos savedCaret = edit.SelStart();
  app.frame.SetMousePointer(MousePointer::Hourglass);
  app.frame.SetStatusText(kColorizingStatus);

  // Other handlers run in the yields, and may even close the window.
  bool gone = false;
  const PassYield yield = [&](Pos) {
    app.frame.ProcessEvents();
    if (!alive()) {
      gone = true;
      return true;
    }
    return app.colorizing.CancelColorizing;
  };
  std::vector<Style> styles(text.size());
  const PassResult r =
      pass == Pass::Tags
          ? tessarine::ColorizeTags(text, {app.settings.Flags, app.settings.Bold}, styles.data(),
                                    yield)
          : tessarine::ColorizeScriptComments(text, app.settings.Bold, styles.data(), yield);
  if (gone) {
    app.frame.SetMousePointer(MousePointer::Default);
    app.colorizing.ColorizingInProgress = 0;
    return;
  }

  // One styling call per chunk; the control may have changed meanwhile, so stay in range.
  const Pos n = std::min<Pos>(static_cast<Pos>(styles.size()), edit.Length());
  for (Pos at = 0; at < n; at += kPassChunk) {
    edit.SetStyles(at, styles.data() + at, std::min(kPassChunk, n - at));
  }

  switch (r.end) {
    case PassEnd::Finished:
      app.frame.SetMousePointer(MousePointer::Default);
      edit.SetSelStart(savedCaret);
      edit.SetFocus();
      edit.SetVisible(true);
      app.frame.SetStatusText(kReadyStatus);
      app.colorizing.ColorizingInProgress = 0;
      break;
    case PassEnd::Cancelled:
      app.frame.SetMousePointer(MousePointer::Default);
      if (pass == Pass::Tags)
        edit.SetSelStart(0);
      else
        edit.Select(r.lastSelStart, r.lastSelLength);
      app.colorizing.CancelColorizing = false;
      app.colorizing.ColorizingInProgress = 0;
      break;
    case PassEnd::Abandoned:
      // The walk left from inside its loop: nothing is restored, as the user knows it.
      edit.Select(r.lastSelStart, r.lastSelLength);
      break;
  }
}

}  // namespace

void ColorizeTags(Application& app, DocumentWindow& window) {
  RunPass(app, window, Pass::Tags);
}

void ColorizeScriptComments(Application& app) {
  if (DocumentWindow* w = app.ActiveDocument()) RunPass(app, *w, Pass::ScriptComments);
}

bool IsScriptCaption(const std::string& caption, bool caseSensitive) {
  if (caption.size() < 3) return false;
  std::string tail = caption.substr(caption.size() - 3);
  if (!caseSensitive)
    std::transform(tail.begin(), tail.end(), tail.begin(),
                   [](char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c + 32) : c; });
  return tail == "cgi" || tail == ".pl";
}

void ChooseColorizer(Application& app, DocumentWindow& window, bool caseSensitive) {
  if (IsScriptCaption(window.Caption(), caseSensitive)) {
    window.Activate();
    ColorizeScriptComments(app);
  } else {
    ColorizeTags(app, window);
  }
}

void mnuColorize(Application& app, bool fromToolbar) {
  DocumentWindow* w = app.ActiveDocument();
  if (!w) return;
  const int slot = app.documents.SlotOf(w);
  const auto serial = slot ? app.documents.Form(slot).serial : 0;
  w->Edit().SetVisible(false);
  ChooseColorizer(app, *w, !fromToolbar);
  if (!app.documents.IsAlive(w, serial)) return;
  w->Edit().SetVisible(true);
  w->Edit().SetFocus();
}

namespace {
// Clearing the insertion colour leaves bold and italic as they are.
Style PlainInsertion(EditControl& e) {
  const Style s = e.InsertionStyle();
  return MakeStyle(StyleKind::Plain, IsBold(s), IsItalic(s));
}
}  // namespace

void OnLessThanKeyDown(Application&, DocumentWindow& window) {
  // A "<" typed by hand stays black until the next pass.
  window.Edit().SetInsertionStyle(PlainInsertion(window.Edit()));
}

void OnGreaterThanKeyUp(Application&, DocumentWindow& window) {
  window.Edit().SetInsertionStyle(PlainInsertion(window.Edit()));
}

void OnQuoteKeyDown(Application& app, DocumentWindow& window) {
  EditControl& e = window.Edit();
  const std::string before = e.TextRange(0, e.SelStart());
  const auto lt = before.rfind('<');
  const auto gt = before.rfind('>');
  if (lt == std::string::npos || (gt != std::string::npos && gt > lt)) return;
  const auto quotes = std::count_if(before.begin() + static_cast<std::ptrdiff_t>(lt), before.end(),
                                    [](char c) { return c == '"' || c == '\''; });
  if (quotes % 2 == 0) {
    e.SetInsertionStyle(PlainInsertion(e));
  } else if (const int slot = app.documents.SlotOf(&window)) {
    app.documents.Form(slot).InQuote = true;
  }
}

void OnQuoteKeyUp(Application& app, DocumentWindow& window) {
  const int slot = app.documents.SlotOf(&window);
  if (slot == 0 || !app.documents.Form(slot).InQuote) return;
  window.Edit().SetInsertionStyle(PlainInsertion(window.Edit()));
  app.documents.Form(slot).InQuote = false;
}

void OnDocumentKeyPress(Application& app, int keyAscii) {
  app.colorizing.CancelColorizing = keyAscii == 27;
}

}  // namespace tessarine
