// The Edit menu, the change event's status panels, and files dropped on a document.

#include <gtest/gtest.h>

#include <filesystem>

#include "core/Editing.h"
#include "core/Styles.h"
#include "core/TestApp.h"
#include "core/TextServices.h"

namespace tessarine {
namespace {

using testing::TempDir;
using testing::TestApp;
using testing::WriteAll;

TEST(EditCommandsTest, ChangeWritesLengthAndLinePanels) {
  TestApp t;
  auto& w = t.NewWindow("one\r\ntwo");
  w.Buffer().SetSelStart(8);
  w.Buffer().Type("\r\nx");
  EXPECT_EQ(t.frame.lengthPanel, 11);
  EXPECT_EQ(t.frame.linePanel, 3);
  // A colouring pass's own writes are no change.
  t.app.colorizing.ColorizingInProgress = 1;
  w.Buffer().Type("y");
  EXPECT_EQ(t.frame.lengthPanel, 11);
}

TEST(EditCommandsTest, UndoStopsAtTheLastTagCommand) {
  TestApp t;
  auto& w = t.NewWindow("text");
  BufferEdit& e = w.Buffer();
  e.SetSelStart(4);
  e.Type(" more");
  WrapSelection(t.app, "<B>", "</B>", false);
  mnuUndo(t.app);  // straight after the tag command: nothing to undo
  EXPECT_EQ(e.Text(), "text more<B></B>");
  e.Type("x");
  mnuUndo(t.app);
  EXPECT_EQ(e.Text(), "text more<B></B>");
  EXPECT_EQ(e.SelStart(), 12);
}

TEST(EditCommandsTest, ClipboardCommandsCarryPlainText) {
  TestApp t;
  auto& w = t.NewWindow("<b>bold</b> rest");
  BufferEdit& e = w.Buffer();
  e.FillStyle(0, 11, MakeStyle(StyleKind::Tag));
  e.Select(3, 4);
  mnuCopy(t.app);
  EXPECT_EQ(t.platform.clipboard.Text(), "bold");
  EXPECT_EQ(e.Text(), "<b>bold</b> rest");
  mnuCut(t.app);
  EXPECT_EQ(e.Text(), "<b></b> rest");
  e.SetSelStart(e.Length());
  e.SetInsertionStyle(MakeStyle(StyleKind::Plain));
  mnuPaste(t.app);
  EXPECT_EQ(e.Text(), "<b></b> restbold");
  EXPECT_EQ(KindOf(e.StyleAt(13)), StyleKind::Plain);

  // Line ends from other programs become the document's CR LF.
  t.platform.clipboard.SetText("a\nb\rc\r\nd");
  e.Select(0, e.Length());
  mnuPaste(t.app);
  EXPECT_EQ(e.Text(), "a\r\nb\r\nc\r\nd");

  mnuSelectAll(t.app);
  EXPECT_EQ(e.SelLength(), e.Length());
  // Cutting nothing empties the clipboard.
  e.SetSelStart(0);
  mnuCut(t.app);
  EXPECT_EQ(t.platform.clipboard.Text(), "");
}

TEST(EditCommandsTest, WordWrapTogglesTheFlagForNewWindowsAndThisWindow) {
  TestApp t;
  t.app.settings.WordWrap = true;
  auto& a = t.NewWindow();
  auto& b = t.NewWindow();
  EXPECT_TRUE(b.Edit().WordWrap());
  EXPECT_FALSE(mnuWordWrap(t.app));
  EXPECT_FALSE(b.Edit().WordWrap());
  EXPECT_TRUE(a.Edit().WordWrap());
  EXPECT_FALSE(t.NewWindow().Edit().WordWrap());
  // The toggle reads the flag, not the window: from a window still wrapping, it turns
  // wrapping on again.
  t.frame.MakeActive(&a);
  EXPECT_TRUE(mnuWordWrap(t.app));
  EXPECT_TRUE(a.Edit().WordWrap());
}

class DropTest : public ::testing::Test {
 protected:
  std::string Gif(const std::string& name, int w, int h) {
    std::string bytes = "GIF89a";
    bytes += static_cast<char>(w & 0xFF);
    bytes += static_cast<char>(w >> 8);
    bytes += static_cast<char>(h & 0xFF);
    bytes += static_cast<char>(h >> 8);
    bytes += std::string(20, '\0');
    std::filesystem::create_directories(std::filesystem::path(dir / name).parent_path());
    WriteAll(dir / name, bytes);
    return dir / name;
  }
  size_t Warnings() const { return t.platform.checkedQuestions.asked().size(); }

  TestApp t;
  TempDir dir;
};

TEST_F(DropTest, PageBecomesALinkAroundTheSelection) {
  auto& w = t.NewWindow("see here");
  w.Buffer().Select(4, 4);
  EXPECT_TRUE(DropFile(t.app, w, "/site/docs/Page.HTML"));
  // Still untitled after the warning: a bare file name.
  EXPECT_EQ(Warnings(), 1u);
  EXPECT_EQ(w.Buffer().Text(), "see <A HREF=\"Page.HTML\">here</A>");
  EXPECT_GT(w.Buffer().FocusCount(), 0);

  t.app.settings.TagCaseUpper = false;
  w.Buffer().SetSelStart(0);
  EXPECT_TRUE(DropFile(t.app, w, "/x/a.shtml"));  // "html" without its dot counts
  EXPECT_EQ(w.Buffer().Text().substr(0, 24), "<a href=\"a.shtml\"></a>se");
}

TEST_F(DropTest, PictureGetsItsSizeAndStyleSheetKeepsItsOwnCase) {
  auto& w = t.NewWindow();
  const std::string gif = Gif("docs/img/dot.gif", 300, 20);
  // Yes to the warning saves the page: the path is made relative to where it went.
  t.platform.checkedQuestions.Queue(true, false);
  t.dialogs.Queue(dir / "docs/page.htm");
  EXPECT_TRUE(DropFile(t.app, w, gif));
  EXPECT_EQ(w.Caption(), dir / "docs/page.htm");
  EXPECT_EQ(w.Buffer().Text(), "<IMG SRC=\"img/dot.gif\" WIDTH=\"300\" HEIGHT=\"20\">");

  w.Buffer().SetText("");
  t.app.settings.TagCaseUpper = false;
  EXPECT_TRUE(DropFile(t.app, w, dir / "docs/broken.JPG"));  // no such picture: no size
  EXPECT_EQ(w.Buffer().Text(), "<img src=\"broken.JPG\" width=\"\" height=\"\">");

  w.Buffer().SetText("");
  t.app.settings.TagCaseUpper = true;
  EXPECT_TRUE(DropFile(t.app, w, dir / "css/look.css"));
  EXPECT_EQ(w.Buffer().Text(), "<link rel=\"StyleSheet\" href=\"../css/look.css\">");
  EXPECT_EQ(Warnings(), 1u);  // saved now: no more warnings

  EXPECT_FALSE(DropFile(t.app, w, "/s/pic.jpeg"));  // nothing else becomes markup
  EXPECT_EQ(w.Buffer().Text(), "<link rel=\"StyleSheet\" href=\"../css/look.css\">");
}

}  // namespace
}  // namespace tessarine
