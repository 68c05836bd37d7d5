// The advice to save an untitled document before a wizard.

#include <gtest/gtest.h>

#include "conventions/SaveWarning.h"
#include "core/TestApp.h"
#include "platform/CheckedQuestions.h"

namespace tessarine {
namespace {

using testing::TempDir;
using testing::TestApp;

TEST(SaveWarning, AppliesToUntitledDocumentsWhileTheSettingIsOn) {
  EXPECT_TRUE(SaveWarningApplies("on", "Untitled:1"));
  EXPECT_TRUE(SaveWarningApplies("", "Untitled:1"));
  EXPECT_TRUE(SaveWarningApplies("ON", "Untitled:2"));
  EXPECT_FALSE(SaveWarningApplies("off", "Untitled:1"));
  EXPECT_FALSE(SaveWarningApplies("on", "/home/u/page.htm"));
  EXPECT_FALSE(SaveWarningApplies("on", "untitled:1"));  // the caption test is exact
}

TEST(SaveWarning, YesSavesUnderTheChosenNameAndTheBoxTurnsItOff) {
  TempDir dir;
  TestApp t;
  auto& questions = t.platform.checkedQuestions;
  HeadlessDocumentWindow& w = t.NewWindow("<HTML></HTML>");
  questions.Queue(true, true);
  t.dialogs.Queue(dir / "page.htm");
  CheckSaveWarning(t.app);
  ASSERT_EQ(questions.asked().size(), 1u);
  const CheckedQuestion& q = questions.asked()[0];
  EXPECT_EQ(q.title, "Warning: Save document");
  EXPECT_EQ(q.text,
            "Tessarine advises you to save your document before inserting any images, hyperlinks "
            "or objects.\r\n\r\nClick 'YES' to save your document or click 'NO' to proceed "
            "without saving.");
  EXPECT_EQ(q.checkCaption, "Don't show me this again");
  EXPECT_EQ(w.Caption(), dir / "page.htm");
  EXPECT_EQ(testing::ReadAll(dir / "page.htm"), "<HTML></HTML>\r\n");
  EXPECT_EQ(t.store.GetSetting("Miscellaneous", "SaveWarning", ""), "off");

  // Off now: no more questions, even for a new untitled document.
  t.NewWindow();
  CheckSaveWarning(t.app);
  EXPECT_EQ(questions.asked().size(), 1u);
}

TEST(SaveWarning, NoOrACancelledSaveLeavesTheDocumentUntitled) {
  TestApp t;
  auto& questions = t.platform.checkedQuestions;
  HeadlessDocumentWindow& w = t.NewWindow("x");
  questions.Queue(false, false);
  CheckSaveWarning(t.app);
  questions.Queue(true, false);  // Yes, then Cancel in Save As
  CheckSaveWarning(t.app);
  EXPECT_EQ(questions.asked().size(), 2u);
  EXPECT_EQ(w.Caption(), "Untitled:1");
  EXPECT_FALSE(t.store.Has("Miscellaneous", "SaveWarning"));
}

}  // namespace
}  // namespace tessarine
