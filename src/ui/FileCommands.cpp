#include <QAction>
#include <QMenu>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include "core/Application.h"
#include "core/Backups.h"
#include "core/Documents.h"
#include "core/FileOpen.h"
#include "core/FileSave.h"
#include "core/NewDocument.h"
#include "ui/Commands.h"
#include "ui/MainWindow.h"
#include "ui/files/RecentFileMenu.h"
#include "ui/files/TemplatesDialog.h"
#include "ui/files/XmlDocumentDialog.h"

namespace tessarine {

namespace {

// Runs a file command on the application once it is there, then lets the menus follow the
// count of documents.
std::function<void()> Run(MainWindow* f, void (*command)(Application&)) {
  return [f, command] {
    if (!f->App()) return;
    command(*f->App());
    f->UpdateMenusForDocumentCount();
  };
}

void ShowTemplates(MainWindow& frame) {
  if (!frame.App()) return;
  TemplatesDialog dialog(*frame.App(), &frame);
  dialog.exec();
  frame.UpdateMenusForDocumentCount();
}

void NewFromButton(MainWindow& frame, const char* kind) {
  Application* app = frame.App();
  if (!app) return;
  NewDocument(*app, kind);
  frame.UpdateMenusForDocumentCount();
}

void NewButton(MainWindow& frame) {
  Application* app = frame.App();
  if (!app) return;
  NewFromButton(frame, "HTML");
  // Page Properties fills in the new page, once that dialog has its button.
  QAction* pageProps = frame.Button("tbrInsert", "Page Properties");
  if (app->settings.ShowPageProps && pageProps && pageProps->data().toBool() &&
      pageProps->isEnabled())
    pageProps->trigger();
}

void AddNewDropDown(MainWindow& frame) {
  QAction* newButton = frame.Button("tbrFile", "New");
  QToolBar* bar = frame.Toolbar("tbrFile");
  auto* button = bar ? qobject_cast<QToolButton*>(bar->widgetForAction(newButton)) : nullptr;
  if (!button) return;
  auto* menu = new QMenu(button);
  menu->setObjectName("tbrFileNewMenu");
  const std::pair<const char*, const char*> items[] = {{"HTML document", "HTML"},
                                                       {"ASP document", "ASP"},
                                                       {"CSS document", "CSS"},
                                                       {"XML document", "XML"},
                                                       {"XSL document", "XSL"}};
  MainWindow* f = &frame;
  for (const auto& [caption, key] : items) {
    QAction* a = menu->addAction(caption);
    a->setObjectName(QString("tbrFileNew/") + key);
    a->setData(QString(key));
    QObject::connect(a, &QAction::triggered, &frame, [f, key = key] { NewFromButton(*f, key); });
  }
  button->setMenu(menu);
  button->setPopupMode(QToolButton::MenuButtonPopup);
}

// What this layer asks of the windows, given once the application is there.
void ConnectApplication(MainWindow& frame, QTimer* timerAutoSave) {
  Application* app = frame.App();
  if (!app) return;
  MainWindow* f = &frame;
  app->files.onRecentMenuChanged = [f] { ShowRecentFileEntries(*f); };
  app->files.showXmlDocDialog = [f](XmlDocInputs& in) { return XmlDocumentDialog::Ask(f, in); };
  // "Apply Style..." and "Insert Inline Style..." have no use in a style sheet.
  app->files.enableStyleInserts = [f](bool enabled) {
    for (const char* name : {"mnuCSSsub1", "mnuCSSsub2"})
      if (QAction* a = f->Command(name)) a->setEnabled(enabled);
  };
  app->files.autoSaveTicks = 0;
  timerAutoSave->start();
}

}  // namespace

void BuildFileCommands(MainWindow& frame) {
  QMenu* file = frame.Menu("mnuFile");
  MainWindow* f = &frame;
  frame.AddCommand(file, "mnuNewFile", "&New...", false, [f] { ShowTemplates(*f); })
      ->setShortcut(QKeySequence::New);
  frame.AddCommand(file, "FileOpen", "&Open...", false, Run(f, OpenFileDialog))
      ->setShortcut(QKeySequence::Open);
  QMenu* projects = file->addMenu("&Projects");
  projects->setObjectName("mnuProjects");
  projects->setEnabled(false);
  QMenu* import = file->addMenu("I&mport");
  import->setObjectName("mnuImport");
  frame.AddCommand(import, "mnuOpenMac", "&Mac File...", false,
                   Run(f, [](Application& a) { ImportForeignFile(a, "Mac"); }));
  frame.AddCommand(import, "mnuOpenUNIX", "&UNIX File...", false,
                   Run(f, [](Application& a) { ImportForeignFile(a, "UNIX"); }));
  frame.AddCommand(import, "mnuImportTextFile", "Import &Text File...", false,
                   Run(f, ImportTextFileCommand));
  QAction* close = frame.AddCommand(file, "FileClose", "&Close", true, [f] {
    if (f->App()) CloseActiveDocument(*f->App());
  });
  QAction* insert =
      frame.AddCommand(file, "FileInsert", "&Insert File...", true, Run(f, InsertFile));
  file->addSeparator();
  QAction* save = frame.AddCommand(file, "FileSave", "&Save", true,
                                   Run(f, [](Application& a) { FileSaveCommand(a, false); }));
  save->setShortcut(QKeySequence::Save);
  QAction* saveAs = frame.AddCommand(file, "FileSaveAs", "Sa&ve As...", true,
                                     Run(f, [](Application& a) { FileSaveCommand(a, true); }));
  QAction* mac = frame.AddCommand(file, "mnuMacSave", "Save As M&ac format...", true,
                                  Run(f, [](Application& a) { ExportForeignFile(a, "Mac"); }));
  QAction* unixSave =
      frame.AddCommand(file, "mnuUNIXsave", "&Save As UNIX format...", true,
                       Run(f, [](Application& a) { ExportForeignFile(a, "UNIX"); }));
  for (QAction* a : {close, insert, save, saveAs, mac, unixSave}) frame.AddDocumentOnlyCommand(a);
  AddRecentFileEntries(frame, file);
  file->addSeparator();
  frame.AddCommand(file, "mnuFileExit", "E&xit", false, [f] { f->close(); });

  frame.BindButton("tbrFile", "New", [f] { NewButton(*f); });
  frame.BindButton("tbrFile", "Open", Run(f, OpenFileDialog));
  frame.BindButton("tbrFile", "Save", Run(f, [](Application& a) { FileSaveCommand(a, false); }));
  AddNewDropDown(frame);

  // Once a minute; the backups themselves count the minutes.
  auto* timerAutoSave = new QTimer(&frame);
  timerAutoSave->setObjectName("TimerAutoSave");
  timerAutoSave->setInterval(60000);
  QObject::connect(timerAutoSave, &QTimer::timeout, &frame, [f] {
    if (f->App()) TimerAutoSaveTick(*f->App());
  });
  frame.OnSettingsLoaded([f, timerAutoSave] { ConnectApplication(*f, timerAutoSave); });
}

}  // namespace tessarine
