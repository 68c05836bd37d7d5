// The side panel's file list and the project manager, in the main window.
#include <QApplication>
#include <QComboBox>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QThread>
#include <QTimer>
#include <filesystem>

#include "WindowFixture.h"
#include "platform/SettingsStore.h"
#include "sitetools/Projects.h"
#include "ui/SciEdit.h"
#include "ui/panels/FileListPanel.h"
#include "ui/sitetools/ProjectManagerDialog.h"
#include "ui/sitetools/SiteManagerWindow.h"

namespace tessarine {
namespace {

class FileListTest : public WindowFixture {
 protected:
  FileListPanel* Panel() { return frame->findChild<FileListPanel*>("fileListPanel"); }
  std::string Folder() { return dir.path().toStdString() + "/web"; }
  void Write(const std::string& name, const std::string& text) {
    std::filesystem::create_directories(Folder());
    std::ofstream(Folder() + "/" + name, std::ios::binary) << text;
  }
  // Waits until the model has read the folder: it reads in the background.
  int ShowFolder(FileListPanel* panel, int expectedRows) {
    panel->SetFolder(QString::fromStdString(Folder()));
    auto rows = [panel] { return panel->FileCount(); };
    for (int i = 0; i < 1000 && rows() < expectedRows; ++i) {
      QApplication::processEvents();
      QThread::msleep(5);
    }
    return rows();
  }
  int OpenDocuments() {
    int open = 0;
    for (int i = 1; i <= app->documents.UpperBound(); ++i)
      open += app->documents.Form(i).form != nullptr;
    return open;
  }
};

TEST_F(FileListTest, TheFirstTabListsTheFolderAndOpensAPageIntoTheUntouchedWindow) {
  Write("page.html", "<TITLE>T</TITLE>");
  Write("notes.bmp", "BM");
  Start();
  FileListPanel* panel = Panel();
  ASSERT_NE(panel, nullptr);
  EXPECT_EQ(frame->SidePanel()->widget(0), panel);
  EXPECT_EQ(frame->SidePanel()->tabText(0), " File List");
  // The "both" pattern shows pages and pictures, not a bitmap.
  EXPECT_EQ(ShowFolder(panel, 1), 1);

  panel->Activate(QString::fromStdString(Folder() + "/page.html"));
  QApplication::processEvents();
  ASSERT_NE(Active(), nullptr);
  EXPECT_EQ(Active()->Caption(), Folder() + "/page.html");
  EXPECT_EQ(OpenDocuments(), 1) << "the untouched first window gave way";
  panel->Activate(QString::fromStdString(Folder() + "/notes.bmp"));
  EXPECT_EQ(OpenDocuments(), 1);
}

TEST_F(FileListTest, ProjectsAreMadeInTheDialogAndOpenedFromTheMenu) {
  Start();
  {
    ProjectManagerDialog dialog(*app, false);
    dialog.ProjectName()->setEditText("Site");
    dialog.ProjectFolder()->setText(QString::fromStdString(Folder()));
    dialog.Create();
    EXPECT_EQ(messages.shown().back().text, "Enter or browse for the Project's image folder.");
    dialog.ProjectName()->setEditText("Site");
    dialog.ProjectFolder()->setText(QString::fromStdString(Folder()));
    dialog.ImageFolder()->setText("/images");
    dialog.Create();
    EXPECT_EQ(messages.shown().back().text, "Your Project was created successfully.");
    EXPECT_EQ(dialog.ProjectName()->count(), 1);
  }
  QAction* recent = frame->Command("mnuProjectRecent1");
  ASSERT_NE(recent, nullptr);
  EXPECT_TRUE(recent->isVisible());
  EXPECT_TRUE(recent->text().contains("Site"));
  Write("a.html", "x");
  recent->trigger();
  EXPECT_EQ(app->settings.WorkingDirectory, Folder());
  EXPECT_EQ(app->settings.ImageDirectory, "/images");
  EXPECT_EQ(Panel()->Folder().toStdString(), Folder());
}

}  // namespace
}  // namespace tessarine
