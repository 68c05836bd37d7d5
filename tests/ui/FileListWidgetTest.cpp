// The side panel's file list and the project manager, in the main window.
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QFileSystemModel>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QThread>
#include <QTimer>
#include <QTreeView>
#include <filesystem>
#include <memory>

#include "WindowFixture.h"
#include "platform/SettingsStore.h"
#include "sitetools/Projects.h"
#include "ui/SciEdit.h"
#include "ui/panels/DriveList.h"
#include "ui/panels/FileListPanel.h"
#include "ui/panels/PictureViewerDialog.h"
#include "ui/sitetools/FolderFileLists.h"
#include "ui/sitetools/ProjectManagerDialog.h"
#include "ui/sitetools/SiteManagerWindow.h"

namespace tessarine {
namespace {

class FileListTest : public WindowFixture {
 protected:
  FileListPanel* Panel() { return frame->findChild<FileListPanel*>("fileListPanel"); }
  std::string Folder() { return dir.path().toStdString() + "/web"; }
  void Write(const std::string& name, const std::string& text) {
    std::filesystem::create_directories(std::filesystem::path(Folder() + "/" + name).parent_path());
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
  // The names listed, sorted, once they are the expected ones or the reader has had its time:
  // the folder is read in the background.
  QStringList Names(FileListPanel* panel, QStringList expected) {
    expected.sort(Qt::CaseInsensitive);
    auto listed = [panel] {
      QStringList names;
      auto* model = panel->FileList()->model();
      for (int row = 0; row < model->rowCount(); ++row)
        names << model->index(row, 0).data().toString();
      names.sort(Qt::CaseInsensitive);
      return names;
    };
    for (int i = 0; i < 1000 && listed() != expected; ++i) {
      QApplication::processEvents();
      QThread::msleep(5);
    }
    return listed();
  }
  // A name dragged out of the list and dropped on the active document, as the mouse does it.
  void DragOntoDocument(FileListPanel* panel, const QString& name) {
    auto* model = panel->FileList()->model();
    QModelIndex index;
    for (int row = 0; row < model->rowCount(); ++row)
      if (model->index(row, 0).data().toString() == name) index = model->index(row, 0);
    ASSERT_TRUE(index.isValid()) << name.toStdString();
    ASSERT_TRUE(model->flags(index) & Qt::ItemIsDragEnabled);
    std::unique_ptr<QMimeData> data(model->mimeData({index}));
    ASSERT_NE(data, nullptr);
    QWidget* target = Active()->Editor().viewport();
    const QPointF at(20, 10);
    QDragEnterEvent enter(at.toPoint(), Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    ASSERT_TRUE(enter.isAccepted());
    QDropEvent drop(at, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
    EXPECT_TRUE(drop.isAccepted());
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

TEST_F(FileListTest, APictureOrPageDraggedOntoADocumentBecomesItsTagAtTheCaret) {
  Write("page.html", "<P>one</P>");
  Write("other.html", "x");
  std::filesystem::create_directories(Folder() + "/img");
  ASSERT_TRUE(QImage(12, 34, QImage::Format_RGB32)
                  .save(QString::fromStdString(Folder() + "/img/pic.jpg"), "JPG"));
  Start();
  FileListPanel* panel = Panel();
  ASSERT_EQ(ShowFolder(panel, 2), 2);
  panel->Activate(QString::fromStdString(Folder() + "/page.html"));
  ASSERT_EQ(Active()->Caption(), Folder() + "/page.html");
  EditControl& edit = Active()->Edit();
  edit.SetSelStart(3);   // after "<P>"
  edit.SetSelLength(3);  // "one"
  DragOntoDocument(panel, "other.html");
  EXPECT_EQ(edit.Text(), "<P><A HREF=\"other.html\">one</A></P>");

  panel->SetFolder(QString::fromStdString(Folder() + "/img"));
  ASSERT_EQ(Names(panel, {"pic.jpg"}), QStringList{"pic.jpg"});
  edit.SetSelStart(edit.Length());
  edit.SetSelLength(0);
  DragOntoDocument(panel, "pic.jpg");
  EXPECT_EQ(
      edit.Text(),
      "<P><A HREF=\"other.html\">one</A></P><IMG SRC=\"img/pic.jpg\" WIDTH=\"12\" HEIGHT=\"34\">");
  // The drag leaves the list as it was, and a double click never edits a name.
  EXPECT_EQ(panel->FileCount(), 1);
  EXPECT_EQ(panel->FileList()->editTriggers(), QAbstractItemView::NoEditTriggers);
}

TEST_F(FileListTest, TheFilterEntriesChooseTheFilesShownAndStoreTheirWord) {
  for (const char* name : {"page.html", "x.XML", "pic.gif", "PHOTO.JPG", "notes.bmp", "README"})
    Write(name, "x");
  store.SaveSetting("Miscellaneous", "FileList", "image");
  Start();
  FileListPanel* panel = Panel();
  panel->SetFolder(QString::fromStdString(Folder()));
  ASSERT_TRUE(frame->Command("mnuImageview")->isChecked()) << "the stored word ticks its entry";
  EXPECT_EQ(Names(panel, {"pic.gif", "PHOTO.JPG"}), (QStringList{"PHOTO.JPG", "pic.gif"}));

  const struct {
    const char* command;
    const char* word;
    QStringList names;
  } cases[] = {
      {"mnuHTMLview", "html", {"page.html", "x.XML"}},
      {"mnuAllFileview",
       "all",
       {"notes.bmp", "page.html", "PHOTO.JPG", "pic.gif", "README", "x.XML"}},
      {"mnuBothview", "both", {"page.html", "PHOTO.JPG", "pic.gif", "x.XML"}},
      {"mnuImageview", "image", {"PHOTO.JPG", "pic.gif"}},
  };
  for (const auto& c : cases) {
    QAction* entry = frame->Command(c.command);
    ASSERT_NE(entry, nullptr) << c.command;
    entry->trigger();
    EXPECT_TRUE(entry->isChecked()) << c.command;
    EXPECT_EQ(store.GetSetting("Miscellaneous", "FileList", "?"), c.word);
    EXPECT_EQ(Names(panel, c.names), c.names) << c.command;
  }
  // The popup offers the same entries.
  auto* submenu = frame->Menu("mnuView")->findChild<QMenu*>("mnuFileListView");
  ASSERT_NE(submenu, nullptr);
  EXPECT_TRUE(submenu->actions().contains(frame->Command("mnuHTMLview")));
  EXPECT_TRUE(panel->Popup()->actions().contains(submenu->menuAction()));

  // A folder change reads the word again.
  store.SaveSetting("Miscellaneous", "FileList", "html");
  std::filesystem::create_directories(Folder() + "/sub");
  panel->FolderTree()->setCurrentIndex(static_cast<QFileSystemModel*>(panel->FolderTree()->model())
                                           ->index(QString::fromStdString(Folder() + "/sub")));
  QApplication::processEvents();
  EXPECT_EQ(panel->Folder().toStdString(), Folder() + "/sub");
  EXPECT_EQ(panel->FilterWord(), "html");
  EXPECT_EQ(app->files.SaveDirectory, Folder() + "/sub") << "the next file dialog starts there";
}

TEST_F(FileListTest, TheSplitOfTheFileListIsRestoredAtStartAndWrittenAtClose) {
  store.SaveSetting("Window", "File1Top", "3000");  // 200 pixels
  store.SaveSetting("Window", "WindowXSize", "12000");
  store.SaveSetting("Window", "WindowYSize", "9000");
  Start();
  FileListPanel* panel = Panel();
  for (int i = 0; i < 20; ++i) QApplication::processEvents();
  EXPECT_EQ(panel->SplitTop(), 200);
  panel->SetSplitTop(150);
  EXPECT_EQ(panel->SplitTop(), 150);
  for (int i = 1; i <= app->documents.UpperBound(); ++i) MarkDocumentUnchanged(*app, i);
  frame->close();
  EXPECT_EQ(store.GetSetting("Window", "File1Top", "?"), "2250");
}

TEST_F(FileListTest, AFolderOrDriveThatCannotBeReadIsRefusedWithItsMessage) {
  Write("page.html", "x");
  Write("sub/inner.html", "x");
  Start();
  FileListPanel* panel = Panel();
  panel->SetFolder(QString::fromStdString(Folder() + "/sub"));
  ASSERT_EQ(Names(panel, {"inner.html"}), QStringList{"inner.html"});

  // The folder goes while it is shown: the next refresh says so and shows the one above.
  std::filesystem::remove_all(Folder() + "/sub");
  messages.Clear();
  panel->Refresh();
  for (int i = 0; i < 1000 && messages.shown().empty(); ++i) {
    QApplication::processEvents();
    QThread::msleep(5);
  }
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].text, "The folder " + Folder() + "/sub cannot be found.");
  EXPECT_EQ(panel->Folder().toStdString(), Folder());
  EXPECT_EQ(Names(panel, {"page.html"}), QStringList{"page.html"});

  // A drive that is not there: its message, and the list goes back to the last good drive.
  DriveList* drives = panel->Drives();
  const QString before = drives->currentText();
  drives->SetDrives({"/", QString::fromStdString(Folder() + "/unplugged")});
  messages.Clear();
  drives->setCurrentIndex(1);
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].text, "Drive not ready.");
  EXPECT_EQ(drives->currentText(), "/");
  EXPECT_EQ(panel->Folder().toStdString(), Folder());

  // A folder given by a project that has gone is reported the same way.
  messages.Clear();
  panel->SetFolder(QString::fromStdString(Folder() + "/gone/deeper"));
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].text, "The folder " + Folder() + "/gone/deeper cannot be found.");
  EXPECT_EQ(panel->Folder().toStdString(), Folder());
}

TEST_F(FileListTest, ThePictureViewerShowsTheSizeAndKeepsItsGeometry) {
  std::filesystem::create_directories(Folder());
  const QString picture = QString::fromStdString(Folder() + "/p.jpg");
  ASSERT_TRUE(QImage(40, 30, QImage::Format_RGB32).save(picture, "JPG"));
  Write("broken.gif", "not a picture");
  store.SaveSetting("Window", "PicViewerWindowXSize", "6000");  // 400 pixels
  store.SaveSetting("Window", "PicViewerWindowYSize", "4500");  // 300 pixels
  Start();
  {
    PictureViewerDialog viewer(*app, picture, frame.get());
    viewer.show();
    QApplication::processEvents();
    EXPECT_TRUE(viewer.HasPicture());
    EXPECT_EQ(viewer.SizeText()->text(), "Width: 40 pixels         Height: 30 pixels");
    EXPECT_EQ(viewer.Picture()->statusTip(), "Width=40 pixels    Height=30 pixels");
    EXPECT_EQ(viewer.size(), QSize(400, 300));
    QStatusTipEvent tip(viewer.Picture()->statusTip());
    QApplication::sendEvent(&viewer, &tip);
    EXPECT_EQ(viewer.StatusLine()->currentMessage(), "Width=40 pixels    Height=30 pixels");
    viewer.resize(450, 330);
    viewer.accept();
  }
  EXPECT_EQ(store.GetSetting("Window", "PicViewerWindowXSize", "?"), "6750");
  EXPECT_EQ(store.GetSetting("Window", "PicViewerWindowYSize", "?"), "4950");

  PictureViewerDialog broken(*app, QString::fromStdString(Folder() + "/broken.gif"), frame.get());
  EXPECT_FALSE(broken.HasPicture());
  EXPECT_TRUE(broken.Picture()->text().contains("cannot be shown"));
}

TEST_F(FileListTest, ANewFolderWithoutANameIsAskedForAgain) {
  Write("page.html", "x");
  Start();
  FileListPanel* panel = Panel();
  panel->SetFolder(QString::fromStdString(Folder()));
  auto answer = [](const char* name) {
    return [name](QDialog* d) {
      d->findChild<QLineEdit*>()->setText(name);
      d->accept();
    };
  };
  OnDialog([this, answer](QDialog* d) {
    OnDialog(answer("made"));
    answer("")(d);
  });
  panel->Popup()->findChild<QAction*>("mnuRightFileMenu2NewFolder")->trigger();
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].text, "Please enter the name of the folder you wish to create.");
  EXPECT_TRUE(std::filesystem::is_directory(Folder() + "/made"));
}

}  // namespace
}  // namespace tessarine
