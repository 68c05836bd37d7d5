#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>

#include "core/Application.h"
#include "core/Editing.h"
#include "core/Find.h"
#include "ui/Commands.h"
#include "ui/FindReplace.h"
#include "ui/MainWindow.h"

namespace tessarine {

namespace {

// The dialog is made on first use and lives beside the frame from then on.
FindReplaceDialog& FindDialog(MainWindow& frame) {
  auto* dialog =
      frame.findChild<FindReplaceDialog*>("FindReplaceDialog", Qt::FindDirectChildrenOnly);
  if (!dialog) dialog = new FindReplaceDialog(*frame.App(), &frame);
  return *dialog;
}

void ShowFindDialog(MainWindow& frame, bool replace) {
  if (frame.App() && frame.App()->ActiveEdit()) FindDialog(frame).ShowFor(replace);
}

void FindNext(MainWindow& frame) {
  if (frame.App() && !mnuSFindNext(*frame.App())) ShowFindDialog(frame, false);
}

void FindFromBox(MainWindow& frame) {
  Application* app = frame.App();
  QComboBox* box = frame.FindCombo();
  if (!app || !app->ActiveEdit() || box->currentText().isEmpty()) return;
  const QString typed = box->currentText();
  std::vector<std::string> history;
  for (int i = 0; i < box->count(); ++i)
    history.push_back(QtTextToDocument(*app, box->itemText(i)));
  if (!QuickFind(*app, QtTextToDocument(*app, typed), history)) return;
  box->clear();
  for (const std::string& entry : history) box->addItem(DocumentTextToQt(*app, entry));
  box->setEditText(typed);
}

}  // namespace

void BuildEditCommands(MainWindow& frame) {
  QMenu* edit = frame.Menu("mnuEdit");
  MainWindow* f = &frame;
  const auto command = [&frame, edit](const char* name, const char* caption,
                                      void (*run)(Application&), QKeySequence keys) {
    MainWindow* fp = &frame;
    QAction* a = frame.AddCommand(edit, name, caption, true, [fp, run] {
      if (fp->App()) run(*fp->App());
    });
    a->setShortcut(keys);
    frame.AddDocumentOnlyCommand(a);
    return a;
  };
  const auto separator = [&frame, edit] { frame.AddDocumentOnlyCommand(edit->addSeparator()); };

  command("mnuUndo", "&Undo", mnuUndo, QKeySequence::Undo);
  command("mnuRedo", "R&edo", mnuRedo, QKeySequence("Ctrl+Y"))
      ->setShortcuts({QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")});
  separator();
  command("cut", "Cu&t", mnuCut, QKeySequence::Cut);
  command("copy", "&Copy", mnuCopy, QKeySequence::Copy);
  command("paste", "&Paste", mnuPaste, QKeySequence::Paste);
  separator();
  command("mnuSelectAll", "Select &All", mnuSelectAll, QKeySequence::SelectAll);
  separator();
  for (auto [name, caption, replace] :
       {std::tuple{"mnuSFind", "&Find...", false}, std::tuple{"mnuReplace", "&Replace...", true}}) {
    QAction* a = frame.AddCommand(edit, name, caption, true,
                                  [f, replace = replace] { ShowFindDialog(*f, replace); });
    frame.AddDocumentOnlyCommand(a);
    if (!replace) a->setShortcut(QKeySequence::Find);
  }
  QAction* next = frame.AddCommand(edit, "mnuSFindNext", "Find &Next", true, [f] { FindNext(*f); });
  next->setShortcut(QKeySequence::FindNext);
  frame.AddDocumentOnlyCommand(next);
  separator();
  QAction* wrap = frame.AddCommand(edit, "mnuWordWrap", "&Word Wrap", true, [f] {
    if (f->App()) f->Command("mnuWordWrap")->setChecked(mnuWordWrap(*f->App()));
  });
  wrap->setCheckable(true);
  frame.AddDocumentOnlyCommand(wrap);
  frame.OnSettingsLoaded([f, wrap] { wrap->setChecked(f->App()->settings.WordWrap); });
  separator();
  // A later site tool.
  frame.AddCommand(edit, "mnuGlobalReplace", "&Global Find and Replace...", false, [] {})
      ->setEnabled(false);

  frame.BindButton("tbrFile", "Cut", [f] { mnuCut(*f->App()); });
  frame.BindButton("tbrFile", "Copy", [f] { mnuCopy(*f->App()); });
  frame.BindButton("tbrFile", "Paste", [f] { mnuPaste(*f->App()); });
  frame.BindButton("tbrFile", "Find", [f] { ShowFindDialog(*f, false); });

  QComboBox* box = frame.FindCombo();
  box->setToolTip("Type and press the Enter key to find text in the document");
  box->setInsertPolicy(QComboBox::NoInsert);
  QObject::connect(box->lineEdit(), &QLineEdit::returnPressed, box, [f] { FindFromBox(*f); });
  // While the find box has the focus the document's key handlers keep still.
  QObject::connect(qApp, &QApplication::focusChanged, box, [f, box](QWidget*, QWidget* now) {
    if (f->App() && now && (now == box || box->isAncestorOf(now)))
      f->App()->editing.SuppressEditKeys = true;
  });
}

}  // namespace tessarine
