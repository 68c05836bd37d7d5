// The document list, the windows' life and the save prompt on closing.

#include <gtest/gtest.h>

#include "core/TestApp.h"

namespace tessarine {
namespace {

using testing::ReadAll;
using testing::TempDir;
using testing::TestApp;

std::string PromptFor(const std::string& caption) {
  return "The text in [" + caption + "] has changed.\r\nDo you want to save the changes?";
}

TEST(DocumentList, ClosingWindowOneOfThreeReusesSlotOne) {
  TestApp t;
  auto& first = t.NewWindow();
  t.NewWindow();
  auto& third = t.NewWindow();
  EXPECT_EQ(third.Caption(), "Untitled:3");
  ASSERT_TRUE(first.RequestClose());

  auto& again = t.NewWindow();
  EXPECT_EQ(again.Caption(), "Untitled:1");
  EXPECT_EQ(t.app.documents.SlotOf(&again), 1);
  EXPECT_EQ(t.app.documents.CurrentDocumentIndex, 1);
  EXPECT_EQ(t.app.documents.UpperBound(), 3);  // the lists never shrink
  EXPECT_EQ(t.frame.ActiveDocumentWindow(), &again);
  EXPECT_FALSE(t.Changed(again));
}

TEST(DocumentList, ToolbarsFollowTheFirstOpenAndTheLastClose) {
  TestApp t;
  t.frame.SetToolbarButtonsEnabled(false);
  EXPECT_FALSE(t.app.documents.AnyDocumentsLeft());

  auto& a = *static_cast<HeadlessDocumentWindow*>(NewDocumentWindow(t.app));
  EXPECT_TRUE(t.frame.toolbarButtonsEnabled);
  EXPECT_FALSE(t.frame.saveButtonEnabled);  // nothing has changed yet
  auto& b = t.NewWindow();
  ASSERT_TRUE(a.RequestClose());
  EXPECT_TRUE(t.app.documents.AnyDocumentsLeft());
  EXPECT_TRUE(t.frame.toolbarButtonsEnabled);
  ASSERT_TRUE(b.RequestClose());
  EXPECT_FALSE(t.app.documents.AnyDocumentsLeft());
  EXPECT_FALSE(t.frame.toolbarButtonsEnabled);

  // A second window while one is open does not touch the toolbars.
  t.NewWindow();
  t.frame.SetToolbarButtonsEnabled(false);
  t.NewWindow();
  EXPECT_FALSE(t.frame.toolbarButtonsEnabled);
}

TEST(ChangedFlag, SetByTypingButNotWhileColorizing) {
  TestApp t;
  auto& w = t.NewWindow("abc");
  t.app.colorizing.ColorizingInProgress = 1;
  w.Buffer().Type("x");
  EXPECT_FALSE(t.Changed(w));
  t.app.colorizing.ColorizingInProgress = 0;
  w.Buffer().Type("y");
  EXPECT_TRUE(t.Changed(w));
  EXPECT_TRUE(t.frame.saveButtonEnabled);

  OnDocumentActivated(t.app, w);
  EXPECT_EQ(t.frame.lengthPanel, 5);
  EXPECT_TRUE(t.frame.saveButtonEnabled);
}

TEST(SavePrompt, UnchangedWindowClosesWithoutAsking) {
  TestApp t;
  auto& w = t.NewWindow("text");
  EXPECT_TRUE(w.RequestClose());
  EXPECT_TRUE(t.messages.shown().empty());
  EXPECT_TRUE(t.frame.Windows().empty());
}

TEST(SavePrompt, CancelKeepsTheWindowOpenAndFocused) {
  TestApp t;
  auto& w = t.NewWindow();
  w.Buffer().Type("hello");
  const int focusBefore = w.Buffer().FocusCount();
  t.messages.Queue(MsgAnswer::Cancel);

  EXPECT_FALSE(w.RequestClose());
  ASSERT_EQ(t.messages.shown().size(), 1u);
  const auto& box = t.messages.shown()[0];
  EXPECT_EQ(box.text, PromptFor("Untitled:1"));
  EXPECT_EQ(box.buttons, MsgButtons::YesNoCancel);
  EXPECT_EQ(box.icon, MsgIcon::Exclamation);
  EXPECT_EQ(box.title, "Tessarine");
  EXPECT_EQ(t.frame.Windows().size(), 1u);
  EXPECT_EQ(t.app.documents.SlotOf(&w), 1);
  EXPECT_TRUE(t.Changed(w));
  EXPECT_GT(w.Buffer().FocusCount(), focusBefore);
}

TEST(SavePrompt, NoDiscardsTheText) {
  TestApp t;
  auto& w = t.NewWindow();
  w.Buffer().Type("hello");
  t.messages.Queue(MsgAnswer::No);
  EXPECT_TRUE(w.RequestClose());
  EXPECT_TRUE(t.dialogs.requests().empty());
  EXPECT_FALSE(t.app.documents.AnyDocumentsLeft());
}

TEST(SavePrompt, YesOnUntitledAsksForANameAndACancelledDialogRefuses) {
  TestApp t;
  auto& w = t.NewWindow();
  w.Buffer().Type("hello");
  t.messages.Queue(MsgAnswer::Yes);  // the dialog script is empty: Cancel
  EXPECT_FALSE(w.RequestClose());
  ASSERT_EQ(t.dialogs.requests().size(), 1u);
  EXPECT_EQ(t.dialogs.requests()[0].title, "Save As");
  EXPECT_TRUE(t.dialogs.requests()[0].save);
  EXPECT_EQ(t.frame.Windows().size(), 1u);
  EXPECT_EQ(t.app.documents.SlotOf(&w), 1);
}

TEST(SavePrompt, YesOnUntitledWritesToTheChosenFile) {
  TestApp t;
  TempDir dir;
  auto& w = t.NewWindow();
  w.Buffer().Type("<B>x</B>");
  t.messages.Queue(MsgAnswer::Yes);
  t.dialogs.Queue(dir / "page.html");
  EXPECT_TRUE(w.RequestClose());
  EXPECT_EQ(ReadAll(dir / "page.html"), "<B>x</B>\r\n");
  EXPECT_EQ(t.app.files.SaveDirectory, dir.path().string() + "/");
  EXPECT_FALSE(t.app.documents.AnyDocumentsLeft());
}

TEST(SavePrompt, YesOnAPathWritesThatFileWithOneLineEndAdded) {
  TestApp t;
  TempDir dir;
  auto& w = t.NewWindow("line\r\n");
  w.SetCaption(dir / "a.html");
  w.Buffer().Type("x");
  t.messages.Queue(MsgAnswer::Yes);
  EXPECT_TRUE(w.RequestClose());
  EXPECT_TRUE(t.dialogs.requests().empty());
  EXPECT_EQ(t.messages.shown()[0].text, PromptFor(dir / "a.html"));
  EXPECT_EQ(ReadAll(dir / "a.html"), "xline\r\n\r\n");
}

TEST(SavePrompt, AFailedWriteIsShownAndTheWindowStaysUntilTheUserSaysNo) {
  TestApp t;
  TempDir dir;
  auto& w = t.NewWindow();
  const std::string path = dir / "missing/a.html";
  w.SetCaption(path);
  w.Buffer().Type("x");
  t.messages.Queue(MsgAnswer::Yes);
  EXPECT_FALSE(w.RequestClose());
  ASSERT_EQ(t.messages.shown().size(), 2u);
  EXPECT_EQ(t.messages.shown()[1].text, "Error# 53: File not found");
  EXPECT_EQ(t.messages.shown()[1].icon, MsgIcon::Exclamation);
  EXPECT_TRUE(t.app.documents.AnyDocumentsLeft());
  EXPECT_TRUE(t.Changed(w));
  EXPECT_FALSE(std::filesystem::exists(path));
  // Asked again, the user lets the text go.
  t.messages.Queue(MsgAnswer::No);
  EXPECT_TRUE(w.RequestClose());
  EXPECT_EQ(t.messages.shown().size(), 3u);
  EXPECT_FALSE(t.app.documents.AnyDocumentsLeft());
}

TEST(SavePrompt, OnlyAnExactUntitledPrefixGoesThroughTheDialog) {
  EXPECT_TRUE(CaptionIsUntitledForPrompt("Untitled:12"));
  EXPECT_TRUE(CaptionIsUntitledForPrompt("Untitled"));
  EXPECT_FALSE(CaptionIsUntitledForPrompt("untitled:1"));
  EXPECT_FALSE(CaptionIsUntitledForPrompt("UNTITLED:1"));
  EXPECT_FALSE(CaptionIsUntitledForPrompt("Untitle"));
  EXPECT_FALSE(CaptionIsUntitledForPrompt(""));
  EXPECT_FALSE(CaptionIsUntitledForPrompt("/home/u/Untitled.html"));

  // A lower-case caption is taken as the file name itself.
  TestApp t;
  TempDir dir;
  struct CwdGuard {
    std::filesystem::path old = std::filesystem::current_path();
    ~CwdGuard() { std::filesystem::current_path(old); }
  } guard;
  std::filesystem::current_path(dir.path());
  auto& w = t.NewWindow();
  w.SetCaption("untitled:1");
  w.Buffer().Type("x");
  t.messages.Queue(MsgAnswer::Yes);
  EXPECT_TRUE(w.RequestClose());
  EXPECT_TRUE(t.dialogs.requests().empty());
  EXPECT_EQ(ReadAll(dir / "untitled:1"), "x\r\n");
}

TEST(CloseAll, ACancelInTheMiddleKeepsOnlyThatWindow) {
  TestApp t;
  auto& a = t.NewWindow();
  auto& b = t.NewWindow();
  auto& c = t.NewWindow();
  for (auto* w : {&a, &b, &c}) w->Buffer().Type("x");
  t.messages.Queue(MsgAnswer::No);
  t.messages.Queue(MsgAnswer::Cancel);
  t.messages.Queue(MsgAnswer::No);

  CloseAllDocuments(t.app);
  EXPECT_EQ(t.messages.shown().size(), 3u);
  ASSERT_EQ(t.frame.Windows().size(), 1u);
  EXPECT_EQ(t.frame.Windows()[0], &b);
  EXPECT_EQ(b.Caption(), "Untitled:2");
  EXPECT_TRUE(t.frame.toolbarButtonsEnabled);

  // On exit the same Cancel stops the closing.
  t.messages.Queue(MsgAnswer::Cancel);
  EXPECT_FALSE(CloseAllForExit(t.app));
  EXPECT_EQ(t.frame.Windows().size(), 1u);
}

}  // namespace
}  // namespace tessarine
