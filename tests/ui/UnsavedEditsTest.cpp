// An edit is never lost: every way out asks about a text that differs from its file, even
// when the change handler never saw the edit (an abandoned colouring pass holds it off).

#include <QKeyEvent>
#include <QMdiSubWindow>
#include <fstream>

#include "WindowFixture.h"
#include "core/Backups.h"
#include "core/Documents.h"
#include "ui/SciEdit.h"

namespace tessarine {
namespace {

class UnsavedEditsTest : public WindowFixture {
 protected:
  // Opens a page whose last tag never closes, so the colouring pass is abandoned, then
  // types one character over the selection it leaves.
  void OpenAbandonedPageAndType() {
    const std::string path = Path("unclosed.htm");
    std::ofstream(path, std::ios::binary) << "<P>Hello world</P>\r\nif a < b";
    Start(path);
    ASSERT_NE(Active(), nullptr);
    ASSERT_EQ(app->colorizing.ColorizingInProgress, 1) << "the pass must be abandoned";
    const int slot = app->documents.SlotOf(Active());
    ASSERT_FALSE(app->documents.State(slot).Changed);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, "x");
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_X, Qt::NoModifier, "x");
    QApplication::sendEvent(&Active()->Editor(), &press);
    QApplication::sendEvent(&Active()->Editor(), &release);
    QApplication::processEvents();
    ASSERT_NE(Active()->Edit().Text().find('x'), std::string::npos);
    // The told behaviour stands: the handler stayed away from the flag.
    ASSERT_FALSE(app->documents.State(slot).Changed);
    text = Active()->Edit().Text();
  }
  void ExpectAskedAndKept() {
    ASSERT_EQ(messages.shown().size(), 1u);
    EXPECT_EQ(messages.shown()[0].text, "The text in [" + Path("unclosed.htm") +
                                            "] has changed.\r\nDo you want to save the changes?");
    ASSERT_NE(Active(), nullptr) << "Cancel keeps the window";
    EXPECT_EQ(Active()->Edit().Text(), text);
  }
  std::string text;
};

TEST_F(UnsavedEditsTest, EveryWayOutAsksAboutAnEditTheHandlerMissed) {
  OpenAbandonedPageAndType();
  EXPECT_TRUE(frame->Button("tbrFile", "Save")->isEnabled());
  EXPECT_TRUE(Active()->isWindowModified());

  const std::pair<const char*, std::function<void()>> ways[] = {
      {"File > Close", [&] { frame->Command("FileClose")->trigger(); }},
      {"Close All", [&] { frame->Command("mnuCloseAll")->trigger(); }},
      {"File > Exit", [&] { frame->Command("mnuFileExit")->trigger(); }},
      {"window manager closes the document", [&] { Active()->SubWindow()->close(); }},
      {"window manager closes the frame", [&] { frame->close(); }},
  };
  for (const auto& [name, way] : ways) {
    SCOPED_TRACE(name);
    messages.Clear();
    messages.Queue(MsgAnswer::Cancel);
    way();
    QApplication::processEvents();
    ExpectAskedAndKept();
    if (HasFatalFailure()) return;
  }
}

TEST_F(UnsavedEditsTest, YesSavesTheEditAndAutoSaveBacksItUp) {
  OpenAbandonedPageAndType();
  app->settings.AutoSaveMinutes = 1;
  TimerAutoSaveTick(*app);
  EXPECT_EQ(Slurp(Path("Backup of unclosed.htm")), text + "\r\n");

  messages.Queue(MsgAnswer::Yes);
  frame->Command("FileClose")->trigger();
  QApplication::processEvents();
  EXPECT_EQ(frame->ActiveDocumentWindow(), nullptr);
  EXPECT_EQ(Slurp(Path("unclosed.htm")), text + "\r\n");
}

TEST_F(UnsavedEditsTest, UndoBackToTheSavedTextClosesWithoutAsking) {
  OpenAbandonedPageAndType();
  Active()->Edit().Undo();
  QApplication::processEvents();
  EXPECT_FALSE(Active()->isWindowModified());
  EXPECT_FALSE(frame->Button("tbrFile", "Save")->isEnabled());
  messages.Clear();
  frame->Command("FileClose")->trigger();
  QApplication::processEvents();
  EXPECT_TRUE(messages.shown().empty());
  EXPECT_EQ(frame->ActiveDocumentWindow(), nullptr);
}

}  // namespace
}  // namespace tessarine
