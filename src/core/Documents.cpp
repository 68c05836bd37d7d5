#include "core/Documents.h"

#include "core/Application.h"
#include "core/Editing.h"
#include "core/FileSave.h"
#include "core/Styles.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"
#include "platform/Frame.h"
#include "platform/MessageBoxes.h"

namespace tessarine {

bool CaptionIsUntitledForPrompt(const std::string& caption) {
  return caption.compare(0, 8, "Untitled") == 0;
}

bool DocumentNeedsSaving(Application& app, int slot) {
  if (slot < 1 || slot > app.documents.UpperBound() || app.documents.State(slot).Deleted)
    return false;
  if (app.documents.State(slot).Changed) return true;
  DocumentWindow* w = app.documents.Form(slot).form;
  return w && w->Edit().IsModified();
}

void MarkDocumentUnchanged(Application& app, int slot) {
  if (slot < 1 || slot > app.documents.UpperBound()) return;
  app.documents.State(slot).Changed = false;
  if (DocumentWindow* w = app.documents.Form(slot).form) w->Edit().SetSavePoint();
}

DocumentWindow* NewDocumentWindow(Application& app) {
  DocumentList& docs = app.documents;
  if (!docs.AnyDocumentsLeft()) app.frame.SetToolbarButtonsEnabled(true);
  const int slot = docs.FindFreeIndex();
  docs.CurrentDocumentIndex = slot;
  docs.State(slot).Changed = false;

  DocumentWindow* window = app.frame.CreateDocumentWindow();
  docs.Attach(slot, window);
  window->SetCaption("Untitled:" + std::to_string(slot));
  window->SetMaximized(!app.settings.RTFCascaded);

  EditControl& edit = window->Edit();
  edit.SetVisible(false);
  // Typed text takes the chosen font; the colour stays black.
  const Style base = MakeStyle(StyleKind::Plain, app.settings.Bold);
  edit.SetBaseStyle(base);
  edit.SetInsertionStyle(base);
  edit.SetWordWrap(app.settings.WordWrap);
  edit.SetChangeHandler([&app, window] { OnDocumentChanged(app, *window); });
  window->SetQueryUnloadHandler([&app, window] { return QueryUnload(app, *window); });

  app.frame.SetSaveButtonEnabled(false);
  edit.SetVisible(true);
  window->Activate();
  return window;
}

void OnDocumentChanged(Application& app, DocumentWindow& window) {
  // The colouring passes' own formatting must not mark the document changed.
  if (app.colorizing.ColorizingInProgress == 1) return;
  const int slot = app.documents.SlotOf(&window);
  if (slot == 0) return;
  app.documents.State(slot).Changed = true;
  if (app.ActiveDocument() == &window) app.frame.SetSaveButtonEnabled(true);
  UpdateStatusOnChange(app, window);
}

void OnDocumentActivated(Application& app, DocumentWindow& window) {
  const int slot = app.documents.SlotOf(&window);
  if (slot == 0) return;
  app.frame.SetLengthPanel(window.Edit().Length());
  UpdateLinePanel(app, window);
  app.frame.SetSaveButtonEnabled(DocumentNeedsSaving(app, slot));
}

bool QueryUnload(Application& app, DocumentWindow& window) {
  DocumentList& docs = app.documents;
  const int slot = docs.SlotOf(&window);
  if (slot == 0) return true;
  if (DocumentNeedsSaving(app, slot)) {
    const std::string caption = window.Caption();
    const MsgAnswer answer = app.messages.Show(
        "The text in [" + caption + "] has changed.\r\nDo you want to save the changes?",
        MsgButtons::YesNoCancel, MsgIcon::Exclamation, app.title);
    if (answer == MsgAnswer::Cancel) {
      window.Edit().SetFocus();
      return false;
    }
    if (answer == MsgAnswer::Yes) {
      const std::string name = CaptionIsUntitledForPrompt(caption) ? SaveAsDialog(app) : caption;
      if (name.empty()) return false;
      // A failed write is shown and the window stays: its text exists nowhere else.
      if (!SaveFile(app, window, name, SaveMode::Prompt)) return false;
    }
  }
  docs.State(slot).Deleted = true;
  docs.Detach(slot);
  if (!docs.AnyDocumentsLeft()) app.frame.SetToolbarButtonsEnabled(false);
  return true;
}

bool CloseActiveDocument(Application& app) {
  DocumentWindow* w = app.ActiveDocument();
  return w ? w->RequestClose() : false;
}

namespace {
std::vector<DocumentWindow*> OpenWindows(Application& app) {
  std::vector<DocumentWindow*> out;
  for (int i = 1; i <= app.documents.UpperBound(); ++i) {
    if (!app.documents.State(i).Deleted && app.documents.Form(i).form)
      out.push_back(app.documents.Form(i).form);
  }
  return out;
}
}  // namespace

void CloseAllDocuments(Application& app) {
  for (DocumentWindow* w : OpenWindows(app)) w->RequestClose();
}

bool CloseAllForExit(Application& app) {
  for (DocumentWindow* w : OpenWindows(app))
    if (!w->RequestClose()) return false;
  return true;
}

void mnuWindowArrange(Application& app, int index) {
  if (index < 0 || index > 3) return;
  app.frame.Arrange(static_cast<WindowArrangement>(index));
}

void mnuWindowMove(Application& app, int index) {
  app.frame.ActivateNextDocument(index == 1);
  if (EditControl* e = app.ActiveEdit()) e->SetFocus();
}

}  // namespace tessarine
