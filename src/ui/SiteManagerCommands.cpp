// The site manager, global replace, projects and the file list.

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QPointer>
#include <QTabWidget>

#include "core/Application.h"
#include "core/Startup.h"
#include "panels/FileListFilters.h"
#include "platform/DocumentWindow.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"
#include "settings/Settings.h"
#include "sitetools/LinkCheck.h"
#include "sitetools/Projects.h"
#include "ui/Commands.h"
#include "ui/MainWindow.h"
#include "ui/panels/DriveList.h"
#include "ui/panels/FileListPanel.h"
#include "ui/sitetools/GlobalReplaceDialog.h"
#include "ui/sitetools/ProjectManagerDialog.h"
#include "ui/sitetools/SiteManagerWindow.h"

namespace tessarine {

void VerifyActiveDocumentCommand(MainWindow& frame);
void VerifySelectedFileCommand(MainWindow& frame, const std::string& folder,
                               const std::string& name);

namespace {

QString Q(const std::string& s) {
  return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
}

void ShowSiteManager(MainWindow& frame) {
  if (!frame.App()) return;
  SiteManagerWindow window(*frame.App(), &frame);
  window.exec();
}

void ShowGlobalReplace(MainWindow& frame) {
  if (!frame.App()) return;
  GlobalReplaceDialog dialog(*frame.App(), &frame);
  dialog.exec();
}

// Opens the site manager on one page, or says why not.
void VerifyPage(MainWindow& frame, const PageToVerify& page) {
  Application& app = *frame.App();
  if (!page.ok) {
    app.messages.Show(page.message, MsgButtons::OK, MsgIcon::None, app.title);
    return;
  }
  SiteManagerWindow window(app, &frame);
  window.OpenForPage(Q(page.folder), Q(page.fileName));
  window.exec();
}

void ShowProjectManager(MainWindow& frame, bool openMode) {
  if (!frame.App()) return;
  ProjectManagerDialog dialog(*frame.App(), openMode, &frame);
  dialog.exec();
}

// The recent-project entries: the first five slots that hold a project.
void RebuildProjectMenu(MainWindow& frame, QMenu* projects) {
  Application& app = *frame.App();
  for (int slot = 1; slot <= kProjectMenuEntries; ++slot) {
    QAction* entry = projects->findChild<QAction*>(QString("mnuProjectRecent%1").arg(slot));
    const Project project = ReadProject(app.store, slot);
    if (!entry || project.name.empty()) continue;
    entry->setText(QString("&%1 %2").arg(slot).arg(Q(project.name)));
    entry->setVisible(true);
  }
}

void BuildProjectMenu(MainWindow& frame) {
  MainWindow* f = &frame;
  QMenu* projects = frame.Menu("mnuFile")->findChild<QMenu*>("mnuProjects");
  if (!projects) return;
  projects->setEnabled(true);
  frame.AddCommand(projects, "mnuOpenProject", "&Open Project...", false,
                   [f] { ShowProjectManager(*f, true); });
  frame.AddCommand(projects, "mnuProjectManager", "Project &Manager...", false,
                   [f] { ShowProjectManager(*f, false); });
  projects->addSeparator();
  for (int slot = 1; slot <= kProjectMenuEntries; ++slot) {
    QAction* entry =
        frame.AddCommand(projects, QString("mnuProjectRecent%1").arg(slot), "", false, [f, slot] {
          Application& app = *f->App();
          OpenProjectSlot(app.store, app.settings, slot);
          app.files.SaveDirectory = app.settings.WorkingDirectory;
          if (app.sites.showFolderInFileList) {
            app.sites.showFolderInFileList(app.settings.WorkingDirectory);
          }
        });
    entry->setVisible(false);
  }
  frame.OnSettingsLoaded([f, projects] {
    f->App()->sites.rebuildProjectMenu = [f, projects] { RebuildProjectMenu(*f, projects); };
    RebuildProjectMenu(*f, projects);
  });
}

FileListPanel* FileListOf(MainWindow& frame) {
  return frame.SidePanel() ? frame.SidePanel()->findChild<FileListPanel*>("fileListPanel")
                           : nullptr;
}

// What the file list shows: the four entries of View, which store their word.
void BuildFileListFilters(MainWindow& frame) {
  MainWindow* f = &frame;
  QMenu* view = frame.Menu("mnuView");
  auto* shown = new QMenu("Files &Shown in File List", view);
  shown->setObjectName("mnuFileListView");
  view->insertMenu(frame.Command("mnuPreferences"), shown);
  auto* group = new QActionGroup(shown);
  for (const FileListFilter& filter : kFileListFilters) {
    QAction* a = frame.AddCommand(shown, filter.command, filter.caption, false,
                                  [f, word = std::string(filter.word)] {
                                    if (!f->App()) return;
                                    f->App()->store.SaveSetting("Miscellaneous", "FileList", word);
                                    if (FileListPanel* panel = FileListOf(*f))
                                      panel->SetFilterWord(word);
                                  });
    a->setCheckable(true);
    group->addAction(a);
  }
  frame.OnSettingsLoaded([f] {
    const std::string word =
        FileListWord(f->App()->store.GetSetting("Miscellaneous", "FileList", "both"));
    for (const FileListFilter& filter : kFileListFilters) {
      if (word == filter.word) f->Command(filter.command)->setChecked(true);
    }
  });
}

// The file list takes the first tab of the side panel.
void BuildFileList(MainWindow& frame) {
  MainWindow* f = &frame;
  BuildFileListFilters(frame);
  frame.OnSettingsLoaded([f] {
    Application& app = *f->App();
    QTabWidget* side = f->SidePanel();
    auto* panel = new FileListPanel(app);
    if (side->count() > 0 && side->widget(0)->objectName() == "picSideBar0") {
      QWidget* placeholder = side->widget(0);
      side->removeTab(0);
      placeholder->deleteLater();
    }
    side->insertTab(0, panel, " File List");
    side->setCurrentIndex(0);
    panel->SetFilterWord(app.store.GetSetting("Miscellaneous", "FileList", "both"));
    // A working folder that has gone since the last run: the nearest one left, quietly.
    panel->SetFolder(Q(app.settings.WorkingDirectory), false);
    const std::string top = app.store.GetSetting("Window", "File1Top", "");
    if (!top.empty()) panel->SetSplitTop(static_cast<int>(Val(top)) / kTwipsPerPixel);
    panel->Popup()->addSeparator();
    panel->Popup()->addMenu(f->Menu("mnuView")->findChild<QMenu*>("mnuFileListView"));
    QAction* hide = panel->Popup()->addAction("&Hide File List");
    hide->setObjectName("mnuFileList");
    QObject::connect(hide, &QAction::triggered, f,
                     [f] { f->Command("mnuViewFileList")->trigger(); });
    panel->verifyFile = [f](const std::string& folder, const std::string& name) {
      VerifySelectedFileCommand(*f, folder, name);
    };
    app.sites.showFolderInFileList = [panel](const std::string& folder) {
      panel->SetFolder(Q(folder));
    };
  });
}

}  // namespace

void VerifyActiveDocumentCommand(MainWindow& frame) {
  Application* app = frame.App();
  if (!app || !app->ActiveDocument()) return;
  VerifyPage(frame, VerifyActiveDocument(app->ActiveDocument()->Caption()));
}

void VerifySelectedFileCommand(MainWindow& frame, const std::string& folder,
                               const std::string& name) {
  if (!frame.App()) return;
  VerifyPage(frame, VerifySelectedFile(folder, name));
}

void BuildSiteManagerCommands(MainWindow& frame) {
  MainWindow* f = &frame;
  QMenu* tools = frame.Menu("mnuTools");
  tools->addSeparator();
  frame.AddCommand(tools, "mnuSiteManager", "Site &Manager...", false,
                   [f] { ShowSiteManager(*f); });
  frame.AddCommand(tools, "mnuVerifyLinks", "Verify &Links...", true,
                   [f] { VerifyActiveDocumentCommand(*f); });
  frame.LiveCommand("mnuGlobalReplace", false, [f] { ShowGlobalReplace(*f); });
  frame.BindButton("tbrTools", "Check Links", [f] { VerifyActiveDocumentCommand(*f); });
  frame.RegisterDialog("GlobalReplace", [f](const std::string&) { ShowGlobalReplace(*f); });
  frame.RegisterDialog("SiteManager", [f](const std::string&) { ShowSiteManager(*f); });
  frame.RegisterDialog("ProjectManager",
                       [f](const std::string&) { ShowProjectManager(*f, false); });
  BuildProjectMenu(frame);
  BuildFileList(frame);
}

}  // namespace tessarine
