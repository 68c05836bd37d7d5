// The main window under Qt's offscreen platform, wired to the real logic.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QToolBar>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/Application.h"
#include "core/Styles.h"
#include "platform/FileDialogs.h"
#include "platform/HeadlessPlatform.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"
#include "ui/DocumentForm.h"
#include "ui/MainWindow.h"
#include "ui/SciEdit.h"
#include "ui/WindowFixture.h"

namespace tessarine {
namespace {

class MainWindowTest : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    // These tests type into empty documents, and New opens no page properties.
    store.SaveSetting("Miscellaneous", "BlankNewDoc", "1");
    store.SaveSetting("Miscellaneous", "ShowPageProps", "0");
  }
};

TEST_F(MainWindowTest, FirstStartShowsUntitledOneWithTheFramesToolbars) {
  Start();
  // A maximised child shows its caption after the frame's.
  EXPECT_TRUE(frame->windowTitle().startsWith("Tessarine 2002"));
  ASSERT_NE(Active(), nullptr);
  EXPECT_EQ(Active()->Caption(), "Untitled:1");
  EXPECT_EQ(store.GetSetting("Miscellaneous", "FirstRun", ""), "no");
  EXPECT_TRUE(
      std::filesystem::exists(dir.path().toStdString() + "/data/applications/tessarine.desktop"));

  for (const char* bar : {"tbrFile", "tbrFormat", "tbrInsert", "tbrTools"})
    EXPECT_TRUE(frame->Toolbar(bar)->isVisible()) << bar;
  EXPECT_EQ(frame->Button("tbrFile", "Open")->toolTip(), "Open (Ctrl-O)");
  EXPECT_EQ(frame->Button("tbrTools", "Color Tags")->toolTip(), "Refresh HTML tag colors (F2)");
  EXPECT_EQ(frame->Button("tbrInsert", "Frames")->toolTip(), "Frame Wizard");
  EXPECT_TRUE(frame->Button("tbrFormat", "Bold")->isEnabled());
  EXPECT_TRUE(frame->Button("tbrInsert", "Page Properties")->isEnabled());
  // Nothing changed yet: no Save.
  EXPECT_FALSE(frame->Button("tbrFile", "Save")->isEnabled());
}

TEST_F(MainWindowTest, BoldWrapsTheSelectionInTheConfiguredCase) {
  store.SaveSetting("Miscellaneous", "TagCase", "lower");
  Start();
  EditControl& e = Active()->Edit();
  e.ReplaceSel("say Hello");
  e.Select(4, 5);
  frame->Command("mnuPhysicalStyles0")->trigger();
  EXPECT_EQ(e.Text(), "say <b>Hello</b>");
  EXPECT_EQ(e.SelText(), "Hello");
  EXPECT_TRUE(app->documents.State(1).Changed);
  EXPECT_TRUE(frame->Button("tbrFile", "Save")->isEnabled());
  frame->Button("tbrFormat", "Italic")->trigger();
  EXPECT_EQ(e.Text(), "say <b><i>Hello</i></b>");
}

TEST_F(MainWindowTest, RefreshColoursTheDocument) {
  Start();
  EditControl& e = Active()->Edit();
  e.ReplaceSel("x <TD A=\"1\">");
  e.SetSelStart(1);
  frame->Command("mnuColorize")->trigger();
  EXPECT_EQ(KindOf(e.StyleAt(0)), StyleKind::Plain);
  EXPECT_EQ(KindOf(e.StyleAt(2)), StyleKind::Table);
  EXPECT_EQ(KindOf(e.StyleAt(8)), StyleKind::Quote);
  EXPECT_EQ(KindOf(e.StyleAt(11)), StyleKind::Table);
  EXPECT_EQ(e.SelStart(), 1);
  EXPECT_TRUE(e.IsVisible());
  EXPECT_EQ(frame->StatusText(), "Press F1 for help");
  EXPECT_EQ(app->colorizing.ColorizingInProgress, 0);
}

TEST_F(MainWindowTest, OpenEditSaveAndReopenAFile) {
  const std::string path = Path("page.htm");
  std::ofstream(path, std::ios::binary) << "<P>one</P>\r\n";
  Start(path);
  ASSERT_NE(Active(), nullptr);
  EXPECT_EQ(Active()->Caption(), path);
  EditControl& e = Active()->Edit();
  EXPECT_EQ(e.Text(), "<P>one</P>");  // one trailing CR LF is the save's own
  EXPECT_EQ(KindOf(e.StyleAt(0)), StyleKind::Tag);
  e.SetSelStart(e.Length());
  e.ReplaceSel("\r\ntwo");
  frame->Command("FileSave")->trigger();
  EXPECT_EQ(Slurp(path), "<P>one</P>\r\ntwo\r\n");
  EXPECT_FALSE(app->documents.State(1).Changed);

  ASSERT_TRUE(Active()->RequestClose());
  QApplication::processEvents();
  EXPECT_EQ(frame->ActiveDocumentWindow(), nullptr);
  EXPECT_FALSE(frame->Button("tbrFormat", "Bold")->isEnabled());

  dialogs.Queue(path);
  frame->Command("FileOpen")->trigger();
  ASSERT_NE(Active(), nullptr);
  EXPECT_EQ(Active()->Edit().Text(), "<P>one</P>\r\ntwo");
  EXPECT_EQ(Active()->Caption(), path);
}

TEST_F(MainWindowTest, ClosingAskedAboutChangesAndCancelKeepsEverything) {
  Start();
  Active()->Edit().ReplaceSel("text");
  messages.Queue(MsgAnswer::Cancel);
  frame->close();
  QApplication::processEvents();
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].text,
            "The text in [Untitled:1] has changed.\r\nDo you want to save the changes?");
  EXPECT_EQ(messages.shown()[0].buttons, MsgButtons::YesNoCancel);
  ASSERT_NE(Active(), nullptr);
  EXPECT_FALSE(store.Has("Window", "WindowXSize"));

  // No: the window goes and the geometry is kept in twips.
  messages.Queue(MsgAnswer::No);
  frame->setGeometry(10, 20, 800, 600);
  frame->close();
  QApplication::processEvents();
  EXPECT_EQ(store.GetSetting("Window", "WindowXSize", ""), std::to_string(800 * 15));
  EXPECT_EQ(store.GetSetting("Window", "WindowYSize", ""), std::to_string(600 * 15));
  frame.reset();
}

TEST_F(MainWindowTest, DoubleClickOnTheClockInsertsDateAndTime) {
  std::tm now{};
  now.tm_year = 126;
  now.tm_mon = 6;
  now.tm_mday = 4;
  now.tm_hour = 15;
  now.tm_min = 7;
  headless.clock.Set(now);
  Start();
  auto* clock = frame->findChild<QLabel*>("StatusBar1Clock");
  ASSERT_NE(clock, nullptr);
  EXPECT_EQ(clock->toolTip(), "Double-click to insert current time and date");
  const QPointF at(2, 2);
  QMouseEvent dbl(QEvent::MouseButtonDblClick, at, clock->mapToGlobal(at), Qt::LeftButton,
                  Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(clock, &dbl);
  EXPECT_EQ(Active()->Edit().Text(), "July 04, 2026   3:07 PM");
}

TEST_F(MainWindowTest, TilingPlacesWindowsAboveOrBesideEachOther) {
  Start();
  frame->Button("tbrFile", "New")->trigger();
  frame->Command("mnuWindowArrange1")->trigger();
  auto subs = frame->MdiArea()->subWindowList();
  ASSERT_EQ(subs.size(), 2);
  EXPECT_EQ(subs[0]->width(), subs[1]->width());
  EXPECT_NE(subs[0]->y(), subs[1]->y());
  frame->Command("mnuWindowArrange2")->trigger();
  EXPECT_EQ(subs[0]->height(), subs[1]->height());
  EXPECT_NE(subs[0]->x(), subs[1]->x());
}

TEST_F(MainWindowTest, SlotsAreReusedLowestFirst) {
  Start();
  frame->Button("tbrFile", "New")->trigger();
  frame->Button("tbrFile", "New")->trigger();
  auto subs = frame->MdiArea()->subWindowList(QMdiArea::CreationOrder);
  ASSERT_EQ(subs.size(), 3);
  auto* first = qobject_cast<DocumentForm*>(subs[0]->widget());
  ASSERT_TRUE(first->RequestClose());
  QApplication::processEvents();
  frame->Button("tbrFile", "New")->trigger();
  EXPECT_EQ(Active()->Caption(), "Untitled:1");
}

}  // namespace
}  // namespace tessarine
