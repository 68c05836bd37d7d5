// The File menu and the New button under the offscreen platform: bytes through the
// QScintilla control and back, the recent-file entries, templates and the New drop-down.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMenu>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/Application.h"
#include "platform/FileDialogs.h"
#include "platform/HeadlessPlatform.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"
#include "ui/DocumentForm.h"
#include "ui/MainWindow.h"
#include "ui/WindowFixture.h"
#include "ui/files/TemplatesDialog.h"
#include "ui/files/XmlDocumentDialog.h"

namespace tessarine {
namespace {

class FileCommandsTest : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    store.SaveSetting("Miscellaneous", "ShowPageProps", "0");
    std::tm t{};
    t.tm_year = 102;
    t.tm_mon = 0;
    t.tm_mday = 5;
    t.tm_hour = 15;
    t.tm_min = 7;
    headless.clock.Set(t);
  }
  // Runs `f` on the modal dialog of type T once it is up.
  template <typename T>
  void WhenModal(std::function<void(T&)> f) {
    QTimer::singleShot(0, [f] {
      auto* d = qobject_cast<T*>(QApplication::activeModalWidget());
      ASSERT_NE(d, nullptr);
      f(*d);
    });
  }
};

TEST_F(FileCommandsTest, AnyBytesSurviveTheEditControlAndARecentEntryReopensTheFile) {
  const std::string path = Path("odd.htm");
  const std::string bytes = std::string("<P>\xff\xfe\0nul\rcr\nlf\r\n\xc3(", 20);
  std::ofstream(path, std::ios::binary) << bytes;
  Start();
  dialogs.Queue(path);
  frame->Command("FileOpen")->trigger();
  ASSERT_NE(Active(), nullptr);
  EXPECT_EQ(Active()->Caption(), path);  // the untouched Untitled:1 gave way
  EXPECT_EQ(frame->MdiArea()->subWindowList().size(), 1);
  EditControl& e = Active()->Edit();
  EXPECT_EQ(e.Text(), bytes);
  e.SetSelStart(e.Length());
  e.ReplaceSel("!");
  frame->Button("tbrFile", "Save")->trigger();
  EXPECT_EQ(Slurp(path), bytes + "!\r\n");
  EXPECT_FALSE(frame->Button("tbrFile", "Save")->isEnabled());

  QAction* recent = frame->Command("mnuRecentFile1");
  EXPECT_TRUE(recent->isVisible());
  EXPECT_TRUE(frame->Command("mnuRecentFile0")->isVisible());
  EXPECT_EQ(recent->text().toStdString(), path);
  EXPECT_FALSE(frame->Command("mnuRecentFile2")->isVisible());

  ASSERT_TRUE(Active()->RequestClose());
  QApplication::processEvents();
  ASSERT_EQ(Active(), nullptr);
  recent->trigger();
  ASSERT_NE(Active(), nullptr);
  EXPECT_EQ(Active()->Edit().Text(), bytes + "!");
}

TEST_F(FileCommandsTest, TheNewDropDownMakesEachKind) {
  Start();
  QToolBar* bar = frame->Toolbar("tbrFile");
  auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(frame->Button("tbrFile", "New")));
  ASSERT_NE(button, nullptr);
  ASSERT_NE(button->menu(), nullptr);
  QStringList captions;
  for (QAction* a : button->menu()->actions()) captions << a->text();
  EXPECT_EQ(captions, (QStringList{"HTML document", "ASP document", "CSS document", "XML document",
                                   "XSL document"}));

  button->menu()->actions()[1]->trigger();
  EXPECT_EQ(Active()->Caption(), "Untitled:2");
  EXPECT_EQ(Active()->Edit().Text().compare(0, 24, "<%@ Language=VBScript %>"), 0);

  WhenModal<XmlDocumentDialog>([](XmlDocumentDialog& d) {
    d.findChild<QCheckBox*>("chkStandalone")->setChecked(true);
    d.findChild<QLineEdit*>("txtStyleSheetFilename")->setText("look.css");
    d.accept();
  });
  button->menu()->actions()[3]->trigger();
  EXPECT_EQ(Active()->Edit().Text(),
            "<?xml version=\"1.0\" standalone=\"yes\"?>\r\n"
            "<?xml-stylesheet type=\"text/css\" href=\"look.css\"?>\r\n\r\n");

  WhenModal<XmlDocumentDialog>([](XmlDocumentDialog& d) { d.reject(); });
  button->menu()->actions()[3]->trigger();
  EXPECT_EQ(Active()->Caption(), "Untitled:4");
  EXPECT_EQ(Active()->Edit().Text(), "");
}

TEST_F(FileCommandsTest, NewShowsTheTemplatesOfTheApplicationFolder) {
  std::ofstream(Path("Plain.tzt"), std::ios::binary) << "<P>template\r\n";
  std::ofstream(Path("notes.txt"), std::ios::binary) << "not one";
  Start();
  WhenModal<TemplatesDialog>([](TemplatesDialog& d) {
    ASSERT_EQ(d.File1()->count(), 1);
    EXPECT_EQ(d.File1()->item(0)->text(), "Plain.tzt");
    d.File1()->setCurrentRow(0);
    d.OK();
  });
  frame->Command("mnuNewFile")->trigger();
  EXPECT_EQ(Active()->Caption(), "Untitled:2");
  EXPECT_EQ(Active()->Edit().Text(), "<P>template");

  // Nothing chosen: the ordinary skeleton.
  WhenModal<TemplatesDialog>([](TemplatesDialog& d) { d.OK(); });
  frame->Command("mnuNewFile")->trigger();
  EXPECT_EQ(Active()->Caption(), "Untitled:3");
  EXPECT_EQ(Active()->Edit().Text().compare(0, 9, "<!DOCTYPE"), 0);
  EXPECT_FALSE(app->documents.State(3).Changed);
}

}  // namespace
}  // namespace tessarine
