#include <QAction>
#include <QMenu>

#include "core/Application.h"
#include "core/Documents.h"
#include "core/FileSave.h"
#include "core/Startup.h"
#include "platform/DocumentWindow.h"
#include "platform/FileDialogs.h"
#include "ui/Commands.h"
#include "ui/MDIForm1.h"

namespace tessarine {

namespace {

void FileNew(MDIForm1& frame) {
  if (!frame.App()) return;
  NewDocumentWindow(*frame.App());
  frame.UpdateMenusForDocumentCount();
}

void FileOpen(MDIForm1& frame) {
  Application* app = frame.App();
  if (!app) return;
  FileDialogRequest r;
  r.title = "Open";
  r.filter = kOpenSaveFilter;
  r.filterIndex = app->files.LastFilterIndex ? app->files.LastFilterIndex : 2;
  r.initialFolder = app->settings.WorkingDirectory;
  const FileDialogAnswer a = app->fileDialogs.Show(r);
  if (a.path.empty()) return;
  app->files.LastFilterIndex = static_cast<std::int16_t>(a.filterIndex);
  OpenFile(*app, a.path);
  frame.UpdateMenusForDocumentCount();
}

void FileSave(MDIForm1& frame, bool saveAs) {
  Application* app = frame.App();
  DocumentWindow* w = app ? app->ActiveDocument() : nullptr;
  if (!w) return;
  const std::string name =
      saveAs || CaptionIsUntitledForPrompt(w->Caption()) ? SaveAsDialog(*app) : w->Caption();
  if (name.empty()) return;
  SaveFile(*app, *w, name, SaveMode::Command);
  frame.SetSaveButtonEnabled(false);
}

}  // namespace

void BuildFileCommands(MDIForm1& frame) {
  QMenu* file = frame.Menu("mnuFile");
  MDIForm1* f = &frame;
  frame.AddCommand(file, "mnuNewFile", "&New", false, [f] { FileNew(*f); })
      ->setShortcut(QKeySequence::New);
  frame.AddCommand(file, "FileOpen", "&Open...", false, [f] { FileOpen(*f); })
      ->setShortcut(QKeySequence::Open);
  QMenu* projects = file->addMenu("&Projects");
  projects->setObjectName("mnuProjects");
  projects->setEnabled(false);
  QMenu* import = file->addMenu("&Import");
  import->setObjectName("mnuImport");
  frame.AddCommand(import, "mnuOpenMac", "&Mac File...", false, [] {})->setEnabled(false);
  frame.AddCommand(import, "mnuOpenUNIX", "&UNIX File...", false, [] {})->setEnabled(false);
  QAction* close = frame.AddCommand(file, "FileClose", "&Close", true, [f] {
    if (f->App()) CloseActiveDocument(*f->App());
  });
  QAction* save = frame.AddCommand(file, "FileSave", "&Save", true, [f] { FileSave(*f, false); });
  save->setShortcut(QKeySequence::Save);
  QAction* saveAs =
      frame.AddCommand(file, "FileSaveAs", "Save &As...", true, [f] { FileSave(*f, true); });
  for (QAction* a : {close, save, saveAs}) frame.AddDocumentOnlyCommand(a);
  file->addSeparator();
  frame.AddCommand(file, "mnuFileExit", "E&xit", false, [f] { f->close(); });

  frame.BindButton("tbrFile", "New", [f] { FileNew(*f); });
  frame.BindButton("tbrFile", "Open", [f] { FileOpen(*f); });
  frame.BindButton("tbrFile", "Save", [f] { FileSave(*f, false); });
}

}  // namespace tessarine
