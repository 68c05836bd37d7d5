// The status panels tell the truth: the caret's line after every open, switch and close,
// nothing while no document is open, and CAPS and INS lit only while their mode is on.

#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <fstream>

#include "WindowFixture.h"
#include "ui/SciEdit.h"

namespace tessarine {
namespace {

class StatusPanelsTest : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    store.SaveSetting("Miscellaneous", "ShowPageProps", "0");  // New opens no dialog
  }
  QString Panel(int i) {
    auto* l = frame->findChild<QLabel*>(QString("StatusBar1Panel%1").arg(i));
    return l ? l->text() : "(none)";
  }
  QLabel* Label(int i) { return frame->findChild<QLabel*>(QString("StatusBar1Panel%1").arg(i)); }
  void Key(QWidget* to, Qt::Key key, const QString& text = {},
           Qt::KeyboardModifiers mods = Qt::NoModifier) {
    QKeyEvent press(QEvent::KeyPress, key, mods, text);
    QKeyEvent release(QEvent::KeyRelease, key, mods, text);
    QApplication::sendEvent(to, &press);
    QApplication::sendEvent(to, &release);
    QApplication::processEvents();
  }
};

TEST_F(StatusPanelsTest, LinePanelFollowsOpenSwitchAndClose) {
  Start();
  SciEdit& first = Active()->Editor();
  EXPECT_EQ(Panel(4), QString("Line: %1").arg(1 + first.LineFromPosition(first.SelStart())));
  const std::string path = Path("three.htm");
  std::ofstream(path, std::ios::binary) << "one\r\ntwo\r\nthree";
  dialogs.Queue(path);
  frame->Command("FileOpen")->trigger();
  QApplication::processEvents();
  SciEdit& opened = Active()->Editor();
  opened.SetSelStart(opened.Length());
  Key(&opened, Qt::Key_End);
  EXPECT_EQ(Panel(4), "Line: 3");

  frame->Button("tbrFile", "New")->trigger();
  QApplication::processEvents();
  SciEdit& fresh = Active()->Editor();
  const QString newLine = QString("Line: %1").arg(1 + fresh.LineFromPosition(fresh.SelStart()));
  EXPECT_EQ(Panel(4), newLine);
  frame->MdiArea()->activatePreviousSubWindow();
  QApplication::processEvents();
  EXPECT_EQ(Active()->Caption(), path);
  EXPECT_EQ(Panel(4), "Line: 3") << "after the switch back";
  EXPECT_EQ(Panel(3), "15 bytes");

  ASSERT_TRUE(Active()->RequestClose());
  QApplication::processEvents();
  EXPECT_EQ(Panel(4), newLine) << "the remaining document's line";
  ASSERT_TRUE(Active()->RequestClose());
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::processEvents();
  EXPECT_EQ(Active(), nullptr);
  EXPECT_EQ(Panel(3), "");
  EXPECT_EQ(Panel(4), "");
}

TEST_F(StatusPanelsTest, CapsAndInsertLitOnlyWhileOn) {
  Start();
  SciEdit& e = Active()->Editor();
  e.setFocus();
  QApplication::processEvents();
  EXPECT_EQ(Panel(5), "CAPS");
  EXPECT_EQ(Panel(6), "INS");
  EXPECT_FALSE(Label(5)->isEnabled());
  EXPECT_FALSE(Label(6)->isEnabled());
  if (QApplication::focusWidget() != &e) GTEST_SKIP() << "no keyboard focus on this platform";

  Key(&e, Qt::Key_CapsLock);
  EXPECT_TRUE(Label(5)->isEnabled());
  Key(&e, Qt::Key_A, "a");  // a small letter without Shift: the lock is off after all
  EXPECT_FALSE(Label(5)->isEnabled());
  Key(&e, Qt::Key_A, "a", Qt::ShiftModifier);  // Shift gave a small letter: the lock is on
  EXPECT_TRUE(Label(5)->isEnabled());

  Key(&e, Qt::Key_Insert);
  EXPECT_TRUE(Label(6)->isEnabled());
  Key(&e, Qt::Key_Insert);
  EXPECT_FALSE(Label(6)->isEnabled());
}

}  // namespace
}  // namespace tessarine
